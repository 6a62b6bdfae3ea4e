#include "image_options_description.h"

#include "image_options_controls.h"
#include "image_options_summary.h"
#include "invert_image.h"
#include "ppd_choices.h"
#include "ticket_values.h"

namespace kelvo {

namespace {

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
                           kPrinterDefaultBox);
    else
        panel.addChoice(option, kLightenDarkenField);
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
              words(invert.mirror, "Mirror Image Title"), kMirrorBox);
    panel.add("InvertImageOptions/NegativeImage", "Invert Image Label",
              words(invert.negative, "Negative Image Title"), kMirrorBox);
}

} // namespace

void describeImageOptions(const DescribedJob &job, JobDescription &description)
{
    PanelDescription panel(job, "ImageOptions", description);
    describeLightness(job, panel);
    panel.addChoice("KVOutputMode", kImageQualityPopup);
    panel.addChoice("KVEconomode", kTonerSaverBox);
    panel.addChoice("KVCMYKColorSpace", kCmykSourceColorPopup);
    panel.addChoice("KVColorCorrection", kOutputColorCorrectionPopup);
    describeInvertedImage(job, panel);
}

} // namespace kelvo
