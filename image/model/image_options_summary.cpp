#include "image_options_summary.h"

#include "lighten_darken.h"
#include "ppd_choices.h"
#include "ticket_values.h"

namespace kelvo {

QString lightenDarkenText(CFBundleRef bundle, std::int32_t lightenDarken)
{
    const char *step = lightenDarkenKey(lightenDarken);
    return localizedText(bundle, QString::fromLatin1(step ? step : "PrinterDefault"));
}

std::vector<SummaryLine> imageOptionsSummary(const ImageOptionsContext &context)
{
    const CFBundleRef bundle = context.bundle;
    std::vector<SummaryLine> lines;
    if (context.ppd && context.ppd->findOption(QStringLiteral("KVImageQuality")))
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
