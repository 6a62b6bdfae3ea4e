#pragma once

#include "plugin_abi.h"

// The Paper/Output panel: paper, job type, sides, colour, finishing and where the
// sheets come out.
namespace kelvo {

KELVO_PLUGIN_EXPORT OSStatus GetPaperOutputPanelInterface(PanelInterface **interface);

} // namespace kelvo
