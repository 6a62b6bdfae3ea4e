#pragma once

#include "pango_owner.h"

namespace kelvo::drawing {

// Stands where something was left out of a text, so that positions in it stay: it takes no
// room, is no place to break a line, and is not among the letters of a drawn line.
inline constexpr char16_t wordJoiner = u'\u2060';

// Draws `line` of a layout with its left end at (`x`, `y`), on the baseline, in the context's
// color. The letters can be copied out of the PDF in their order, also of ligatures, of
// combining characters and of lines that run from right to left.
void drawLine(cairo_t *context, PangoLayoutLine *line, double x, double y);

} // namespace kelvo::drawing
