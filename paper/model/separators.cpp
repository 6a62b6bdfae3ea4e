#include "separators.h"

#include "offered_choices.h"
#include "ppd_choices.h"
#include "print_session.h"
#include "setting_maps.h"

namespace kelvo {

namespace {

const QString sourceOption = QStringLiteral("KVSlipSheetSource");

} // namespace

void readSeparators(std::int32_t &separators, Stock &separatorStock, const Ticket &printSettings,
                    const Device &device)
{
    separators = kSeparatorsNone;
    PPDGetTicketValueForChoiceOrDefault(device.ppd, printSettings, kSeparatorsOption, &separators);
    separatorStock = Stock();
    if (separators != kSeparatorsNone) {
        std::int32_t source = kNoPpdChoice;
        PPDGetTicketValueForChoiceOrDefault(device.ppd, printSettings, sourceOption, &source);
        separatorStock.setSource(source);
    }
}

void writeSeparators(std::int32_t separators, const Stock &separatorStock, Ticket &printSettings)
{
    PPDSetCurrentChoice(printSettings, kSeparatorsOption,
                        PPDChoiceForTicketValue(kSeparatorsOption, separators));
    if (separators != kSeparatorsNone)
        PPDSetCurrentChoice(printSettings, sourceOption,
                            PPDChoiceForTicketValue(sourceOption, separatorStock.source()));
}

OSStatus SyncSeparatorsFromTicket(PMTicketRef ticket, std::int32_t *separators,
                                  Stock *separatorStock)
{
    const Ticket *printSettings = findTicket(ticket);
    if (!printSettings || !separators || !separatorStock)
        return paramErr;
    readSeparators(*separators, *separatorStock, *printSettings, currentDevice());
    return noErr;
}

OSStatus SyncSeparatorsToTicket(PMTicketRef ticket, std::int32_t separators,
                                const Stock *separatorStock)
{
    Ticket *printSettings = findTicket(ticket);
    if (!printSettings || !separatorStock)
        return paramErr;
    writeSeparators(separators, *separatorStock, *printSettings);
    return noErr;
}

Menu separatorsMenu(const Device &device, OSType command)
{
    Menu menu;
    if (device.hasOption(kSeparatorsOption))
        PopulateMenuWithOfferedChoices(menu, device.ppd, kSeparatorsOption, command);
    for (MenuItem &item : menu.items) {
        const QString name = textOfValue(device, SeparatorOptionMap, item.reference);
        if (!name.isEmpty())
            item.text = name;
    }
    return menu;
}

QString separatorSummary(const Device &device, std::int32_t separators, const Stock &separatorStock)
{
    if (separators != kSeparatorsBlank && separators != kSeparatorsPrinted)
        return QStringLiteral("");
    const QString source =
        PPDCopyTextForTicketValue(device.ppd, sourceOption, separatorStock.source())
            .value_or(QString());
    return QStringLiteral("- ") + device.text("Separators") + device.text(":") + source;
}

} // namespace kelvo
