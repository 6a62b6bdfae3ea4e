#include "image_options_pictures.h"

#include "image_options_summary.h"
#include "lighten_darken.h"
#include "offered_choices.h"

namespace kelvo {

QString lightenDarkenPicture(std::int32_t lightenDarken)
{
    const char *step = lightenDarkenKey(lightenDarken);
    return QStringLiteral("ImageOptions_LightenDarken_%1.gif")
        .arg(QLatin1String(step ? step : lightenDarkenKey(0)));
}

QString imageQualityPicture(std::int32_t imageQuality)
{
    switch (imageQuality) {
    case 1:
    case 4:
        return QStringLiteral("ImageOptions_ImgQual_TonerSaver.gif");
    case 2:
    case 5:
        return QStringLiteral("ImageOptions_ImgQual_Standard.gif");
    case 3:
    case 6:
        return QStringLiteral("ImageOptions_ImgQual_Enhanced.gif");
    default:
        return {};
    }
}

QString tonerSaverPicture(std::int32_t tonerSaver)
{
    return tonerSaver == kTonerSaverOn ? QStringLiteral("ImageOptions_TonerSaver_On.gif")
                                       : QStringLiteral("ImageOptions_TonerSaver_Off.gif");
}

QString cmykSourceColorPicture(std::int32_t cmykSourceColor)
{
    return cmykSourceColor >= 1 && cmykSourceColor <= 5
        ? QStringLiteral("ImageOptions_ColorCorrection_CMYKSourceColor.gif")
        : QString();
}

QString outputColorCorrectionPicture(std::int32_t outputColorCorrection)
{
    return outputColorCorrection >= 1 && outputColorCorrection <= 5
        ? QStringLiteral("ImageOptions_ColorCorrection_OutputColor.gif")
        : QString();
}

QString invertImagePicture(const II_Options &invert)
{
    return invert.mirror && !invert.negative ? QStringLiteral("ImageOptions_InvertImage_Mirror.gif")
                                             : QStringLiteral("ImageOptions_InvertImage_Off.gif");
}

ImageOptionsPictures imageOptionsPictures(const ImageOptionsSettings &settings,
                                          const Device &device)
{
    const auto ofChoice = [&device](const char *option, std::int32_t value,
                                    QString (*picture)(std::int32_t)) {
        return isOffered(device.ppd, QString::fromLatin1(option), value) ? picture(value)
                                                                         : QString();
    };
    return {
        .lightenDarken = device.hasOption(QStringLiteral("KVImageQuality"))
            ? lightenDarkenPicture(lightnessStep(settings))
            : QString(),
        .imageQuality = ofChoice("KVOutputMode", settings.imageQuality, imageQualityPicture),
        .tonerSaver = isTonerSaverOffered(settings, device) ? tonerSaverPicture(settings.tonerSaver)
                                                            : QString(),
        .cmykSourceColor =
            ofChoice("KVCMYKColorSpace", settings.cmykSourceColor, cmykSourceColorPicture),
        .outputColorCorrection = ofChoice("KVColorCorrection", settings.outputColorCorrection,
                                          outputColorCorrectionPicture),
        .invert = invertImagePicture(settings.invert),
    };
}

} // namespace kelvo
