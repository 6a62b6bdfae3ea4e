#pragma once

#include "library_versions.h"

#include <QString>

#include <span>

// The works of others that the program is made with.
namespace kelvo {

struct UsedLibrary
{
    const char *name;    // its own
    const char *license; // as SPDX writes it, where it does
    const char *authors; // the main ones
};

// All that our programs and libraries link, and what they start. Each brings others along,
// which are not named.
std::span<const UsedLibrary> usedLibraries();

// Of those that say it, and can be opened.
LibraryVersions usedLibraryVersions();

} // namespace kelvo
