#include "image_options_description.h"

#include "image_options_summary.h"
#include "invert_image.h"
#include "ppd_choices.h"
#include "ticket_values.h"

namespace kelvo {

namespace {

// KPDE numbers of the panel's controls.
constexpr std::int32_t printerDefaultBox = 1109;
constexpr std::int32_t lightenDarkenField = 1104;
constexpr std::int32_t imageQualityPopup = 1202;
constexpr std::int32_t tonerSaverBox = 1302;
constexpr std::int32_t cmykSourceColorPopup = 1902;
constexpr std::int32_t outputColorCorrectionPopup = 2002;
constexpr std::int32_t mirrorBox = 2103;

// No choice of the lightness means the PPD's default, unless the printer's own was asked for.
void describeLightness(const DescribedJob &job, PanelDescription &panel)
{
    constexpr const char *option = "KVImageQuality";
    const QString keyword = QString::fromLatin1(option);
    const bool asksPrinter = !PPDCopyCurrentChoice(job.printSettings, keyword)
        && boolean(valueIn(job.printSettings, ticketKey("PrinterDefaultLightness")))
               .value_or(false);
    panel.leaveUnspoken("PrinterDefaultLightness");
    if (asksPrinter && job.device.hasOption(keyword))
        panel.addOwnChoice(option, "Lighten/Darken:", lightenDarkenText(job.device, kUnset),
                           printerDefaultBox);
    else
        panel.addChoice(option, lightenDarkenField);
}

void describeInvertedImage(const DescribedJob &job, PanelDescription &panel)
{
    II_Options invert;
    InvertImageSetOptionsFromTicket(
        &invert,
        dictionary(valueIn(job.printSettings, ticketKey("InvertImageOptions")))
            .value_or(Dictionary()));
    const auto words = [&](bool isOn, const char *key) {
        return isOn ? labelText(job.device, key) : QString();
    };
    panel.add("InvertImageOptions/MirrorImage", "Invert Image Label",
              words(invert.mirror, "Mirror Image Title"), mirrorBox);
    panel.add("InvertImageOptions/NegativeImage", "Invert Image Label",
              words(invert.negative, "Negative Image Title"), mirrorBox);
}

} // namespace

void describeImageOptions(const DescribedJob &job, JobDescription &description)
{
    PanelDescription panel(job, "ImageOptions", description);
    describeLightness(job, panel);
    panel.addChoice("KVOutputMode", imageQualityPopup);
    panel.addChoice("KVEconomode", tonerSaverBox);
    panel.addChoice("KVCMYKColorSpace", cmykSourceColorPopup);
    panel.addChoice("KVColorCorrection", outputColorCorrectionPopup);
    describeInvertedImage(job, panel);
}

} // namespace kelvo
