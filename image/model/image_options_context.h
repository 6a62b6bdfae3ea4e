#pragma once

#include "bundle.h"
#include "invert_image.h"
#include "setting_map.h"

#include <QString>

#include <cstdint>

namespace kelvo {

class PpdFile;

inline constexpr std::int32_t kTonerSaverOn = 1, kTonerSaverOff = 2; // "KVEconomode"

// All that the Image Options panel reads and changes. Numbers are the ticket
// values of the PPD options named beside them; 0 until the first read.
struct ImageOptionsContext
{
    CFBundleRef bundle = nullptr;
    QString title;
    PpdFile *ppd = nullptr; // the current one, from Initialize on
    bool opened = false;    // the controls exist

    std::int32_t lightenDarken = 0; // -5 to 5; kUnset: the printer's default
    // What the ticket says of it and goes on saying while the printer's default is
    // chosen; kUnset: nothing, or what is the default anyway.
    std::int32_t keptLightenDarken = kUnset;
    std::int32_t imageQuality = 0;          // "KVOutputMode"
    std::int32_t tonerSaver = 0;            // "KVEconomode"
    std::int32_t cmykSourceColor = 0;       // "KVCMYKColorSpace"
    std::int32_t outputColorCorrection = 0; // "KVColorCorrection"
    II_Options invert;
};

} // namespace kelvo
