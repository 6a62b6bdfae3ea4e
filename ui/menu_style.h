#pragma once

namespace kelvo {

// From now on a menu that is higher than the screen scrolls, where Qt's own style would set it in
// columns, up to the screen's edge and beyond. Call it with an application object, after what else
// sets its style, and before there is a window.
void keepMenusOnScreen();

} // namespace kelvo
