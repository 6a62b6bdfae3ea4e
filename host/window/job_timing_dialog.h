#pragma once

#include "job_timing.h"

#include <optional>

class QWidget;

namespace kelvo {

// When the server prints the job: at once or later, and before which others.
QWidget *makeJobTimingPane(const JobTiming &timing);

// Asks for it; none when it was cancelled. What is left as it was shown stays absent where
// `timing` leaves it to the queue.
std::optional<JobTiming> askForJobTiming(const JobTiming &timing, QWidget *parent);

} // namespace kelvo
