#pragma once

#include "overlay_drawer.h"
#include "page_renderer.h"

namespace kelvo {

// Makes pixels of what the bundle draws over pages.
OverlayPainter overlayPainter(const OverlayDrawer &drawer);

} // namespace kelvo
