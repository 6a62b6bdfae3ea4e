#include "separators.h"

#include "ppd_choices.h"
#include "ticket_values.h"

namespace kelvo {

namespace {

const QString printOption = QStringLiteral("KVSlipSheetPrint");
const QString sourceOption = QStringLiteral("KVSlipSheetSource");

} // namespace

OSStatus SyncSeparatorsFromTicket(PMTicketRef ticket, std::int32_t *separators,
                                  Stock *separatorStock)
{
    if (!ticket || !separators || !separatorStock)
        return paramErr;
    PpdFile *ppd = PPDGetCurrent();
    *separators = kSeparatorsNone;
    PPDGetTicketValueForChoiceOrDefault(ppd, ticket, printOption, separators);
    *separatorStock = Stock();
    if (*separators != kSeparatorsNone) {
        std::int32_t source = -1;
        PPDGetTicketValueForChoiceOrDefault(ppd, ticket, sourceOption, &source);
        separatorStock->setSource(source);
    }
    return noErr;
}

OSStatus SyncSeparatorsToTicket(PMTicketRef ticket, std::int32_t separators,
                                const Stock *separatorStock)
{
    if (!ticket || !separatorStock)
        return paramErr;
    PPDSetCurrentChoice(ticket, printOption, PPDChoiceForTicketValue(printOption, separators));
    if (separators != kSeparatorsNone)
        PPDSetCurrentChoice(ticket, sourceOption,
                            PPDChoiceForTicketValue(sourceOption, separatorStock->source()));
    return noErr;
}

QString separatorSummary(CFBundleRef bundle, std::int32_t separators, const Stock &separatorStock)
{
    if (separators != kSeparatorsBlank && separators != kSeparatorsPrinted)
        return QStringLiteral("");
    const QString source =
        PPDCopyTextForTicketValue(PPDGetCurrent(), sourceOption, separatorStock.source())
            .value_or(QString());
    return QStringLiteral("- ") + localizedText(bundle, QStringLiteral("Separators"))
        + localizedText(bundle, QStringLiteral(":")) + source;
}

} // namespace kelvo
