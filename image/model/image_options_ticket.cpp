#include "image_options_ticket.h"

#include "lighten_darken.h"
#include "ppd_choices.h"
#include "setting_map.h"

#include <span>

namespace kelvo {

namespace {

struct Setting
{
    const char *option;
    std::int32_t ImageOptionsContext::*value;
};
constexpr Setting lightenDarken[] = {{"KVImageQuality", &ImageOptionsContext::lightenDarken}};
constexpr Setting tonerSaver[] = {{"KVEconomode", &ImageOptionsContext::tonerSaver}};
constexpr Setting qualityAndColor[] = {
    {"KVOutputMode", &ImageOptionsContext::imageQuality},
    {"KVCMYKColorSpace", &ImageOptionsContext::cmykSourceColor},
    {"KVColorCorrection", &ImageOptionsContext::outputColorCorrection},
};

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
        if (!context->ppd || context->ppd->findOption(option))
            PPDSetCurrentChoice(ticket, option,
                                PPDChoiceForTicketValue(option, context->*setting.value));
    }
    return noErr;
}

} // namespace

OSStatus SyncLightenDarkenToUI(ImageOptionsContext *context, PMTicketRef ticket)
{
    if (!context || !ticket)
        return kPMInvalidParameter;
    const QString option = QString::fromLatin1(lightenDarken->option);
    context->keptLightness = PPDCopyCurrentChoice(ticket, option);
    const auto choice = context->keptLightness ? context->keptLightness
                                               : PPDCopyDefaultChoice(context->ppd, option);
    if (choice)
        context->lightenDarken = lightenDarkenStep(*choice);
    return noErr;
}

OSStatus SyncLightenDarkenToTicket(ImageOptionsContext *context, PMTicketRef ticket)
{
    if (!context || !ticket)
        return kPMInvalidParameter;
    if (!context->opened)
        return noErr;
    writeSettings(context, ticket, lightenDarken);
    context->keptLightness =
        PPDCopyCurrentChoice(ticket, QString::fromLatin1(lightenDarken->option));
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
