#pragma once

#include "watermark_data.h"
#include "watermark_store.h"

#include <cstdint>

// What the watermark editor lets its user do with a record.
namespace kelvo {

inline constexpr std::int32_t kMostFontSize = 1000; // points; the page of an A0 sheet is 3,370 high
inline constexpr std::int32_t kMostAngle = 360;     // degrees either way
inline constexpr std::int32_t kMostDensity = 100;   // percent
inline constexpr std::int32_t kMostScale = 1000;    // percent
inline constexpr std::int32_t kTypicalFontSizes[] = {12, 18,  24,  36,  48,  60, 72,
                                                     96, 120, 144, 180, 216, 288};

// The record as the editor shows it: a text where it has one or no picture (never for a cover
// image), numbers within the limits, colors from 0 to 1. Text and picture both stay.
_WatermarkData readyToEdit(_WatermarkData watermark, bool isCoverImage);
// What of it becomes the user's: a text without picture, or a picture without text.
_WatermarkData edited(_WatermarkData watermark);

// Which fields do something for it; the others are off. A picture is printed upright, in the
// middle of the page and as dense as it is, but a cover image at its density.
struct WatermarkFields
{
    bool kind = false;  // text or picture
    bool text = false;  // text, font, size and colors
    bool place = false; // angle, offsets, dragging
    bool density = false;
    bool picture = false; // file and scale
    friend bool operator==(const WatermarkFields &, const WatermarkFields &) = default;
};
WatermarkFields fieldsFor(const _WatermarkData &watermark, bool isCoverImage);

// ---- offsets, which the record has in inches and the editor shows in tenths of an inch or
// in millimetres

std::int32_t mostOffset(std::int32_t units);                // 20 inches either way
std::int32_t shownOffset(float inches, std::int32_t units); // the nearest within the limits
float offsetOf(std::int32_t shown, std::int32_t units);     // inches
// A length in points as the editor shows it, at a scale in percent.
std::int32_t shownLength(double points, std::int32_t scale, std::int32_t units);
// `offset` moved by points, to the nearest that can be shown.
float movedOffset(float offset, double points, std::int32_t units);
// Moved by tenths of an inch or millimetres.
float nudgedOffset(float offset, std::int32_t steps, std::int32_t units);

// ---- OK

enum class PictureState { None, Reading, Read, Unreadable };

enum class WatermarkProblem {
    None,
    NoText,
    NoPicture,
    PictureIsRead, // still under way
    PictureUnreadable,
    NameReserved,
    NameIsFont,
};
// The first reason why it cannot be kept; `name` is the store's answer for its name.
[[nodiscard]] WatermarkProblem findProblem(const _WatermarkData &watermark, PictureState picture,
                                           NameProblem name);

} // namespace kelvo
