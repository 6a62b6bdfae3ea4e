#pragma once

#include "described_settings.h"

namespace kelvo {

// What the Advanced panel sets. Comes after the Paper/Output panel, which may have an offset
// of its own.
void describeAdvanced(const DescribedJob &job, JobDescription &description);

} // namespace kelvo
