#pragma once

#include "described_settings.h"

namespace kelvo {

// The inserts and exception pages of a job in words, and all its special sheets: only what
// reaches the device, so nothing that its PPD does not have, and no entries where it reads no
// tickets. Entries of another form are ignored, and so are an insert of no sheets, a range
// without pages and one that begins within another.
void describeSpecialPages(const DescribedJob &job, JobDescription &description);

} // namespace kelvo
