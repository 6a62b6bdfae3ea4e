#include "image_options_summary.h"

#include "lighten_darken.h"
#include "offered_choices.h"
#include "ppd_choices.h"
#include "string_table.h"
#include "ticket_values.h"

namespace kelvo {

namespace {

const QString lightnessOption = QStringLiteral("KVImageQuality");

// A choice of the PPD's own is called as the PPD does.
QString choiceText(const ImageOptionsContext &context, const QString &choice)
{
    const std::int32_t step = lightenDarkenStep(choice);
    return step == kUnset ? PPDCopyChoiceText(context.ppd, lightnessOption, choice).value_or(choice)
                          : lightenDarkenText(context.bundle, step);
}

} // namespace

QString lightenDarkenText(CFBundleRef bundle, std::int32_t lightenDarken)
{
    const char *step = lightenDarkenKey(lightenDarken);
    return localizedText(bundle, QString::fromLatin1(step ? step : "PrinterDefault"));
}

QString lightenDarkenWords(const ImageOptionsContext &context)
{
    const CFBundleRef bundle = context.bundle;
    if (!context.ppd || !context.ppd->findOption(lightnessOption))
        return localizedText(bundle, QStringLiteral("Not on This Device"));
    if (context.lightenDarken != kUnset)
        return isOffered(context.ppd, lightnessOption, context.lightenDarken)
            ? lightenDarkenText(bundle, context.lightenDarken)
            : localizedText(bundle, QStringLiteral("Choice Not Offered"));
    // The printer's default is a choice like others, and a job that has one keeps it.
    const auto usual = PPDCopyDefaultChoice(context.ppd, lightnessOption);
    if (context.keptLightness && context.keptLightness != usual)
        return formatted(localizedText(bundle, QStringLiteral("Kept Lightness Words")),
                         {choiceText(context, *context.keptLightness)});
    return usual ? formatted(localizedText(bundle, QStringLiteral("Printer Default Words")),
                             {choiceText(context, *usual)})
                 : QString();
}

bool isTonerSaverOffered(const ImageOptionsContext &context)
{
    const QString option = QStringLiteral("KVEconomode");
    if (!context.ppd || !context.ppd->findOption(option))
        return false;
    // 0: neither the ticket nor the PPD has a choice.
    return context.tonerSaver == 0 || isOffered(context.ppd, option, context.tonerSaver);
}

std::vector<SummaryLine> imageOptionsSummary(const ImageOptionsContext &context)
{
    const CFBundleRef bundle = context.bundle;
    std::vector<SummaryLine> lines;
    if (context.ppd && context.ppd->findOption(lightnessOption))
        addSummaryLine(lines, bundle,
                       "Lighten/Darken:", lightenDarkenText(bundle, context.lightenDarken));
    const auto addChoice = [&](const char *labelKey, const char *option, std::int32_t value) {
        const auto text =
            PPDCopyTextForTicketValue(context.ppd, QString::fromLatin1(option), value);
        addSummaryLine(lines, bundle, labelKey, text.value_or(QString()));
    };
    addChoice("Image Quality:", "KVOutputMode", context.imageQuality);
    addChoice("Toner Saver:", "KVEconomode", context.tonerSaver);
    addChoice("CMYK Source Color:", "KVCMYKColorSpace", context.cmykSourceColor);
    addChoice("Output Color Correction:", "KVColorCorrection", context.outputColorCorrection);
    if (context.invert.mirror)
        addSummaryLine(lines, bundle, "Invert Image Label",
                       localizedText(bundle, QStringLiteral("Mirror Image Title")).remove(u'&'));
    return lines;
}

} // namespace kelvo
