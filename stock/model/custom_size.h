#pragma once

#include "ppd_file.h"

#include <cstdint>

// The rules of the custom stock size dialog. A stock's width and length are 1/100
// mm; a field holds hundredths of an inch or tenths of a millimetre.
namespace kelvo {

enum class SizeUnit : std::int32_t { Inches = 1, Millimetres = 2 };

// The unit that the dialog showed last, kept while the plug-in is loaded. It
// begins with the locale's.
SizeUnit currentSizeUnit();
void setCurrentSizeUnit(SizeUnit unit);

struct SizeFieldLimits
{
    std::int32_t minWidth = 0, maxWidth = 0, minLength = 0, maxLength = 0; // in the unit

    friend bool operator==(const SizeFieldLimits &, const SizeFieldLimits &) = default;
};
// The device's limits, rounded to the unit. `points` are Device::mediaLimits().
SizeFieldLimits sizeFieldLimits(const CustomPageLimits &points, SizeUnit unit);

// The size that a printer is set to, 1/100 mm; Letter where that is unknown.
struct CustomSize
{
    std::int32_t width = 0, length = 0;

    friend bool operator==(const CustomSize &, const CustomSize &) = default;
};
CustomSize usualSize(const PpdFile *ppd);

// A field's value in the other unit; rounds each time.
std::int32_t convertedField(std::int32_t value, SizeUnit to);
// A field's value for a stored length, and back.
std::int32_t fieldOfLength(std::int32_t hundredthsOfMillimetre, SizeUnit unit);
std::int32_t lengthOfField(std::int32_t value, SizeUnit unit);

inline constexpr int decimalsOf(SizeUnit unit)
{
    return unit == SizeUnit::Inches ? 2 : 1;
}

} // namespace kelvo
