#pragma once

#include "drawing.h"
#include "pango_owner.h"

namespace kelvo::drawing {

// The style's face and size.
PangoOwner<PangoFontDescription> fontFor(const TextStyle &style);

// Where nothing is moved to suit the pixels of a screen. Each thread has fonts of its own.
PangoOwner<PangoContext> unhintedContext();

inline double points(int units)
{
    return units / double(PANGO_SCALE);
}

} // namespace kelvo::drawing
