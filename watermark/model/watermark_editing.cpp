#include "watermark_editing.h"

#include <algorithm>
#include <cmath>

namespace kelvo {

namespace {

constexpr double pointsPerInch = 72;
constexpr std::int32_t mostInches = 20; // as wide as the largest sheet, 13 by 19 inches

// What the editor counts in.
double unitsPerInch(std::int32_t units)
{
    return units == kWatermarkMillimetres ? 25.4 : 10;
}

// What is no number is nothing.
float within(float value, float least, float most)
{
    return std::isnan(value) ? 0 : std::clamp(value, least, most);
}

} // namespace

_WatermarkData readyToEdit(_WatermarkData watermark, bool isCoverImage)
{
    const bool hasText = watermark.textString[0] != '\0' || watermark.filename[0] == '\0';
    watermark.isText = hasText && !isCoverImage ? 1 : 0;
    watermark.fontSize = std::clamp(watermark.fontSize, 1, kMostFontSize);
    watermark.density = std::clamp(watermark.density, 0, kMostDensity);
    watermark.scale = std::clamp(watermark.scale, 1, kMostScale);
    if (watermark.units != kWatermarkMillimetres)
        watermark.units = kWatermarkInches;
    for (float *offset : {&watermark.xOffset, &watermark.yOffset})
        *offset = within(*offset, -mostInches, mostInches);
    for (float *color :
         {&watermark.fontColorRed, &watermark.fontColorGreen, &watermark.fontColorBlue,
          &watermark.fontColorAlpha, &watermark.wellColorRed, &watermark.wellColorGreen,
          &watermark.wellColorBlue, &watermark.wellColorAlpha})
        *color = within(*color, 0, 1);
    return watermark;
}

_WatermarkData edited(_WatermarkData watermark)
{
    if (watermark.isText) {
        setText(watermark.filename, {});
        setText(watermark.filePath, {});
    } else {
        setText(watermark.textString, {});
    }
    return watermark;
}

WatermarkFields fieldsFor(const _WatermarkData &watermark, bool isCoverImage)
{
    const bool isText = watermark.isText != 0;
    return {.kind = !isCoverImage,
            .text = isText,
            .place = isText,
            .density = isText || isCoverImage,
            .picture = !isText};
}

std::int32_t mostOffset(std::int32_t units)
{
    return static_cast<std::int32_t>(std::lround(mostInches * unitsPerInch(units)));
}

std::int32_t shownOffset(float inches, std::int32_t units)
{
    const float kept = within(inches, -mostInches, mostInches);
    return static_cast<std::int32_t>(std::lround(double(kept) * unitsPerInch(units)));
}

float offsetOf(std::int32_t shown, std::int32_t units)
{
    return static_cast<float>(shown / unitsPerInch(units));
}

std::int32_t shownLength(double points, std::int32_t scale, std::int32_t units)
{
    return static_cast<std::int32_t>(
        std::lround(points * scale / 100 / pointsPerInch * unitsPerInch(units)));
}

float movedOffset(float offset, double points, std::int32_t units)
{
    const double moved = double(offset) + points / pointsPerInch;
    return offsetOf(shownOffset(static_cast<float>(moved), units), units);
}

float nudgedOffset(float offset, std::int32_t steps, std::int32_t units)
{
    const std::int32_t most = mostOffset(units);
    return offsetOf(std::clamp(shownOffset(offset, units) + steps, -most, most), units);
}

WatermarkProblem findProblem(const _WatermarkData &watermark, PictureState picture,
                             NameProblem name)
{
    if (!watermark.isText) {
        switch (picture) {
        case PictureState::None:
            return WatermarkProblem::NoPicture;
        case PictureState::Reading:
            return WatermarkProblem::PictureIsRead;
        case PictureState::Unreadable:
            return WatermarkProblem::PictureUnreadable;
        case PictureState::Read:
            break;
        }
    }
    switch (name) {
    case NameProblem::None:
        return WatermarkProblem::None;
    case NameProblem::Empty:
        return watermark.isText ? WatermarkProblem::NoText : WatermarkProblem::NoPicture;
    case NameProblem::Reserved:
        return WatermarkProblem::NameReserved;
    case NameProblem::IsFont:
        return WatermarkProblem::NameIsFont;
    }
    return WatermarkProblem::None;
}

} // namespace kelvo
