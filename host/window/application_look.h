#pragma once

namespace kelvo {

// How the program looks and speaks, from its tables to its screen readers. Call it once there are
// an application object and its tables (loadTexts()), and before there is a window.
void dressApplication();

} // namespace kelvo
