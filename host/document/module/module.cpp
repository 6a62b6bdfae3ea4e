#include "functions.h"

#include <cstring>

namespace {

using namespace kelvo;

constexpr DocumentFunctions functions = {
    .tidyPdf = documents::tidyPdf,
    .selectPdfPages = documents::selectPdfPages,
    .convertText = documents::convertText,
    .makePicturePdf = documents::makePicturePdf,
    .openDrawing = documents::openDrawing,
    .holdsEmbeddedFile = documents::holdsEmbeddedFile,
    .replaceEmbeddedFile = documents::replaceEmbeddedFile,
};

} // namespace

extern "C" __attribute__((visibility("default"))) const kelvo::DocumentFunctions *
kelvoDocumentFunctions(const char *version)
{
    return std::strcmp(version, KELVO_VERSION) == 0 ? &functions : nullptr;
}
