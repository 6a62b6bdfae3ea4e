#include "page_placement.h"

namespace kelvo {

namespace {

bool isWide(const QSizeF &size)
{
    return size.width() > size.height();
}

} // namespace

bool PagePlacement::isCut() const
{
    constexpr double rounding = 1.5; // points
    return page.width() > sheet.width() + rounding || page.height() > sheet.height() + rounding;
}

QRectF PagePlacement::all() const
{
    const QRectF whole(QPointF(), sheet);
    return isCut() ? whole | page : whole;
}

PagePlacement placePage(const QSizeF &page, const QSizeF &paper, Orientation orientation)
{
    const bool isLandscape =
        orientation == Orientation::Landscape || orientation == Orientation::ReverseLandscape;
    const bool isReverse =
        orientation == Orientation::ReversePortrait || orientation == Orientation::ReverseLandscape;

    PagePlacement placement;
    if (paper.isEmpty())
        placement.sheet = page;
    else
        placement.sheet = isLandscape ? paper.transposed() : paper;

    const bool isTurned = isWide(page) != isWide(placement.sheet) && page.width() != page.height();
    placement.page.setSize(isTurned ? page.transposed() : page);
    placement.page.moveCenter(QPointF(placement.sheet.width() / 2, placement.sheet.height() / 2));
    placement.rotation = (isTurned ? 270 : 0) + (isReverse ? 180 : 0);
    placement.rotation %= 360;
    return placement;
}

} // namespace kelvo
