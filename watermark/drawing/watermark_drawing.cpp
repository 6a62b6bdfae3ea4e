#include "watermark_drawing.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace kelvo {

namespace {

enum class Kind { None, Text, Picture };

Kind kindOf(const _WatermarkData &watermark)
{
    if (watermark.textString[0] != '\0')
        return Kind::Text;
    return watermark.filename[0] != '\0' ? Kind::Picture : Kind::None;
}

// Positions are 16.16 numbers, as the records that users have were written. Sums are kept in
// 64 bits: a line of large text is longer than the 32,767 points of 32.
using Fixed = std::int64_t;
constexpr double fixedOne = 65'536;

Fixed fixedFrom(double points)
{
    constexpr double most = 8'388'608; // points: what cairo can place
    return std::isnan(points) ? 0 : static_cast<Fixed>(std::clamp(points, -most, most) * fixedOne);
}

// Where the middle between `from` and `to` lies, moved by `inches`, in single precision.
Fixed movedMiddle(double from, double to, float inches)
{
    const auto middle = static_cast<float>((from + to) / 2);
    const float moved = middle + inches * 72;
    return fixedFrom(std::isnan(moved) ? middle : moved);
}

double colorOf(float value)
{
    return value > 0 ? std::min(double(value), 1.0) : 0.0; // not a number: 0
}

drawing::TextStyle styleOf(const _WatermarkData &watermark)
{
    return {textOf(watermark.fontName), double(watermark.fontSize),
            drawing::Color{colorOf(watermark.wellColorRed), colorOf(watermark.wellColorGreen),
                           colorOf(watermark.wellColorBlue), colorOf(watermark.wellColorAlpha)},
            double(watermark.angle)};
}

void drawText(const drawing::Library &library, drawing::Page &context, const QRectF &page,
              _WatermarkData &watermark)
{
    const QString text = textOf(watermark.textString);
    const drawing::TextStyle style = styleOf(watermark);
    const QRectF ink = library.inkBounds(text, style); // counts downwards
    const Fixed x = movedMiddle(page.left(), page.right(), watermark.xOffset)
        - (fixedFrom(ink.left()) + fixedFrom(ink.right())) / 2;
    const Fixed y = movedMiddle(page.top(), page.bottom(), watermark.yOffset)
        + (fixedFrom(ink.top()) + fixedFrom(ink.bottom())) / 2;
    const QPointF origin(double(x) / fixedOne, double(y) / fixedOne);
    context.drawText(text, style, origin);
    watermark.xPos = origin.x();
    watermark.yPos = origin.y();
}

void drawPicture(drawing::Page &context, const QRectF &page, const _WatermarkData &watermark,
                 const PictureReader &pictures)
{
    const ImportedPicture picture =
        pictures ? pictures(textOf(watermark.filePath)) : ImportedPicture();
    const auto scaled = [&watermark](double length) {
        return static_cast<float>(length) * static_cast<float>(watermark.scale) / 100;
    };
    QRectF placed(0, 0, scaled(picture.naturalSize.width()), scaled(picture.naturalSize.height()));
    placed.moveCenter(page.center());
    context.drawPicture({picture.size, picture.bytes}, placed);
}

} // namespace

void DrawWatermark(const drawing::Library &library, drawing::Page &context, const QRectF &page,
                   _WatermarkData *watermark, const PictureReader &pictures)
{
    if (!watermark)
        return;
    switch (kindOf(*watermark)) {
    case Kind::None:
        break;
    case Kind::Text:
        drawText(library, context, page, *watermark);
        break;
    case Kind::Picture:
        drawPicture(context, page, *watermark, pictures);
        break;
    }
}

double watermarkOpacity(const _WatermarkData &watermark)
{
    return kindOf(watermark) == Kind::Text ? std::clamp(watermark.density / 100.0, 0.0, 1.0) : 1.0;
}

Result<void> drawWatermarkPage(_WatermarkData *watermark, const QSizeF &size,
                               WatermarkGround ground, const PictureReader &pictures,
                               _MemoryConsumer &consumer)
{
    consumer.position = 0;
    const Result<const drawing::Library *> library = drawing::library();
    if (!library)
        return library.error();
    const auto write = [&consumer](const char *bytes, std::size_t count) {
        return MemoryConsumerPutBytes(&consumer, bytes, count) == count;
    };
    Result<std::unique_ptr<drawing::Page>> begun = library.value()->beginPage(size, write);
    if (!begun)
        return begun.error();
    drawing::Page &page = *begun.value();
    if (ground == WatermarkGround::White)
        page.fill({1, 1, 1, 1});
    if (watermark)
        page.setOpacity(watermarkOpacity(*watermark));
    DrawWatermark(*library.value(), page, QRectF(QPointF(), size), watermark, pictures);
    Result<void> finished = page.finish();
    if (!finished)
        consumer.position = 0;
    return finished;
}

bool needsRedraw(const _WatermarkData &last, const _WatermarkData &now)
{
    if (last.angle != now.angle || last.scale != now.scale || last.density != now.density
        || last.xOffset != now.xOffset || last.yOffset != now.yOffset) {
        return true;
    }
    if (kindOf(last) != Kind::Text && kindOf(now) != Kind::Text)
        return false;
    return textOf(last.textString) != textOf(now.textString)
        || textOf(last.fontName) != textOf(now.fontName);
}

} // namespace kelvo
