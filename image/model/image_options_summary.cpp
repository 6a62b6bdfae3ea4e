#include "image_options_summary.h"

#include "lighten_darken.h"
#include "mnemonics.h"
#include "offered_choices.h"
#include "ppd_choices.h"
#include "setting_map.h"
#include "string_table.h"

namespace kelvo {

namespace {

const QString lightnessOption = QStringLiteral("KVImageQuality");
const QString tonerSaverOption = QStringLiteral("KVEconomode");

// A choice of the PPD's own is called as the PPD does.
QString choiceText(const Device &device, const QString &choice)
{
    const std::int32_t step = lightenDarkenStep(choice);
    return step == kUnset ? PPDCopyChoiceText(device.ppd, lightnessOption, choice).value_or(choice)
                          : lightenDarkenText(device, step);
}

} // namespace

QString lightenDarkenText(const Device &device, std::int32_t lightenDarken)
{
    const char *step = lightenDarkenKey(lightenDarken);
    return device.text(step ? step : "PrinterDefault");
}

QString lightenDarkenWords(const ImageOptionsSettings &settings, const Device &device)
{
    if (!device.hasOption(lightnessOption))
        return device.text("Not on This Device");
    if (settings.lightenDarken != kUnset)
        return isOffered(device.ppd, lightnessOption, settings.lightenDarken)
            ? lightenDarkenText(device, settings.lightenDarken)
            : device.text("Choice Not Offered");
    // The printer's default is a choice like others, and a job that has one keeps it.
    const auto usual = PPDCopyDefaultChoice(device.ppd, lightnessOption);
    if (settings.keptLightness && settings.keptLightness != usual)
        return formatted(device.text("Kept Lightness Words"),
                         {choiceText(device, *settings.keptLightness)});
    return usual ? formatted(device.text("Printer Default Words"), {choiceText(device, *usual)})
                 : QString();
}

bool choosesLightness(const ImageOptionsSettings &settings, const Device &device)
{
    return settings.lightenDarken != kUnset && device.hasOption(lightnessOption);
}

QString tonerSaverWords(const ImageOptionsSettings &settings, const Device &device)
{
    if (!device.hasOption(tonerSaverOption))
        return device.text("Not on This Device");
    return device.text(isTonerSaverOffered(settings, device) ? "Toner Saver Hint"
                                                             : "Choice Not Offered");
}

bool isTonerSaverOffered(const ImageOptionsSettings &settings, const Device &device)
{
    // 0: neither the ticket nor the PPD has a choice.
    return device.hasOption(tonerSaverOption)
        && (settings.tonerSaver == 0
            || isOffered(device.ppd, tonerSaverOption, settings.tonerSaver));
}

QString invertImageWords(const ImageOptionsSettings &settings, const Device &device)
{
    return device.text(settings.invert.negative ? "Negative Image Hint" : "Mirror Image Hint");
}

std::vector<SummaryLine> imageOptionsSummary(const ImageOptionsSettings &settings,
                                             const Device &device)
{
    std::vector<SummaryLine> lines;
    if (device.hasOption(lightnessOption))
        addSummaryLine(lines, device,
                       "Lighten/Darken:", lightenDarkenText(device, settings.lightenDarken));
    const auto addChoice = [&](const char *labelKey, const char *option, std::int32_t value) {
        const auto text = PPDCopyTextForTicketValue(device.ppd, QString::fromLatin1(option), value);
        addSummaryLine(lines, device, labelKey, text.value_or(QString()));
    };
    addChoice("Image Quality:", "KVOutputMode", settings.imageQuality);
    addChoice("Toner Saver:", "KVEconomode", settings.tonerSaver);
    addChoice("CMYK Source Color:", "KVCMYKColorSpace", settings.cmykSourceColor);
    addChoice("Output Color Correction:", "KVColorCorrection", settings.outputColorCorrection);
    if (settings.invert.mirror)
        addSummaryLine(lines, device, "Invert Image Label",
                       withoutMnemonic(device.text("Mirror Image Title")));
    return lines;
}

} // namespace kelvo
