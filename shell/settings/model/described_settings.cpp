#include "described_settings.h"

#include "mnemonics.h"
#include "ppd_choices.h"
#include "ppd_words.h"

namespace kelvo {

namespace {

// "JobType/JobType" is two steps; "SpecialPages.InsertList" is one.
TicketPlace placeNamed(const char *name)
{
    QStringList steps = QString::fromLatin1(name).split(u'/');
    steps.first().prepend(QStringLiteral("com.kelvo.print."));
    return TicketPlace{kPMPrintSettingsTicket} + steps;
}

TicketPlace placeOfChoice(const char *option)
{
    return {kPPDChoices, QString::fromLatin1(option)};
}

} // namespace

QString labelText(const Device &device, const char *key)
{
    return nameInLabel(device.text(key));
}

PanelDescription::PanelDescription(const DescribedJob &job, const char *panel,
                                   JobDescription &description)
    : m_job(job)
    , m_panel(QString::fromLatin1(panel))
    , m_description(description)
{
}

DescribedSetting *PanelDescription::push(DescribedSetting setting)
{
    setting.panel = m_panel;
    setting.control.signature = kPanelSignature;
    m_description.settings.push_back(std::move(setting));
    return &m_description.settings.back();
}

DescribedSetting *PanelDescription::add(const char *name, const char *labelKey,
                                        const QString &words, std::int32_t control, bool isDefault)
{
    return addLabelled(name, labelText(m_job.device, labelKey), words, control, isDefault);
}

DescribedSetting *PanelDescription::addLabelled(const char *name, const QString &label,
                                                const QString &words, std::int32_t control,
                                                bool isDefault)
{
    if (words.isEmpty()) {
        leaveUnspoken(name);
        return nullptr;
    }
    return push({.place = placeNamed(name),
                 .label = label,
                 .words = words.simplified(),
                 .control = {0, control},
                 .isDefault = isDefault});
}

DescribedSetting *PanelDescription::addChoice(const char *option, std::int32_t control,
                                              const std::optional<QString> &chosen)
{
    const TicketPlace place = placeOfChoice(option);
    const PpdFile *ppd = m_job.device.ppd;
    const PpdOption *known = ppd ? ppd->findOption(place.last()) : nullptr;
    if (!known || m_description.unspoken.contains(place))
        return nullptr;
    const auto inTicket = PPDCopyChoiceOrDefault(ppd, m_job.printSettings, known->keyword);
    const QString choice = chosen ? *chosen : inTicket.value_or(QString());
    if (!known->findChoice(choice))
        return nullptr;
    return push({.place = place,
                 .label = optionWords(*known),
                 .words = choiceWords(*known, choice),
                 .control = {0, control},
                 .isDefault = choice == known->defaultChoice});
}

DescribedSetting *PanelDescription::addOwnChoice(const char *option, const char *labelKey,
                                                 const QString &words, std::int32_t control)
{
    const TicketPlace place = placeOfChoice(option);
    const PpdOption *known =
        m_job.device.ppd ? m_job.device.ppd->findOption(place.last()) : nullptr;
    return push({.place = place,
                 .label = known ? optionWords(*known) : labelText(m_job.device, labelKey),
                 .words = words.simplified(),
                 .control = {0, control}});
}

void PanelDescription::leaveUnspoken(const char *name)
{
    m_description.unspoken.insert(placeNamed(name));
}

void PanelDescription::leaveChoiceUnspoken(const char *option)
{
    m_description.unspoken.insert(placeOfChoice(option));
}

} // namespace kelvo
