#include "booklet_imposition.h"

#include <algorithm>
#include <utility>

namespace kelvo {

namespace {

constexpr int pagesOnSheet = 4;
constexpr double leastRoom = 1; // points: a gutter as wide as the sheet leaves none

bool isWide(const QSizeF &size)
{
    return size.width() > size.height();
}

QRectF transposed(const QRectF &rect)
{
    return {rect.y(), rect.x(), rect.height(), rect.width()};
}

// The page in its half of the sheet, which begins at the fold and is as wide as `half`;
// x runs from the fold outwards, y along it.
PagePlacement placeInHalf(const QSizeF &page, const QSizeF &half, double gutter, double creep)
{
    const QSizeF room(std::max(leastRoom, half.width() - gutter / 2), half.height());
    PagePlacement placement;
    placement.scale = std::min({1.0, room.width() / page.width(), room.height() / page.height()});
    const QSizeF size = page * placement.scale;
    const double fromFold = std::max(0.0, gutter / 2 - creep);
    placement.rect = QRectF(QPointF(fromFold, (half.height() - size.height()) / 2), size);
    return placement;
}

} // namespace

int bookletSheets(int pages)
{
    return pages / pagesOnSheet + (pages % pagesOnSheet != 0);
}

BookletPages bookletPages(int pages, int side, ReadingOrder order)
{
    // Two pages that lie open make one more than all places together; the outer one is
    // last and first, and on backs it is the other way round.
    const int before = side + 1;
    const int after = bookletSheets(pages) * pagesOnSheet - side;
    BookletPages places = side % 2 == 0 ? BookletPages{after, before} : BookletPages{before, after};
    for (int &page : places)
        page = page > pages ? 0 : page;
    if (order == ReadingOrder::RightToLeft)
        std::swap(places[0], places[1]);
    return places;
}

int bookletSideOf(int page, int pages)
{
    const int places = bookletSheets(pages) * pagesOnSheet;
    return page <= places / 2 ? page - 1 : places - page;
}

SidePlacement placeBooklet(const BookletSide &side, const Imposition &imposition,
                           const QSizeF &paper, Orientation orientation)
{
    const bool isStacked = isWide(side.shape);
    QSizeF sheet = imposition.sheet.isEmpty() ? paper : imposition.sheet;
    if (sheet.isEmpty())
        sheet = side.shape;
    if (isWide(sheet) == isStacked)
        sheet.transpose();

    SidePlacement placement;
    placement.sheet = sheet;
    // Reckoned as if the fold ran from top to bottom; where it does not, x and y change
    // their places.
    const QSizeF across = isStacked ? sheet.transposed() : sheet;
    const QSizeF half(across.width() / 2, across.height());
    for (int place = 0; place < 2; ++place) {
        QRectF halfRect(QPointF(place * half.width(), 0), half);
        if (isStacked)
            halfRect = transposed(halfRect);
        const QSizeF &page = side.pages[place];
        if (page.isEmpty()) {
            placement.pages << PagePlacement{.rect = {}, .place = halfRect};
            continue;
        }
        const bool isTurned = liesAcross(page, side.shape);
        const QSizeF size = isTurned ? page.transposed() : page;
        PagePlacement placed = placeInHalf(isStacked ? size.transposed() : size, half,
                                           imposition.gutter, imposition.creep * side.sheet);
        QRectF &rect = placed.rect;
        if (place == 0)
            rect.moveLeft(half.width() - rect.right());
        else
            rect.moveLeft(half.width() + rect.left());
        if (isStacked)
            rect = transposed(rect);
        placed.rotation = isTurned ? 270 : 0;
        placed.place = halfRect;
        placement.pages << placed;
    }
    placement.fold = isStacked ? QLineF(0, sheet.height() / 2, sheet.width(), sheet.height() / 2)
                               : QLineF(sheet.width() / 2, 0, sheet.width() / 2, sheet.height());
    if (isReverse(orientation))
        placement.turnOver();
    return placement;
}

} // namespace kelvo
