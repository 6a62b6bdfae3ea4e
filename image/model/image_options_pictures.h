#pragma once

#include "image_options_settings.h"

#include <QString>

#include <cstdint>

// What each setting does to a page, as a picture of the bundle ("….gif"); empty
// where nothing is drawn.
namespace kelvo {

QString lightenDarkenPicture(std::int32_t lightenDarken); // unset: as 0
QString imageQualityPicture(std::int32_t imageQuality);
QString tonerSaverPicture(std::int32_t tonerSaver);
QString cmykSourceColorPicture(std::int32_t cmykSourceColor);
QString outputColorCorrectionPicture(std::int32_t outputColorCorrection);
// A negative is not drawn: it shows the page as it is.
QString invertImagePicture(const II_Options &invert);

// All of them as the panel shows them: empty for what the device does not offer.
struct ImageOptionsPictures
{
    QString lightenDarken, imageQuality, tonerSaver, cmykSourceColor, outputColorCorrection, invert;
};
ImageOptionsPictures imageOptionsPictures(const ImageOptionsSettings &settings,
                                          const Device &device);

} // namespace kelvo
