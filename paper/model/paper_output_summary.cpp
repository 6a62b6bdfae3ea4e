#include "paper_output_summary.h"

#include "finishing_ticket.h"
#include "ppd_choices.h"
#include "setting_maps.h"
#include "stock_summary.h"
#include "ticket_values.h"

#include <optional>

namespace kelvo {

namespace {

QString mapText(CFBundleRef bundle, const SettingMap *map, std::int32_t value)
{
    const char *key = LocalizedKeyForTicketValue(map, value);
    return key ? localizedText(bundle, QString::fromLatin1(key)) : QString();
}

QString valueText(const PpdFile *ppd, const char *option, std::int32_t value)
{
    return PPDCopyTextForTicketValue(ppd, QString::fromLatin1(option), value).value_or(QString());
}

// As the ticket says it, which depends on how the pages lie.
QString stapleText(const _PaperOutputContext &context, const PpdFile *ppd)
{
    const auto choice = stapleChoice(chosenStaple(context.finishing), context.orientation);
    return PPDCopyChoiceText(ppd, QStringLiteral("StapleLocation"), choice.value_or(QString()))
        .value_or(QString());
}

} // namespace

std::vector<SummaryLine> paperOutputSummary(const _PaperOutputContext &context, const PpdFile *ppd)
{
    const CFBundleRef bundle = context.bundle;
    const Device device{bundle, ppd, {}};
    std::vector<SummaryLine> lines;
    const auto add = [&](const char *labelKey, const QString &text) {
        addSummaryLine(lines, device, labelKey, text);
    };
    add("Job Type:", mapText(bundle, JobTypeMap, context.jobType));
    add("Paper Summary:", stockSummaryText(bundle, kJobContextJob, &context.jobStock));
    if (ppd && ppd->findOption(QStringLiteral("Duplex")))
        add("Two Sided Printing:",
            mapText(bundle, PlexMap, context.isBooklet() ? kPlexDuplex : context.duplex));
    add("Output Color:", valueText(ppd, "KVColorMode", context.colorMode));
    if (context.devices.stapler)
        add("Stapling:", stapleText(context, ppd));
    if (context.devices.holePunch)
        add("Hole Punch:", valueText(ppd, "KVPunch", context.finishing.punch));
    add("Output Destination:", valueText(ppd, "OutputBin", context.outputBin));
    return lines;
}

} // namespace kelvo
