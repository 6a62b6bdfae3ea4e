#pragma once

#include "image_options_settings.h"

#include <array>
#include <cstdint>

// What the settings make of a page, for an example of it: the direction and a fair measure of
// each, not what a device measures.
namespace kelvo {

struct PrintLook
{
    double saturation = 1; // of colors: 0 is gray, above 1 is stronger than they are
    double gamma = 1;      // above 1: darker, with white and black as they are
    double coverage = 1;   // the share of the toner that reaches the paper, 0 to 1
    int fineness = 0;      // printed dots from edge to edge of a magnifying glass
    bool isNegative = false;
    bool isMirrored = false;

    friend bool operator==(const PrintLook &, const PrintLook &) = default;
};

// The CMYK source color is left out: it touches only what a document says in these colors.
PrintLook printLook(const ImageOptionsSettings &settings, const Device &device);

// What becomes of one of the parts red, green and blue of a color, after its saturation.
std::array<std::uint8_t, 256> toneCurve(const PrintLook &look);

} // namespace kelvo
