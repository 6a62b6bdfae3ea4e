#include "paper_output_summary.h"

#include "cover_sync.h"
#include "finishing_ticket.h"
#include "ppd_choices.h"
#include "separators.h"
#include "setting_maps.h"
#include "stock_summary.h"
#include "two_sided.h"

#include <optional>

namespace kelvo {

namespace {

QString valueText(const Device &device, const char *option, std::int32_t value)
{
    return PPDCopyTextForTicketValue(device.ppd, QString::fromLatin1(option), value)
        .value_or(QString());
}

// As the ticket says it, which depends on how the pages lie.
QString stapleText(const PaperOutputSettings &settings, const Device &device)
{
    const auto choice = stapleChoice(chosenStaple(settings.finishing), settings.orientation);
    return PPDCopyChoiceText(device.ppd, QStringLiteral("StapleLocation"),
                             choice.value_or(QString()))
        .value_or(QString());
}

} // namespace

std::vector<SummaryLine> paperOutputSummary(const PaperOutputSettings &settings,
                                            const Device &device)
{
    std::vector<SummaryLine> lines;
    const auto add = [&](const char *labelKey, const QString &text) {
        addSummaryLine(lines, device, labelKey, text);
    };
    const FinishingDevices devices = finishingDevices(device);
    add("Job Type:", textOfValue(device, JobTypeMap, settings.jobType));
    add("Paper Summary:", stockSummaryText(device, kJobContextJob, &settings.jobStock));
    if (device.hasOption(QStringLiteral("Duplex")))
        add("Two Sided Printing:", textOfValue(device, PlexMap, shownTwoSided(settings)));
    add("Output Color:", valueText(device, "KVColorMode", settings.colorMode));
    if (devices.stapler)
        add("Stapling:", stapleText(settings, device));
    if (devices.holePunch)
        add("Hole Punch:", valueText(device, "KVPunch", settings.finishing.punch));
    add("Output Destination:", valueText(device, "OutputBin", settings.outputBin));
    return lines;
}

QString coversText(const PaperOutputSettings &settings, const Device &device)
{
    const std::optional<Cover> &front = settings.frontCover, &back = settings.backCover;
    // No cover at all is in order.
    if ((front && !reachesDevice(*front)) || (back && !reachesDevice(*back)))
        return device.text("Cover Without Source");
    if (front)
        return device.text(back ? "Front and Back Covers" : "Front Cover Only");
    return device.text(back ? "Back Cover Only" : "No Covers");
}

QString finishingText(const PaperOutputSettings &settings, const Device &device)
{
    const QString summary = CreateFinishingString(settings, device).trimmed();
    const bool hasOther = device.has("BookletFoldKey") || device.has("TapeBindKey");
    return summary.isEmpty() && !hasOther ? device.text("No Finishing Devices") : summary;
}

QString paperText(const PaperOutputSettings &settings, const Device &device)
{
    const QString paper = stockSummaryText(device, kJobContextJob, &settings.jobStock);
    const QString line = separatorSummary(device, settings.separators, settings.separatorStock);
    return settings.jobStock.type() == kStockTypeTransparency && !line.isEmpty()
        ? QStringLiteral("%1\n%2").arg(paper, line)
        : paper;
}

QString separatorsText(const PaperOutputSettings &settings, const Device &device)
{
    return textOfValue(device, SeparatorOptionMap, settings.separators);
}

} // namespace kelvo
