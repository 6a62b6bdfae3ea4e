#pragma once

#include "exit_status.h"
#include "sent_job.h"

#include <vector>

namespace kelvo {

// Waits until all of these jobs are over, however long that takes, and says on standard error what
// becomes of each. The status: of the worst, that one was given up by the server, that one is not
// heard of any more (no answer for `timeoutMs`), that one was cancelled, that all were printed. An
// interruption ends the waiting, and leaves the jobs alone: Cancelled.
ExitStatus waitForJobs(const std::vector<SentJob> &jobs, int timeoutMs);

// What is said where nobody waits any more. The same status.
ExitStatus leaveJobs(const std::vector<SentJob> &jobs);

} // namespace kelvo
