#include "job_type_setup.h"

#include "job_types.h"

namespace kelvo {

bool hasJobTypeSetup(std::int32_t jobType)
{
    switch (jobType) {
    case kJobTypeSaved:
    case kJobTypeProof:
    case kJobTypeFax:
    case kJobTypeSecurePrint:
    case kJobTypeDelayedPrint:
    case kJobTypeBackgroundForm:
        return true;
    default:
        return false;
    }
}

} // namespace kelvo
