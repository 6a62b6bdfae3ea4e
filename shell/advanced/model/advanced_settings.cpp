#include "advanced_settings.h"

#include "ticket_values.h"

namespace kelvo {

namespace {

const QString bookletOrderClient = QStringLiteral("com.kelvo.printingmanager");
constexpr AdvancedChoice choices[] = {kBannerChoice, kOffsetChoice, kFeedEdgeChoice};

QString bookletOrderKey()
{
    return ticketKey("AdvancedBookletLayoutOrderStr");
}

} // namespace

void readAdvanced(AdvancedSettings &settings, const Ticket &printSettings, const Device &device)
{
    settings = {};
    settings.bookletOrder =
        integer32(valueIn(printSettings, bookletOrderKey())).value_or(settings.bookletOrder);
    for (const AdvancedChoice &row : choices)
        PPDGetTicketValueForChoiceOrDefault(
            device.ppd, printSettings, QString::fromLatin1(row.option), &(settings.*row.value));
}

void writeAdvanced(const AdvancedSettings &settings, Ticket &printSettings)
{
    setValue(printSettings, bookletOrderClient, bookletOrderKey(), qint64(settings.bookletOrder));
    for (const AdvancedChoice &row : choices) {
        const QString option = QString::fromLatin1(row.option);
        PPDSetCurrentChoice(printSettings, option,
                            PPDChoiceForTicketValue(option, settings.*row.value));
    }
}

TicketPlaces bookletOrderPlaces()
{
    return {{kPMPrintSettingsTicket, bookletOrderKey()}};
}

} // namespace kelvo
