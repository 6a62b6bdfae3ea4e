#pragma once

#include "described_settings.h"

namespace kelvo {

// What the Job Notes panel sets.
void describeJobNotes(const DescribedJob &job, JobDescription &description);

} // namespace kelvo
