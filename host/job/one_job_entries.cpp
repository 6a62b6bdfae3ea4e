#include "one_job_entries.h"

#include "job_timing.h"

namespace kelvo {

const QStringList &oneJobEntries()
{
    static const QStringList entries{kPMJobNameKey, kPMPageRangesKey, kJobHoldUntilKey};
    return entries;
}

} // namespace kelvo
