#include "used_libraries.h"

#include "drawing.h"

namespace kelvo {

namespace {

// The licenses are those that Debian's packages name.
constexpr UsedLibrary libraries[] = {
    {"Qt", "LGPL-3.0-only OR GPL-2.0-only OR GPL-3.0-only", "The Qt Company"},
    {"CUPS", "Apache-2.0-with-GPL2-LGPL2-Exception", "OpenPrinting, Apple, Michael R Sweet"},
    {"Expat", "MIT", "Expat maintainers"},
    {"libsystemd", "LGPL-2.1-or-later", "Kay Sievers, Lennart Poettering"},
    {"fontconfig", "HPND-sell-variant", "Keith Packard"},
    {"cairo", "LGPL-2.1-only OR MPL-1.1", "Keith Packard, Carl Worth, Red Hat"},
    {"Pango", "LGPL-2.0-or-later", "Red Hat, Owen Taylor, Behdad Esfahbod"},
    {"HarfBuzz", "MIT", "Behdad Esfahbod, Google, Red Hat"},
    {"GLib", "LGPL-2.1-or-later", "Red Hat, GNOME"},
    {"poppler", "GPL-2.0-only OR GPL-3.0-only", "Albert Astals Cid, Glyph & Cog"},
    {"qpdf", "Apache-2.0", "Jay Berkenbilt"},
    {"evolution-data-server", "LGPL-2.0-or-later", "Ximian, Novell, Red Hat"},
    {"Ghostscript", "AGPL-3.0-or-later", "Artifex Software"},
    {"GNU C Library", "LGPL-2.1-or-later", "Free Software Foundation"},
    {"GNU C++ Library", "GPL-3.0-or-later WITH GCC-exception-3.1", "Free Software Foundation"},
};

} // namespace

std::span<const UsedLibrary> usedLibraries()
{
    return libraries;
}

LibraryVersions usedLibraryVersions()
{
    LibraryVersions versions = libraryVersions();
    versions.insert(drawing::libraryVersions());
    return versions;
}

} // namespace kelvo
