#include "printed_example.h"

#include "pictures.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>

namespace kelvo {

namespace {

struct ExamplePage
{
    const char *picture; // of the bundle
    QSizeF size;         // that it is drawn for
    QPointF glass;       // the middle of the glass
};
constexpr ExamplePage wide{"ImageOptions_Example_Wide.gif", {300, 188}, {143, 47}};
constexpr ExamplePage tall{"ImageOptions_Example_Tall.gif", {200, 284}, {152, 103}};
constexpr double glassRadius = 25; // as the pages are drawn
constexpr double glassPower = 2.2; // times

QSizeF sizeIn(const QSizeF &room, const ExamplePage &page)
{
    return page.size.scaled(room, Qt::KeepAspectRatio);
}

const ExamplePage &pageFor(const QSizeF &room)
{
    const auto area = [](const QSizeF &size) { return size.width() * size.height(); };
    return area(sizeIn(room, wide)) >= area(sizeIn(room, tall)) ? wide : tall;
}

void print(QImage &image, const PrintLook &look)
{
    const std::array<std::uint8_t, 256> curve = toneCurve(look);
    constexpr int whole = 256;
    const int share = static_cast<int>(std::lround(look.saturation * whole));
    const auto part = [&](int gray, int value) {
        return curve[std::clamp(gray + share * (value - gray) / whole, 0, 255)];
    };
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (QRgb *pixel = line; pixel != line + image.width(); ++pixel) {
            const int gray = qGray(*pixel);
            *pixel = qRgb(part(gray, qRed(*pixel)), part(gray, qGreen(*pixel)),
                          part(gray, qBlue(*pixel)));
        }
    }
}

// What the glass shows: each dot is a pixel.
QImage magnifiedDots(const QString &file, const ExamplePage &page, const PrintLook &look)
{
    const double radius = glassRadius / glassPower;
    const QRectF seen((page.glass.x() - radius) / page.size.width(),
                      (page.glass.y() - radius) / page.size.height(),
                      2 * radius / page.size.width(), 2 * radius / page.size.height());
    return drawnPart(file, seen, {look.fineness, look.fineness}, Edges::Hard);
}

void drawGlass(QImage &image, const ExamplePage &page, QPointF middle, const QImage &dots)
{
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(image.width() / page.size.width(), image.height() / page.size.height());
    QRectF glass(0, 0, 2 * glassRadius, 2 * glassRadius);
    glass.moveCenter(middle);
    QPainterPath round;
    round.addEllipse(glass);
    painter.setClipPath(round);
    painter.drawImage(glass, dots);
    painter.setClipping(false);

    const double slope = glassRadius * 0.71; // of the handle, down and to the right
    const QLineF handle(middle + QPointF(slope, slope), middle + QPointF(slope, slope) * 1.65);
    const auto draw = [&](const QColor &color, double ring, double grip) {
        painter.setPen(QPen(color, grip, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(handle);
        painter.setPen(QPen(color, ring));
        painter.drawEllipse(glass);
    };
    draw(Qt::white, 4.5, 7);
    draw(QColor(68, 68, 68), 2.5, 5); // no color: pages without one have none
}

QImage printedPage(const QString &file, const ExamplePage &page, const PrintLook &look,
                   const QSize &pixels)
{
    QImage image = drawnPart(file, {0, 0, 1, 1}, pixels);
    QImage dots = magnifiedDots(file, page, look);
    QPointF middle = page.glass;
    if (look.isMirrored) {
        image = image.mirrored(true, false);
        dots = dots.mirrored(true, false);
        middle.setX(page.size.width() - middle.x());
    }
    print(image, look);
    print(dots, look);
    drawGlass(image, page, middle, dots);
    return image;
}

} // namespace

QSizeF printedExampleSize(const QSizeF &room)
{
    return sizeIn(room, pageFor(room));
}

void drawPrintedExample(QPainter &painter, const QSizeF &room, CFBundleRef bundle,
                        const PrintLook &look)
{
    constexpr double edge = 1; // around the paper, which is white in any theme
    const QSizeF inner = room - QSizeF(2 * edge, 2 * edge);
    if (inner.isEmpty() || !bundle)
        return;
    const ExamplePage &page = pageFor(inner);
    const QSize size = sizeIn(inner, page).toSize();
    const QPoint corner(static_cast<int>((room.width() - size.width()) / 2),
                        static_cast<int>(edge));
    const QString file = pictureFile(bundle->resourcesPath(), QString::fromLatin1(page.picture));
    const double ratio = painter.device()->devicePixelRatioF();
    const QRect paper(corner, size);
    painter.drawImage(paper, printedPage(file, page, look, size * ratio));
    painter.setPen(QColor(0, 0, 0, 60));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(paper).adjusted(-0.5, -0.5, 0.5, 0.5));
}

} // namespace kelvo
