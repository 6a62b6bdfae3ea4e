#pragma once

#include "plugin_abi.h"

// The Special Pages panel: covers, inserts and exception pages in one list.
namespace kelvo {

// A panel of its own beside the shell: PanelInterfaces does not name it, the
// bundle's Info.plist does. A second Open answers kPMInvalidPDEContext: the controls
// live from the first one until Terminate.
KELVO_PLUGIN_EXPORT OSStatus GetSpecialPagesPanelInterface(PanelInterface **interface);

} // namespace kelvo
