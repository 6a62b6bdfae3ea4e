#pragma once

#include "drawing.h"

namespace kelvo::drawing {

// The one function that the library is asked for by name: what it can do, or null where
// `version` is not its own. Both sides are of one build, or their classes do not agree.
using Entry = const Library *(const char *version);
inline constexpr char entryName[] = "kelvoDrawing";

} // namespace kelvo::drawing
