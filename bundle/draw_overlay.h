#pragma once

#include "job_description.h"
#include "plugin_abi.h"

namespace kelvo {

// What the bundle exports under kDrawOverlayName: watermarks, of the user's store.
KELVO_PLUGIN_EXPORT OSStatus KelvoDrawOverlay(const OverlayToDraw *overlay, QByteArray *pdf);

} // namespace kelvo
