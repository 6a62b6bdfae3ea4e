#pragma once

#include "job_description.h"
#include "plugin_abi.h"

namespace kelvo {

// What the bundle exports under kDescribeJobName: what all its panels say of a job.
KELVO_PLUGIN_EXPORT OSStatus KelvoDescribeJob(const JobToDescribe *job,
                                              JobDescription *description);
// And under kKnowsOptionName.
KELVO_PLUGIN_EXPORT bool KelvoKnowsOption(const QString &keyword);

} // namespace kelvo
