#include "page_placement.h"

#include <algorithm>

namespace kelvo {

bool SidePlacement::isCut() const
{
    constexpr double rounding = 1.5; // points
    return std::ranges::any_of(pages, [this](const PagePlacement &page) {
        return page.rect.width() > sheet.width() + rounding
            || page.rect.height() > sheet.height() + rounding;
    });
}

QRectF SidePlacement::all() const
{
    QRectF all(QPointF(), sheet);
    if (isCut()) {
        for (const PagePlacement &page : pages)
            all |= page.rect;
    }
    return all;
}

bool isReverse(Orientation orientation)
{
    return orientation == Orientation::ReversePortrait
        || orientation == Orientation::ReverseLandscape;
}

bool liesAcross(const QSizeF &page, const QSizeF &place)
{
    const auto isWide = [](const QSizeF &size) { return size.width() > size.height(); };
    return isWide(page) != isWide(place) && page.width() != page.height();
}

SidePlacement placePage(const QSizeF &page, const QSizeF &paper, Orientation orientation)
{
    const bool isLandscape =
        orientation == Orientation::Landscape || orientation == Orientation::ReverseLandscape;

    SidePlacement side;
    side.isUpsideDown = isReverse(orientation);
    if (paper.isEmpty())
        side.sheet = page;
    else
        side.sheet = isLandscape ? paper.transposed() : paper;

    const bool isTurned = liesAcross(page, side.sheet);
    PagePlacement placement;
    placement.rect.setSize(isTurned ? page.transposed() : page);
    placement.rect.moveCenter(QPointF(side.sheet.width() / 2, side.sheet.height() / 2));
    placement.rotation = (isTurned ? 270 : 0) + (side.isUpsideDown ? 180 : 0);
    placement.rotation %= 360;
    side.pages = {placement};
    return side;
}

QRectF placeOfPage(const SidePlacement &side, int index)
{
    QRectF place(QPointF(), side.sheet);
    if (side.fold.isNull())
        return place;
    const bool isFirst = (index == 0) != side.isUpsideDown;
    const bool isStacked = side.fold.dx() > 0;
    if (isStacked)
        place.setHeight(side.sheet.height() / 2);
    else
        place.setWidth(side.sheet.width() / 2);
    if (!isFirst)
        place.translate(isStacked ? 0 : place.width(), isStacked ? place.height() : 0);
    return place;
}

OverlayPlacement placeOverlay(const SidePlacement &side, int index)
{
    if (side.fold.isNull())
        return {{QPointF(), side.sheet}, side.sheet};
    const PagePlacement &page = side.pages[index];
    return {page.rect, page.rect.size() / page.scale};
}

} // namespace kelvo
