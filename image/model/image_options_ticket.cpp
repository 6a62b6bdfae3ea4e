#include "image_options_ticket.h"

#include "lighten_darken.h"
#include "ppd_choices.h"
#include "setting_map.h"
#include "ticket.h"
#include "ticket_values.h"

#include <span>

namespace kelvo {

namespace {

struct Setting
{
    const char *option;
    std::int32_t ImageOptionsContext::*value;
};
const QString lightnessOption = QStringLiteral("KVImageQuality");
const QString client = QStringLiteral("com.kelvo.print");
constexpr Setting tonerSaver[] = {{"KVEconomode", &ImageOptionsContext::tonerSaver}};
constexpr Setting qualityAndColor[] = {
    {"KVOutputMode", &ImageOptionsContext::imageQuality},
    {"KVCMYKColorSpace", &ImageOptionsContext::cmykSourceColor},
    {"KVColorCorrection", &ImageOptionsContext::outputColorCorrection},
};

bool isWritten(const ImageOptionsContext &context, const QString &option)
{
    return !context.ppd || context.ppd->findOption(option);
}

// A ticket that says nothing of the lightness begins with the PPD's default. That none
// is asked for must be said, or a preset of such a job would ask for one.
QString printerDefaultKey()
{
    return ticketKey("PrinterDefaultLightness");
}

void writePrinterDefault(const ImageOptionsContext &context, PMTicketRef ticket)
{
    if (context.lightenDarken == kUnset && !PPDCopyCurrentChoice(ticket, lightnessOption))
        PMTicketSetCFBoolean(ticket, client, printerDefaultKey(), true);
    else
        PMTicketReleaseItem(ticket, printerDefaultKey());
}

// What of the ticket's lightness is not the panel's own.
std::optional<QString> keptLightness(const ImageOptionsContext &context, PMTicketRef ticket)
{
    const auto choice = PPDCopyCurrentChoice(ticket, lightnessOption);
    return choice == context.writtenLightness ? std::nullopt : choice;
}

OSStatus readSettings(ImageOptionsContext *context, PMTicketRef ticket,
                      std::span<const Setting> settings)
{
    if (!context || !ticket)
        return kPMInvalidParameter;
    for (const Setting &setting : settings)
        PPDGetTicketValueForChoiceOrDefault(
            context->ppd, ticket, QString::fromLatin1(setting.option), &(context->*setting.value));
    return noErr;
}

OSStatus writeSettings(const ImageOptionsContext *context, PMTicketRef ticket,
                       std::span<const Setting> settings)
{
    if (!context || !ticket)
        return kPMInvalidParameter;
    for (const Setting &setting : settings) {
        const QString option = QString::fromLatin1(setting.option);
        if (isWritten(*context, option))
            PPDSetCurrentChoice(ticket, option,
                                PPDChoiceForTicketValue(option, context->*setting.value));
    }
    return noErr;
}

} // namespace

TicketPlaces lightnessPlaces()
{
    return {{kPPDChoices, lightnessOption}, {kPMPrintSettingsTicket, printerDefaultKey()}};
}

OSStatus SyncLightenDarkenToUI(ImageOptionsContext *context, PMTicketRef ticket)
{
    if (!context || !ticket)
        return kPMInvalidParameter;
    context->keptLightness = keptLightness(*context, ticket);
    auto choice = PPDCopyCurrentChoice(ticket, lightnessOption);
    if (!choice && PMTicketGetCFBoolean(ticket, printerDefaultKey()).value_or(false))
        context->lightenDarken = kUnset;
    if (!choice && context->lightenDarken == kUnset)
        return noErr; // a ticket without a choice is what was chosen
    if (!choice)
        choice = PPDCopyDefaultChoice(context->ppd, lightnessOption);
    if (choice)
        context->lightenDarken = lightenDarkenStep(*choice);
    return noErr;
}

OSStatus SyncLightenDarkenToTicket(ImageOptionsContext *context, PMTicketRef ticket)
{
    if (!context || !ticket)
        return kPMInvalidParameter;
    if (!context->opened || !isWritten(*context, lightnessOption)) {
        writePrinterDefault(*context, ticket);
        return noErr;
    }
    if (context->lightenDarken == kUnset) {
        if (PPDCopyCurrentChoice(ticket, lightnessOption) == context->writtenLightness)
            PPDRemoveCurrentChoice(ticket, lightnessOption);
        context->writtenLightness.reset();
    } else {
        context->writtenLightness =
            PPDChoiceForTicketValue(lightnessOption, context->lightenDarken);
        PPDSetCurrentChoice(ticket, lightnessOption, context->writtenLightness);
    }
    writePrinterDefault(*context, ticket);
    context->keptLightness = keptLightness(*context, ticket);
    return noErr;
}

OSStatus SyncTonerSaverToUI(ImageOptionsContext *context, PMTicketRef ticket)
{
    return readSettings(context, ticket, tonerSaver);
}

OSStatus SyncTonerSaverToTicket(const ImageOptionsContext *context, PMTicketRef ticket)
{
    return writeSettings(context, ticket, tonerSaver);
}

OSStatus SyncQualityAndColorToUI(ImageOptionsContext *context, PMTicketRef ticket)
{
    return readSettings(context, ticket, qualityAndColor);
}

OSStatus SyncQualityAndColorToTicket(const ImageOptionsContext *context, PMTicketRef ticket)
{
    return writeSettings(context, ticket, qualityAndColor);
}

OSStatus SyncResolutionToUI(ImageOptionsContext *, PMTicketRef)
{
    return noErr;
}

OSStatus SyncResolutionToTicket(const ImageOptionsContext *, PMTicketRef)
{
    return noErr;
}

} // namespace kelvo
