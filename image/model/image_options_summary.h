#pragma once

#include "image_options_settings.h"
#include "panel_summary.h"

namespace kelvo {

// "Lighten 3", "Printer default"; in the words of the user's language.
QString lightenDarkenText(const Device &device, std::int32_t lightenDarken);

// What the panel says of the lightness: the step, or what the job does where none is
// chosen or the device does not offer it.
QString lightenDarkenWords(const ImageOptionsSettings &settings, const Device &device);

// The user can choose a step: the device has them, and it is not left to the printer.
bool choosesLightness(const ImageOptionsSettings &settings, const Device &device);

// What it says of the toner saver: what it is for, or why it cannot be used.
QString tonerSaverWords(const ImageOptionsSettings &settings, const Device &device);

// The device has the toner saver, and the choice that the job has for it.
bool isTonerSaverOffered(const ImageOptionsSettings &settings, const Device &device);

// What it says below the mirror image: a negative is not drawn, so words say it.
QString invertImageWords(const ImageOptionsSettings &settings, const Device &device);

// What the panel has chosen, in words. A line whose setting the device does not
// have, or that has no words, is left out.
std::vector<SummaryLine> imageOptionsSummary(const ImageOptionsSettings &settings,
                                             const Device &device);

} // namespace kelvo
