#include "cairo_picture.h"

#include <dlfcn.h>

namespace kelvo {

std::unique_ptr<CairoPictures> CairoPictures::open(const PdfSource &source)
{
    // Beside what this is linked into, which has $ORIGIN for its path.
    static void *const library = ::dlopen("libkelvo_cairo_picture.so", RTLD_NOW | RTLD_NODELETE);
    static auto *const entry = library
        ? reinterpret_cast<CairoPicturesEntry *>(::dlsym(library, cairoPicturesEntry))
        : nullptr;
    return std::unique_ptr<CairoPictures>(entry ? entry(KELVO_VERSION, source) : nullptr);
}

} // namespace kelvo
