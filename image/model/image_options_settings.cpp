#include "image_options_settings.h"

#include "lighten_darken.h"
#include "ppd_choices.h"
#include "setting_map.h"
#include "ticket_values.h"

#include <span>

namespace kelvo {

namespace {

struct Setting
{
    const char *option;
    std::int32_t ImageOptionsSettings::*value;
};
const QString lightnessOption = QStringLiteral("KVImageQuality");
const QString client = QStringLiteral("com.kelvo.print");
constexpr Setting tonerSaver[] = {{"KVEconomode", &ImageOptionsSettings::tonerSaver}};
constexpr Setting qualityAndColor[] = {
    {"KVOutputMode", &ImageOptionsSettings::imageQuality},
    {"KVCMYKColorSpace", &ImageOptionsSettings::cmykSourceColor},
    {"KVColorCorrection", &ImageOptionsSettings::outputColorCorrection},
};

constexpr Setting colorMode[] = {{"KVColorMode", &ImageOptionsSettings::colorMode}};

bool isWritten(const Device &device, const QString &option)
{
    return !device.ppd || device.hasOption(option);
}

// A ticket that says nothing of the lightness begins with the PPD's default. That none
// is asked for must be said, or a preset of such a job would ask for one.
QString printerDefaultKey()
{
    return ticketKey("PrinterDefaultLightness");
}

void writePrinterDefault(const ImageOptionsSettings &settings, Ticket &ticket)
{
    if (settings.lightenDarken == kUnset && !PPDCopyCurrentChoice(ticket, lightnessOption))
        setValue(ticket, client, printerDefaultKey(), true);
    else
        removeValue(ticket, printerDefaultKey());
}

// What of the ticket's lightness is not the panel's own.
std::optional<QString> keptLightness(const ImageOptionsSettings &settings, const Ticket &ticket)
{
    const auto choice = PPDCopyCurrentChoice(ticket, lightnessOption);
    return choice == settings.writtenLightness ? std::nullopt : choice;
}

void readChoices(ImageOptionsSettings &settings, const Ticket &ticket, const Device &device,
                 std::span<const Setting> rows)
{
    for (const Setting &row : rows)
        PPDGetTicketValueForChoiceOrDefault(device.ppd, ticket, QString::fromLatin1(row.option),
                                            &(settings.*row.value));
}

void writeChoices(const ImageOptionsSettings &settings, Ticket &ticket, const Device &device,
                  std::span<const Setting> rows)
{
    for (const Setting &row : rows) {
        const QString option = QString::fromLatin1(row.option);
        if (isWritten(device, option))
            PPDSetCurrentChoice(ticket, option,
                                PPDChoiceForTicketValue(option, settings.*row.value));
    }
}

} // namespace

std::int32_t lightnessStep(const ImageOptionsSettings &settings)
{
    return settings.lightenDarken == kUnset && settings.keptLightness
        ? lightenDarkenStep(*settings.keptLightness)
        : settings.lightenDarken;
}

bool leavesLightnessToPrinter(const ImageOptionsSettings &settings)
{
    return settings.lightenDarken == kUnset && !settings.keptLightness;
}

void setTonerSaver(ImageOptionsSettings &settings, bool isOn)
{
    if (isOn)
        settings.tonerSaver = kTonerSaverOn;
    else if (settings.tonerSaver == kTonerSaverOn)
        settings.tonerSaver = kTonerSaverOff;
}

void readImageOptions(ImageOptionsSettings &settings, const Ticket &printSettings,
                      const Device &device)
{
    SyncLightenDarkenToUI(settings, printSettings, device);
    SyncTonerSaverToUI(settings, printSettings, device);
    SyncResolutionToUI(settings, printSettings);
    readChoices(settings, printSettings, device, qualityAndColor);
    readChoices(settings, printSettings, device, colorMode);
    readInvertImage(settings.invert, printSettings);
}

void writeImageOptions(ImageOptionsSettings &settings, Ticket &printSettings, const Device &device,
                       bool opened)
{
    SyncLightenDarkenToTicket(settings, printSettings, device, opened);
    SyncTonerSaverToTicket(settings, printSettings, device);
    SyncResolutionToTicket(settings, printSettings);
    writeInvertImage(settings.invert, printSettings);
    writeQualityAndColor(settings, printSettings, device);
}

void SyncLightenDarkenToUI(ImageOptionsSettings &settings, const Ticket &printSettings,
                           const Device &device)
{
    settings.keptLightness = keptLightness(settings, printSettings);
    auto choice = PPDCopyCurrentChoice(printSettings, lightnessOption);
    if (!choice && boolean(valueIn(printSettings, printerDefaultKey())).value_or(false))
        settings.lightenDarken = kUnset;
    if (!choice && settings.lightenDarken == kUnset)
        return; // a ticket without a choice is what was chosen
    if (!choice)
        choice = PPDCopyDefaultChoice(device.ppd, lightnessOption);
    if (choice)
        settings.lightenDarken = lightenDarkenStep(*choice);
}

void SyncLightenDarkenToTicket(ImageOptionsSettings &settings, Ticket &printSettings,
                               const Device &device, bool opened)
{
    if (!opened || !isWritten(device, lightnessOption)) {
        writePrinterDefault(settings, printSettings);
        return;
    }
    if (settings.lightenDarken == kUnset) {
        if (PPDCopyCurrentChoice(printSettings, lightnessOption) == settings.writtenLightness)
            PPDRemoveCurrentChoice(printSettings, lightnessOption);
        settings.writtenLightness.reset();
    } else {
        settings.writtenLightness =
            PPDChoiceForTicketValue(lightnessOption, settings.lightenDarken);
        PPDSetCurrentChoice(printSettings, lightnessOption, settings.writtenLightness);
    }
    writePrinterDefault(settings, printSettings);
    settings.keptLightness = keptLightness(settings, printSettings);
}

void SyncTonerSaverToUI(ImageOptionsSettings &settings, const Ticket &printSettings,
                        const Device &device)
{
    readChoices(settings, printSettings, device, tonerSaver);
}

void SyncTonerSaverToTicket(const ImageOptionsSettings &settings, Ticket &printSettings,
                            const Device &device)
{
    writeChoices(settings, printSettings, device, tonerSaver);
}

OSStatus SyncResolutionToUI(ImageOptionsSettings &, const Ticket &)
{
    return noErr;
}

OSStatus SyncResolutionToTicket(const ImageOptionsSettings &, Ticket &)
{
    return noErr;
}

void writeQualityAndColor(const ImageOptionsSettings &settings, Ticket &printSettings,
                          const Device &device)
{
    writeChoices(settings, printSettings, device, qualityAndColor);
}

TicketPlaces lightnessPlaces()
{
    return {{kPPDChoices, lightnessOption}, {kPMPrintSettingsTicket, printerDefaultKey()}};
}

TicketPlaces tonerSaverPlaces()
{
    return {{kPPDChoices, QString::fromLatin1(tonerSaver[0].option)}};
}

TicketPlaces mirrorPlaces()
{
    return {{kPMPrintSettingsTicket, invertImageKey(), QStringLiteral("MirrorImage")}};
}

} // namespace kelvo
