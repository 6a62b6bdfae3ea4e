#include "job_describer.h"

#include "job_settings.h"
#include "job_timing.h"

#include <algorithm>

namespace kelvo {

namespace {

const QString deviceMakerKey = QStringLiteral("KelvoDeviceMaker");

} // namespace

bool isHostEntry(const QString &key)
{
    static const QStringList own{kPMCopiesKey, kPMCollateKey, kPMJobNameKey, kJobPriorityKey,
                                 kJobHoldUntilKey};
    return own.contains(key) || pageEntries().contains(key);
}

JobDescriber::JobDescriber(Bundle *bundle)
    : m_bundle(bundle)
{
}

bool JobDescriber::isMakerOf(const PpdFile *ppd) const
{
    return m_bundle && ppd && ppd->manufacturer() == string(m_bundle->info(), deviceMakerKey);
}

bool JobDescriber::knowsOption(const QString &keyword) const
{
    const auto knows = m_bundle
        ? reinterpret_cast<KnowsOptionFunction>(m_bundle->findFunction(kKnowsOptionName))
        : nullptr;
    return knows && knows(keyword);
}

bool JobDescriber::findFunction()
{
    if (m_bundle && !std::exchange(m_hasLooked, true))
        m_function =
            reinterpret_cast<DescribeJobFunction>(m_bundle->findFunction(kDescribeJobName));
    return m_function;
}

void JobDescriber::ask(const Ticket &printSettings, const Ticket &pageFormat, const PpdFile *ppd,
                       JobDescription &description)
{
    const JobToDescribe job{&printSettings, &pageFormat, ppd, m_bundle};
    if (!findFunction() || m_function(&job, &description) != noErr)
        description = {};
}

void JobDescriber::describe(const Ticket &printSettings, const Ticket &pageFormat,
                            const PpdFile *ppd, JobDescription &description)
{
    const bool isConcerned = isMakerOf(ppd)
        || std::any_of(printSettings.entries.begin(), printSettings.entries.end(),
                       [](const auto &entry) { return !isHostEntry(entry.first); });
    if (isConcerned)
        ask(printSettings, pageFormat, ppd, description);
    else
        description = {};
}

RepeatedChoices JobDescriber::repeatedChoices(const PpdFile *ppd, bool bringsTicket)
{
    JobDescription description;
    if (bringsTicket || isMakerOf(ppd))
        ask({}, {}, nullptr, description); // they are the panels', whatever the device
    return repeatedChoicesIn(description);
}

} // namespace kelvo
