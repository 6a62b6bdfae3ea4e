#pragma once

#include "device.h"
#include "menu.h"

namespace kelvo {

// Fills `menu` with the PPD's output bins, in its order: one that belongs to a
// unit is left out when that unit is not installed. Empty without PPD.
void PopulateOutputDestination(Menu &menu, const Device &device);

} // namespace kelvo
