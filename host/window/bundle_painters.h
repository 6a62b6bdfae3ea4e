#pragma once

#include "bundle_drawer.h"
#include "page_renderer.h"

namespace kelvo {

// Make pixels of what the bundle draws over pages and before them.
OverlayPainter overlayPainter(const BundleDrawer &drawer);
LeadingPagePainter leadingPagePainter(const BundleDrawer &drawer);

} // namespace kelvo
