#pragma once

#include "plugin_abi.h"

// The Image Options panel: lightness, image quality, toner saver, colour and the
// mirror image.
namespace kelvo {

KELVO_PLUGIN_EXPORT OSStatus GetImageOptionsPanelInterface(PanelInterface **interface);

} // namespace kelvo
