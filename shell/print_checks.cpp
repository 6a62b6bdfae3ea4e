#include "print_checks.h"

#include "job_types.h"

namespace kelvo {

PrintCheck checkBeforePrint(const JobTypeState &state)
{
    if (state.jobType == kJobTypeSecurePrint && !state.hasPasscode)
        return PrintCheck::MissingPasscode;
    if (state.jobType == kJobTypeFax && !state.sendsFaxes)
        return PrintCheck::NoFaxDevice;
    if (state.jobType == kJobTypeFax && !state.hasFaxRecipients)
        return PrintCheck::MissingFaxRecipients;
    return PrintCheck::Proceed;
}

} // namespace kelvo
