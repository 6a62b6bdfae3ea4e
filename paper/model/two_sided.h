#pragma once

#include "menu.h"
#include "paper_output_settings.h"

// What the panel offers of printing on two sides, and what it shows.
namespace kelvo {

// The map's words for what the device offers. One without the option prints on one
// side, which cannot be chosen there.
Menu twoSidedMenu(const Device &device);
// A booklet decides it, and a device without the option has nothing to choose.
bool canChooseTwoSided(const PaperOutputSettings &settings, const Device &device);
// A value of PlexMap.
std::int32_t shownTwoSided(const PaperOutputSettings &settings);

} // namespace kelvo
