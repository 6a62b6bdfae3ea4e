#pragma once

#include "plugin_abi.h"

// The Booklet/Watermark panel: the job as a booklet, and the user's watermarks.
namespace kelvo {

KELVO_PLUGIN_EXPORT OSStatus GetBookletWatermarkPanelInterface(PanelInterface **interface);

} // namespace kelvo
