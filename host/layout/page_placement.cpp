#include "page_placement.h"

#include <algorithm>

namespace kelvo {

namespace {

constexpr double rounding = 1.5; // points that sizes of paper are rounded by

bool isLarger(const QSizeF &page, const QSizeF &place)
{
    return page.width() > place.width() + rounding || page.height() > place.height() + rounding;
}

double fitting(const QSizeF &page, const QSizeF &room)
{
    return std::min(room.width() / page.width(), room.height() / page.height());
}

QRectF centred(const QSizeF &size, const QRectF &room)
{
    QRectF rect(QPointF(), size);
    rect.moveCenter(room.center());
    return rect;
}

// `room` is what of `place` can be printed on.
PagePlacement placeIn(const QRectF &place, const QRectF &room, const QSizeF &page,
                      const PageLayout &layout)
{
    const bool isTurned = liesAcross(page, place.size());
    const QSizeF size = isTurned ? page.transposed() : page;
    PagePlacement placed;
    placed.place = place;
    placed.rotation = isTurned ? 270 : 0;
    bool keepsMargins = false;
    switch (layout.scaling) {
    case PageScaling::Shrink:
        keepsMargins = isLarger(size, place.size());
        if (keepsMargins)
            placed.scale = std::min(1.0, fitting(size, room.size()));
        break;
    case PageScaling::Fit:
        keepsMargins = true;
        placed.scale = fitting(size, room.size());
        break;
    case PageScaling::Fill:
        placed.scale = std::max(place.width() / size.width(), place.height() / size.height());
        break;
    case PageScaling::Percent:
        placed.scale = layout.percent / 100.0;
        break;
    case PageScaling::None:
        break;
    }
    placed.rect = centred(size * placed.scale, keepsMargins ? room : place);
    return placed;
}

// What stays free of margins; margins that leave nothing are none.
QRectF roomOn(const QSizeF &sheet, const QSizeF &margins)
{
    const QRectF room =
        QRectF(QPointF(), sheet)
            .adjusted(margins.width(), margins.height(), -margins.width(), -margins.height());
    return room.isValid() ? room : QRectF(QPointF(), sheet);
}

struct Grid
{
    int columns = 1, rows = 1;
};

struct DividedSheet
{
    QSizeF sheet;
    QRectF room;
    Grid grid;
    QSizeF place() const { return {room.width() / grid.columns, room.height() / grid.rows}; }
};

DividedSheet divided(const QSizeF &shape, const Paper &paper, int pages)
{
    // An even number of both, or as near as it gets.
    int shorter = 1;
    for (int count = 1; count * count <= pages; ++count)
        shorter = pages % count == 0 ? count : shorter;
    const Grid tall{shorter, pages / shorter};
    const Grid wide{tall.rows, tall.columns};
    const QSizeF sheet = paper.size.isEmpty() ? shape : paper.size;
    DividedSheet best;
    double largest = 0;
    for (const bool isTurned : {false, true}) {
        for (const Grid &grid : {tall, wide}) {
            DividedSheet candidate;
            candidate.sheet = isTurned ? sheet.transposed() : sheet;
            candidate.room =
                roomOn(candidate.sheet, isTurned ? paper.margins.transposed() : paper.margins);
            candidate.grid = grid;
            const double scale = fitting(shape, candidate.place());
            // Of two that are as good, the sheet that lies as it is fed.
            if (scale > largest * 1.0001) {
                largest = scale;
                best = candidate;
            }
        }
    }
    return best;
}

// Which column and row has place `index`.
QPoint cellOf(int index, const Grid &grid, PageFlow flow)
{
    const bool isByRows = flow <= PageFlow::RlBt;
    const int along = isByRows ? grid.columns : grid.rows;
    QPoint cell =
        isByRows ? QPoint(index % along, index / along) : QPoint(index / along, index % along);
    const auto isOneOf = [flow](std::initializer_list<PageFlow> flows) {
        return std::ranges::find(flows, flow) != flows.end();
    };
    using enum PageFlow;
    if (isOneOf({RlTb, RlBt, TbRl, BtRl}))
        cell.setX(grid.columns - 1 - cell.x());
    if (isOneOf({LrBt, RlBt, BtLr, BtRl}))
        cell.setY(grid.rows - 1 - cell.y());
    return cell;
}

QRectF upsideDown(const QRectF &rect, const QSizeF &sheet)
{
    return {QPointF(sheet.width() - rect.right(), sheet.height() - rect.bottom()), rect.size()};
}

// `rect` on a sheet as large as `sheet`, after the sheet has been turned.
QRectF turned(const QRectF &rect, const QSizeF &sheet, int rotation)
{
    switch (rotation) {
    case 90:
        return {sheet.height() - rect.bottom(), rect.x(), rect.height(), rect.width()};
    case 180:
        return upsideDown(rect, sheet);
    case 270:
        return {rect.y(), sheet.width() - rect.right(), rect.height(), rect.width()};
    default:
        return rect;
    }
}

} // namespace

bool PagePlacement::isCut() const
{
    return isLarger(rect.size(), place.size());
}

bool SidePlacement::isCut() const
{
    return std::ranges::any_of(pages, &PagePlacement::isCut);
}

QRectF SidePlacement::all() const
{
    QRectF all(QPointF(), sheet);
    if (losesPrint())
        all |= pages.first().rect;
    return all;
}

void SidePlacement::turnOver()
{
    isUpsideDown = !isUpsideDown;
    for (PagePlacement &page : pages) {
        page.place = upsideDown(page.place, sheet);
        if (page.rect.isNull())
            continue;
        page.rect = upsideDown(page.rect, sheet);
        page.rotation = (page.rotation + 180) % 360;
    }
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

bool isSameSize(const QSizeF &page, const QSizeF &paper)
{
    const QSizeF size = liesAcross(page, paper) ? page.transposed() : page;
    return !isLarger(size, paper) && !isLarger(paper, size);
}

SidePlacement placePage(const QSizeF &page, const QSizeF &paper, Orientation orientation)
{
    const bool isLandscape =
        orientation == Orientation::Landscape || orientation == Orientation::ReverseLandscape;
    SidePlacement side;
    if (paper.isEmpty())
        side.sheet = page;
    else
        side.sheet = isLandscape ? paper.transposed() : paper;
    const QRectF sheet(QPointF(), side.sheet);
    side.pages = {placeIn(sheet, sheet, page, {.scaling = PageScaling::None})};
    if (isReverse(orientation))
        side.turnOver();
    return side;
}

SidePlacement placeScaledPage(const QSizeF &page, const Paper &paper, const PageLayout &layout)
{
    SidePlacement side;
    QSizeF margins = paper.margins;
    side.sheet = paper.size.isEmpty() ? page : paper.size;
    if (liesAcross(page, side.sheet)) {
        side.sheet.transpose();
        margins.transpose();
    }
    side.pages = {
        placeIn(QRectF(QPointF(), side.sheet), roomOn(side.sheet, margins), page, layout)};
    return side;
}

SidePlacement placePages(const QList<QSizeF> &pages, const QSizeF &shape, const Paper &paper,
                         const PageLayout &layout)
{
    const DividedSheet sheet = divided(shape, paper, layout.pagesPerSide);
    const QSizeF size = sheet.place();
    SidePlacement side;
    side.sheet = sheet.sheet;
    for (int index = 0; index < layout.pagesPerSide; ++index) {
        const QPoint cell = cellOf(index, sheet.grid, layout.flow);
        const QRectF place(sheet.room.topLeft()
                               + QPointF(cell.x() * size.width(), cell.y() * size.height()),
                           size);
        const QSizeF page = pages.value(index);
        if (page.isEmpty())
            side.pages << PagePlacement{.rect = {}, .place = place};
        else
            side.pages << placeIn(place, place, page, layout);
    }
    return side;
}

SidePlacement placedWithin(const PagePlacement &outer, const SidePlacement &inner)
{
    SidePlacement side = inner;
    for (PagePlacement &page : side.pages) {
        for (QRectF *rect : {&page.rect, &page.place}) {
            if (rect->isNull())
                continue;
            *rect = turned(*rect, inner.sheet, outer.rotation);
            *rect = QRectF(rect->topLeft() * outer.scale + outer.rect.topLeft(),
                           rect->size() * outer.scale);
        }
        page.rotation = (page.rotation + outer.rotation) % 360;
        page.scale *= outer.scale;
    }
    return side;
}

OverlayPlacement placeOverlay(const SidePlacement &side, int index)
{
    if (side.fold.isNull())
        return {{QPointF(), side.sheet}, side.sheet};
    const PagePlacement &page = side.pages[index];
    return {page.rect, page.rect.size() / page.scale};
}

} // namespace kelvo
