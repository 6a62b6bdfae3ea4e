#include "image_options_description.h"

#include "image_options_controls.h"
#include "image_options_summary.h"

namespace kelvo {

namespace {

// No choice of the lightness means the PPD's default, unless the printer's own was asked for.
void describeLightness(const ImageOptionsSettings &settings, const Device &device,
                       PanelDescription &panel)
{
    constexpr const char *option = "KVImageQuality";
    panel.leaveUnspoken("PrinterDefaultLightness");
    if (leavesLightnessToPrinter(settings) && device.hasOption(QString::fromLatin1(option)))
        panel.addOwnChoice(option,
                           "Lighten/Darken:", lightenDarkenText(device, settings.lightenDarken),
                           kPrinterDefaultBox);
    else
        panel.addChoice(option, kLightenDarkenField);
}

void describeInvertedImage(const II_Options &invert, const Device &device, PanelDescription &panel)
{
    const auto words = [&device](bool isOn, const char *key) {
        return isOn ? labelText(device, key) : QString();
    };
    panel.add("InvertImageOptions/MirrorImage", "Invert Image Label",
              words(invert.mirror, "Mirror Image Title"), kMirrorBox);
    panel.add("InvertImageOptions/NegativeImage", "Invert Image Label",
              words(invert.negative, "Negative Image Title"), kMirrorBox);
}

} // namespace

void describeImageOptions(const DescribedJob &job, JobDescription &description)
{
    ImageOptionsSettings settings;
    readImageOptions(settings, job.printSettings, job.device);
    PanelDescription panel(job, "ImageOptions", description);
    describeLightness(settings, job.device, panel);
    panel.addChoice("KVOutputMode", kImageQualityPopup);
    panel.addChoice("KVEconomode", kTonerSaverBox);
    panel.addChoice("KVCMYKColorSpace", kCmykSourceColorPopup);
    panel.addChoice("KVColorCorrection", kOutputColorCorrectionPopup);
    describeInvertedImage(settings.invert, job.device, panel);
}

} // namespace kelvo
