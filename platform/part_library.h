#pragma once

#include "result.h"

#include <QString>

// Parts of the program that lie in libraries of their own, because of what those bring along:
// each is opened with its first use and never closed, so that no window waits for it.
namespace kelvo {

struct PartLibrary
{
    const char *fileName; // "libkelvo_drawing.so"
    const char *entry;    // the name of its one function, a PartEntry
    // What a user is told, each marked with QT_TRANSLATE_NOOP for `context`.
    const char *context;
    const char *isMissing;
    const char *cannotBeLoaded; // %1: why
    const char *isOfAnother;    // %1: our version
    // Whether names are looked up as they are used. For what is nearly all of the program, and
    // of the same installation; elsewhere one that is missing shows at once and not in the middle
    // of the part's work.
    bool isBoundLazily = false;
};

// What the library has, a pointer to the very class that openPart() is asked for; null where
// `version` is not its own. Both sides are of one build, or their classes do not agree.
using PartEntry = const void *(const char *version);

// What the entry of the library in `folder` has; for any thread. NotFound, NotReadable
// (something that it needs is missing) or Damaged (of another version) say the file and what
// the part's words do; the next call looks again.
Result<const void *> openPartLibrary(const PartLibrary &library, const QString &folder);

template <typename Part>
Result<const Part *> openPart(const PartLibrary &library, const QString &folder)
{
    const Result<const void *> part = openPartLibrary(library, folder);
    if (!part)
        return part.error();
    return static_cast<const Part *>(part.value());
}

} // namespace kelvo
