#pragma once

#include "values.h"

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <cstdint>

// The watermark: a text or a picture that is printed on the pages of a job.
namespace kelvo {

inline constexpr std::size_t kWatermarkText = 512;  // bytes of each text, the NUL included
inline constexpr std::size_t kWatermarkPath = 8192; // of the picture's path

// A plain record, copied by value; all zero is an empty one. Texts are UTF-8 and end with
// a NUL: fill them by setText().
struct _WatermarkData // NOLINT(bugprone-reserved-identifier): the record's own name
{
    char textString[kWatermarkText] = {}; // empty for a picture
    char filename[kWatermarkText] = {};   // of the picture, without its folders; empty for a text
    char filePath[kWatermarkPath] = {};   // of the picture, absolute
    char fontName[kWatermarkText] = {};   // PostScript name
    float xOffset = 0, yOffset = 0;       // inches from the page's centre, to the right and up
    float fontColorRed = 0, fontColorGreen = 0, fontColorBlue = 0, fontColorAlpha = 0; // 0 to 1
    float wellColorRed = 0, wellColorGreen = 0, wellColorBlue = 0, wellColorAlpha = 0; // this one
                                                                                       // draws
    std::int32_t angle = 0;                 // degrees, counter-clockwise
    std::int32_t density = 0;               // percent
    std::int32_t scale = 0;                 // of a picture, percent; 100: a pixel is a point
    std::int32_t units = 0;                 // that the editor shows: WatermarkUnits
    std::int32_t fontSize = 0;              // points
    std::int32_t isText = 0;                // 1 for a text, 0 for a picture; not stored
    double paperHeight = 0, paperWidth = 0; // points, of the editor's paper; not stored
    double xPos = 0, yPos = 0;              // points: where the text's origin was drawn last
};

enum WatermarkUnits : std::int32_t { kWatermarkInches = 0, kWatermarkMillimetres = 1 };

// Copies `text`, cut to what the field holds and never within a character.
template <std::size_t Size>
void setText(char (&field)[Size], const QString &text);
// Up to the NUL, or to the field's end.
template <std::size_t Size>
QString textOf(const char (&field)[Size]);

// Under which it is stored, and what menus show: the text of a text, the file name of a
// picture.
QString watermarkName(const _WatermarkData &watermark);

// What the editor begins a new one with: font, size, colors, angle, density and scale.
_WatermarkData newWatermark(WatermarkUnits units = kWatermarkInches);

// What the store keeps of it: all but isText and the paper.
Dictionary asDictionary(const _WatermarkData &watermark);
// Copies what is there; fields of missing keys stay. A text that does not fit, or is none,
// clears its field.
void takeDictionary(_WatermarkData &watermark, const Dictionary &dictionary);

// ---- setText, textOf

// `text` in UTF-8, at most `size` bytes, without half a character.
QByteArray utf8Within(const QString &text, std::size_t size);

template <std::size_t Size>
void setText(char (&field)[Size], const QString &text)
{
    const QByteArray bytes = utf8Within(text, Size - 1);
    std::fill(std::copy(bytes.begin(), bytes.end(), field), field + Size, '\0');
}

template <std::size_t Size>
QString textOf(const char (&field)[Size])
{
    return QString::fromUtf8(field, qstrnlen(field, Size));
}

} // namespace kelvo
