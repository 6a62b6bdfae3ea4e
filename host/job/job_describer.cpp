#include "job_describer.h"

#include <algorithm>

namespace kelvo {

namespace {

const QString deviceMakerKey = QStringLiteral("KelvoDeviceMaker");

} // namespace

bool isHostEntry(const QString &key)
{
    static const QStringList own{kPMCopiesKey, kPMCollateKey, kPMPageRangesKey, kPMJobNameKey};
    return own.contains(key);
}

JobDescriber::JobDescriber(Bundle *bundle, QString userFolder)
    : m_bundle(bundle)
    , m_userFolder(std::move(userFolder))
{
}

bool JobDescriber::isConcerned(const Ticket &printSettings, const PpdFile *ppd) const
{
    if (!m_bundle)
        return false;
    if (ppd && ppd->manufacturer() == string(m_bundle->info(), deviceMakerKey))
        return true;
    return std::any_of(printSettings.entries.begin(), printSettings.entries.end(),
                       [](const auto &entry) { return !isHostEntry(entry.first); });
}

void JobDescriber::findFunction()
{
    if (std::exchange(m_hasLooked, true))
        return;
    m_function = reinterpret_cast<DescribeJobFunction>(m_bundle->findFunction(kDescribeJobName));
}

void JobDescriber::describe(const Ticket &printSettings, const Ticket &pageFormat,
                            const PpdFile *ppd, JobDescription &description)
{
    if (isConcerned(printSettings, ppd))
        findFunction();
    if (!m_function) {
        description = {};
        return;
    }
    const JobToDescribe job{&printSettings, &pageFormat, ppd, m_bundle, m_userFolder};
    if (m_function(&job, &description) != noErr)
        description = {};
}

RepeatedChoices JobDescriber::repeatedChoices(const PpdFile *ppd)
{
    JobDescription description;
    describe({}, {}, ppd, description);
    return repeatedChoicesIn(description);
}

} // namespace kelvo
