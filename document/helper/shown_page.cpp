#include "shown_page.h"

#include <QRectF>

#include <cmath>

namespace kelvo::documents {

namespace {

// What viewers take for a page without a sensible size of its own.
constexpr QRectF fallbackBox(0, 0, 612, 792); // US Letter

// `box` in whole, or nothing where it is no rectangle with an area.
QRectF rectangle(QPDFObjectHandle box)
{
    if (!box.isRectangle())
        return {};
    const auto corners = box.getArrayAsRectangle();
    return QRectF(QPointF(corners.llx, corners.lly), QPointF(corners.urx, corners.ury))
        .normalized();
}

double number(QPDFObjectHandle object, double otherwise)
{
    return object.isNumber() ? object.getNumericValue() : otherwise;
}

int quarterTurns(double degrees)
{
    const double turns = std::isfinite(degrees) ? std::fmod(degrees, 360) / 90 : 0;
    return turns == std::trunc(turns) ? (static_cast<int>(turns) + 4) % 4 : 0;
}

} // namespace

QSizeF ShownPage::size() const
{
    const QSizeF upright((box.urx - box.llx) * unit, (box.ury - box.lly) * unit);
    return turn % 180 == 0 ? upright : upright.transposed();
}

QPDFMatrix ShownPage::toShown() const
{
    return turnedToOrigin(box, unit, turn);
}

ShownPage shownPage(QPDFPageObjectHelper page)
{
    const QRectF media = rectangle(page.getAttribute("/MediaBox", false));
    const QRectF crop = rectangle(page.getAttribute("/CropBox", false));
    const QRectF both = crop.isEmpty() ? media : media.isEmpty() ? crop : crop & media;
    QRectF shown = both.isEmpty() ? media : both;
    const int turn = 90 * quarterTurns(number(page.getAttribute("/Rotate", false), 0));
    double unit = number(page.getObjectHandle().getKey("/UserUnit"), 1);
    const QSizeF size = shown.size() * unit;
    // Three points are the smallest page that PDF knows; NaN fails both.
    if (!(size.width() >= 3 && size.height() >= 3)
        || !std::isfinite(size.width() * size.height())) {
        shown = fallbackBox;
        unit = 1;
    }
    return {{shown.left(), shown.top(), shown.left() + shown.width(), shown.top() + shown.height()},
            unit,
            turn};
}

QPDFMatrix turnedToOrigin(const QPDFObjectHandle::Rectangle &box, double scale, int turn)
{
    switch (turn) {
    case 90:
        return {0, -scale, scale, 0, -box.lly * scale, box.urx * scale};
    case 180:
        return {-scale, 0, 0, -scale, box.urx * scale, box.ury * scale};
    case 270:
        return {0, scale, -scale, 0, box.ury * scale, -box.llx * scale};
    default:
        return {scale, 0, 0, scale, -box.llx * scale, -box.lly * scale};
    }
}

} // namespace kelvo::documents
