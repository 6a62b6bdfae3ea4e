#pragma once

#include "job_condition.h"
#include "result.h"

#include <QString>

namespace kelvo {

class Patience;

// A job that a print server has taken: what became of it, and how it is taken back.
struct SentJob
{
    QString queue; // "Hall-3"
    int id = 0;    // from 1

    QString name() const { return QStringLiteral("%1-%2").arg(queue).arg(id); }
    friend bool operator==(const SentJob &, const SentJob &) = default;
};

// Both ask the server of the environment and block. Errors as of deliverToQueue(); NotFound: the
// server does not have the job (any more).
Result<JobCondition> readCondition(const SentJob &job, Patience &patience);
// Refused where it is over by now, or somebody else's.
Result<void> takeBack(const SentJob &job, Patience &patience);

} // namespace kelvo
