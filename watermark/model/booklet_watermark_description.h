#pragma once

#include "described_settings.h"

namespace kelvo {

// Adds the lines of the Booklet/Watermark panel, how pages are put on sheets and what is drawn
// on them (job_description.h).
void describeBookletWatermark(const DescribedJob &job, JobDescription &description);

} // namespace kelvo
