#include "job_type_setup.h"

#include "fax_options.h"
#include "paper_output_settings.h"

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

void changeJobType(PaperOutputSettings &settings, std::int32_t jobType)
{
    if (jobType != settings.jobType)
        settings.passcode.reset();
    settings.jobType = jobType;
}

bool lacksPasscode(const PaperOutputSettings &settings)
{
    return settings.jobType == kJobTypeSecurePrint
        && settings.passcode.value_or(QString()).isEmpty();
}

JobTypeState jobTypeState(const PaperOutputSettings &settings, const Device &device)
{
    return {settings.jobType, !settings.passcode.value_or(QString()).isEmpty(),
            settings.faxRecipients && settings.faxRecipients->count() > 0, device.has("FaxKey")};
}

LongDateTime defaultDelayedPrintTime(LongDateTime now)
{
    constexpr LongDateTime oneDay = 86'400; // seconds
    return now + oneDay;
}

void settleDelayedPrint(PaperOutputSettings &settings, LongDateTime now)
{
    if (settings.jobType == kJobTypeDelayedPrint && settings.delayedPrintTime < now)
        settings.delayedPrintTime = nextMomentAt(timeOf(settings.delayedPrintTime), now);
}

const FaxRecipientList *faxRecipients(const PaperOutputSettings &settings)
{
    return settings.jobType == kJobTypeFax && settings.faxRecipients
            && settings.faxRecipients->count() > 0
        ? &*settings.faxRecipients
        : nullptr;
}

void settleFax(PaperOutputSettings &settings, LongDateTime now)
{
    if (settings.jobType == kJobTypeFax && settings.faxOptions)
        settleSendTime(*settings.faxOptions, now);
}

} // namespace kelvo
