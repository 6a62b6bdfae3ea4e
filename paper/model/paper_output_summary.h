#pragma once

#include "panel_summary.h"
#include "paper_output_settings.h"

#include <vector>

namespace kelvo {

// What the panel has chosen, in words: job type, paper, sides, colour, stapling,
// hole punch and output destination. A line whose setting the device does not
// have, or that has no words, is left out.
std::vector<SummaryLine> paperOutputSummary(const PaperOutputSettings &settings,
                                            const Device &device);

// What the panel says beside its buttons.
QString coversText(const PaperOutputSettings &settings, const Device &device);
// CreateFinishingString, or that the device has nothing to finish with.
QString finishingText(const PaperOutputSettings &settings, const Device &device);
// The job's paper, and what is put between transparencies.
QString paperText(const PaperOutputSettings &settings, const Device &device);
QString separatorsText(const PaperOutputSettings &settings, const Device &device);

} // namespace kelvo
