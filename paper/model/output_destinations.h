#pragma once

#include "bundle.h"
#include "menu.h"

namespace kelvo {

class PpdFile;

// Fills `menu` with the PPD's output bins, in its order: one that belongs to a
// unit is left out when that unit is not installed. Empty without PPD.
void PopulateOutputDestination(Menu &menu, PpdFile *ppd);

} // namespace kelvo
