#include "job_condition.h"

#include "job_timing.h"
#include "texts.h"

namespace kelvo {

namespace {

QString words(JobCondition::State state, const QString &holdUntil)
{
    using State = JobCondition::State;
    switch (state) {
    case State::Waiting:
        return translate("Job", "waiting");
    case State::Held: {
        const QString until = holdInWords(holdUntil);
        return until.isEmpty() ? translate("Job", "held") : translate("Job", "held %1").arg(until);
    }
    case State::Printing:
        return translate("Job", "printing");
    case State::Stopped:
        return translate("Job", "waiting, the printer is stopped");
    case State::Completed:
        return translate("Job", "printed");
    case State::Cancelled:
        return translate("Job", "cancelled");
    case State::Aborted:
        return translate("Job", "given up by the print server");
    case State::Forgotten:
        return translate("Job",
                         "no longer on the print server, which does not keep how jobs ended");
    }
    return {};
}

} // namespace

QString stateInWords(const JobCondition &condition)
{
    const QString state = words(condition.state, condition.holdUntil);
    return condition.reason.isEmpty() ? state : jobLine(state, condition.reason);
}

QString conditionInWords(const JobCondition &condition)
{
    if (condition.state != JobCondition::State::Printing || condition.pages <= 0)
        return stateInWords(condition);
    return separated(
        {stateInWords(condition), translate("Job", "%n page(s) so far", nullptr, condition.pages)});
}

QString jobLine(const QString &job, const QString &words)
{
    return translate("Job", "%1: %2").arg(job, words);
}

QString notCancelledLine(const QString &job, const QString &problem)
{
    return translate("Job", "%1 was not cancelled: %2").arg(job, problem);
}

} // namespace kelvo
