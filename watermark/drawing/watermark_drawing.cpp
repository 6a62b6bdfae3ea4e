#include "watermark_drawing.h"

#include "fixed_point.h"
#include "page_writing.h"

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
    const QPointF origin(pointsFrom(x), pointsFrom(y));
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
    return writePage(size, consumer, [&](const drawing::Library &library, drawing::Page &page) {
        if (ground == WatermarkGround::White)
            page.fill({1, 1, 1, 1});
        if (watermark)
            page.setOpacity(watermarkOpacity(*watermark));
        DrawWatermark(library, page, QRectF(QPointF(), size), watermark, pictures);
    });
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
