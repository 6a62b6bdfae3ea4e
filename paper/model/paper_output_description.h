#pragma once

#include "described_settings.h"

namespace kelvo {

// What the Paper/Output panel and its dialogs set: job type, paper, sides, finishing,
// output, booklet and covers.
void describePaperOutput(const DescribedJob &job, JobDescription &description);

} // namespace kelvo
