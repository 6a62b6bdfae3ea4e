#include "job_type_setup.h"

#include "paper_output_context.h"

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

void changeJobType(_PaperOutputContext &context, std::int32_t jobType)
{
    if (jobType != context.jobType)
        context.passcode.reset();
    context.jobType = jobType;
}

bool lacksPasscode(const _PaperOutputContext &context)
{
    return context.jobType == kJobTypeSecurePrint && context.passcode.value_or(QString()).isEmpty();
}

} // namespace kelvo
