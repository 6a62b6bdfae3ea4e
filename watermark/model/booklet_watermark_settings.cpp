#include "booklet_watermark_settings.h"

#include "cover.h"
#include "ppd_choices.h"
#include "setting_maps.h"
#include "ticket_values.h"

namespace kelvo {

namespace {

const QString client = QStringLiteral("com.kelvo.print");
const QString duplexOption = QStringLiteral("Duplex");
const QString foldOption = QStringLiteral("KVFold");
const QString duplexingKey = QStringLiteral("com.apple.print.PrintSettings.PMDuplexing");

const QVariant &entry(const Ticket &ticket, const char *name)
{
    return valueIn(ticket, ticketKey(name));
}

void put(Ticket &ticket, const char *name, const QVariant &value)
{
    setValue(ticket, client, ticketKey(name), value);
}

// Sheets are turned over their short edge.
void writeDuplex(Ticket &ticket)
{
    PPDSetCurrentChoice(ticket, duplexOption,
                        PPDChoiceForTicketValue(duplexOption, kPlexDuplexShort));
    put(ticket, "FinishingDuplex", qint64(kPlexDuplexShort));
    setValue(ticket, client, duplexingKey, qint64(kPlexDuplexShort));
}

void writeFold(std::optional<std::int32_t> fold, Ticket &ticket)
{
    // A fold that the keyword map does not have stays in the ticket.
    if (fold && fold != kNoPpdChoice)
        PPDSetCurrentChoice(ticket, foldOption, PPDChoiceForTicketValue(foldOption, *fold));
    const auto stored = integer32(entry(ticket, "FinishingOptions"));
    const std::int32_t before = stored.value_or(kFinishingNone);
    const std::int32_t options = optionsWithFold(before, fold.value_or(kFoldNone));
    if (options != before)
        put(ticket, "FinishingOptions", qint64(options));
}

// One sheet around the booklet is both covers.
void writeCoverOnce(Ticket &ticket)
{
    const auto front = dictionary(entry(ticket, "SpecialPages.FrontCover"));
    const auto back = dictionary(entry(ticket, "SpecialPages.BackCover"));
    if (front && back && Cover(*front) == Cover(*back))
        removeValue(ticket, ticketKey("SpecialPages.BackCover"));
}

} // namespace

bool canLayOutBooklets(const Device &device)
{
    return !device.ppd || device.hasOption(duplexOption);
}

void readBookletWatermark(BookletWatermarkSettings &settings, const Ticket &printSettings,
                          const Device &device, const QStringList &names)
{
    settings.fold.reset();
    if (device.has("BookletFoldKey")) {
        std::int32_t fold = kFoldNone;
        PPDGetTicketValueForChoiceOrDefault(device.ppd, printSettings, foldOption, &fold);
        settings.fold = fold;
    }
    readBooklet(settings.booklet, printSettings);

    const QString wanted = string(entry(printSettings, "watermark.Watermark")).value_or(QString());
    const auto isWanted = [&wanted](const QString &name) {
        return name.compare(wanted, Qt::CaseInsensitive) == 0;
    };
    const auto name = std::ranges::find_if(names, isWanted);
    const bool isHere = name != names.end() && !wanted.isEmpty();
    settings.watermark = isHere ? *name : QString();
    settings.absentWatermark = isHere ? QString() : wanted;
    const auto firstOnly = integer32(entry(printSettings, "watermark.FirstPageOnly"));
    settings.pages = firstOnly.value_or(0) != 0 ? kWatermarkOnPage1 : kWatermarkOnAllPages;
    settings.option = integer32(entry(printSettings, "watermark.Option")).value_or(kWatermarkBlend);
}

void writeBookletWatermark(const BookletWatermarkSettings &settings, Ticket &printSettings,
                           const Device &device)
{
    const bool isBooklet = boolean(entry(printSettings, "BookletLayout")).value_or(false);
    if (canLayOutBooklets(device) || isBooklet) {
        writeBooklet(settings.booklet, printSettings);
        if (settings.booklet.isOn())
            writeDuplex(printSettings);
        writeFold(settings.fold, printSettings);
        writeCoverOnce(printSettings);
    }
    if (settings.watermark.isEmpty())
        removeValue(printSettings, ticketKey("watermark.Watermark"));
    else
        put(printSettings, "watermark.Watermark", settings.watermark);
    put(printSettings, "watermark.Option", qint64(settings.option));
    put(printSettings, "watermark.FirstPageOnly",
        qint64(settings.pages == kWatermarkOnAllPages ? 0 : 1));
}

} // namespace kelvo
