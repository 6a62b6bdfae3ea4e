#pragma once

#include <QPalette>

namespace kelvo {

// Amber on whatever the theme is: the ground of a warning, and the text of one
// on the window's own ground.
QColor cautionGround(const QPalette &palette);
QColor cautionText(const QPalette &palette);

} // namespace kelvo
