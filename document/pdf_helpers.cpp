#include "pdf_helpers.h"

#include <utility>

namespace kelvo {

std::optional<PdfHelpers> PdfHelpers::start()
{
    // Where the document's files will be is not known yet. All are named by their whole paths.
    const HelperJob job{{}, QStringLiteral("/")};
    auto writer = RunningHelper::start(DocumentHelper::Pages, job);
    if (!writer)
        return std::nullopt;
    auto checker = RunningHelper::start(DocumentHelper::Pages, job);
    if (!checker)
        return std::nullopt;
    return PdfHelpers{std::move(writer).value(), std::move(checker).value()};
}

} // namespace kelvo
