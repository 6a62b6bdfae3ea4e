#pragma once

#include "bundle.h"
#include "invert_image.h"

#include <QString>

#include <cstdint>
#include <optional>

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
    bool opened = false;    // Open was called

    std::int32_t lightenDarken = 0; // -5 to 5; kUnset: the printer's default
    // The choice that the panel wrote for it last; it is taken back where the printer's
    // default is chosen and the ticket still has it.
    std::optional<QString> writtenLightness;
    // Any other choice of the ticket, which stays.
    std::optional<QString> keptLightness;
    std::int32_t imageQuality = 0;          // "KVOutputMode"
    std::int32_t tonerSaver = 0;            // "KVEconomode"; -1 for a choice of its own
    std::int32_t cmykSourceColor = 0;       // "KVCMYKColorSpace"
    std::int32_t outputColorCorrection = 0; // "KVColorCorrection"
    II_Options invert;
};

} // namespace kelvo
