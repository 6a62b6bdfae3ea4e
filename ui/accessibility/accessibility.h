#pragma once

namespace kelvo {

// From now on screen readers are told of widgets, and do with them, what accessible_widget.h
// says. Call it once there is an application object, and before there is a window.
void installAccessibility();

} // namespace kelvo
