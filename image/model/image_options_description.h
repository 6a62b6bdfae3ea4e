#pragma once

#include "described_settings.h"

namespace kelvo {

// What the Image Options panel sets.
void describeImageOptions(const DescribedJob &job, JobDescription &description);

} // namespace kelvo
