#pragma once

#include <QString>

#include <cstdint>

// How much lighter or darker pages are printed: steps from -5 (lightest) to 5.
namespace kelvo {

inline constexpr std::int32_t kLightest = -5;
inline constexpr std::int32_t kDarkest = 5;

struct LightenDarkenStep
{
    const char *localizedKey; // in "Localizable"; null in the last row
    std::int32_t value;       // as tickets hold it
};

extern const LightenDarkenStep LightenDarkenMap[];

// The step that a choice of "KVImageQuality" stands for; kUnset for what is none: the
// keyword map gives such choices the number of "Lighten 1", and they would be written
// back as that.
std::int32_t lightenDarkenStep(const QString &choice);

// The key of a step; null for what is none.
const char *lightenDarkenKey(std::int32_t value);

} // namespace kelvo
