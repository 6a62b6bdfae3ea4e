#pragma once

#include "page_layout.h"

#include <QLineF>
#include <QList>
#include <QRectF>
#include <QSizeF>

namespace kelvo {

enum class Orientation : int {
    Portrait = 1,
    Landscape = 2,
    ReversePortrait = 3,
    ReverseLandscape = 4
};

// How a page lies on the sheet as one looks at it. Points, from the sheet's top left.
struct PagePlacement
{
    QRectF rect;       // null: nothing is printed in this place
    int rotation = 0;  // clockwise: 0, 90, 180 or 270
    double scale = 1;  // of the page's own size
    QRectF place = {}; // the part of the sheet that the page has for itself

    bool isCut() const; // by the edge of its place, by more than sizes are rounded by
    friend bool operator==(const PagePlacement &, const PagePlacement &) = default;
};

// One side of a sheet, with the pages that are printed on it.
struct SidePlacement
{
    QSizeF sheet; // turned for landscape
    QList<PagePlacement> pages;
    QLineF fold = {};          // across the sheet; null: it is not folded
    bool isUpsideDown = false; // all of it

    bool isCut() const; // one of its pages
    // A page that has the sheet for itself is cut by it.
    bool losesPrint() const { return pages.size() == 1 && isCut(); }
    QRectF all() const; // the sheet, and what of such a page lies around it
    void turnOver();    // all of it, by half a turn
    friend bool operator==(const SidePlacement &, const SidePlacement &) = default;
};

// Paper as it is fed. Points, upright.
struct Paper
{
    QSizeF size; // empty: each page's own
    // What stays free of print left and right, and at top and bottom.
    QSizeF margins = QSizeF(0, 0);
    friend bool operator==(const Paper &, const Paper &) = default;
};

// One page on a sheet, centred, in its own size, which may be larger. `paper` empty: the sheet
// is the page. A page that is wide on tall paper (or the other way round) is turned a quarter, as
// printers do; reverse orientations turn everything upside down.
SidePlacement placePage(const QSizeF &page, const QSizeF &paper, Orientation orientation);

// A page on a sheet of its own, which is turned as the page is, scaled by `layout`. What is made
// to fit keeps the margins free. `pagesPerSide` does not count.
SidePlacement placeScaledPage(const QSizeF &page, const Paper &paper, const PageLayout &layout);

// Several pages on one side, each scaled by `layout` within its place. The sheet is turned, and
// divided, so that pages of `shape` become largest: one way for all sheets of a job. Pages of
// another shape are turned a quarter where that is theirs. Margins stay free.
SidePlacement placePages(const QList<QSizeF> &pages, const QSizeF &shape, const Paper &paper,
                         const PageLayout &layout); // empty sizes: blank

// What lies on `inner`, as it lies where `outer` has all of that.
SidePlacement placedWithin(const PagePlacement &outer, const SidePlacement &inner);

bool isReverse(Orientation orientation);
// Neither is a square, and one is wide where the other is tall.
bool liesAcross(const QSizeF &page, const QSizeF &place);
// Up to what sizes are rounded by, either way up.
bool isSameSize(const QSizeF &page, const QSizeF &paper);

// Where something is drawn that lies over a page or under it, upright as one looks at the
// side: over the whole sheet, or over each page of a sheet that is folded.
struct OverlayPlacement
{
    QRectF rect; // points, on the sheet
    QSizeF page; // points, what it is drawn for; shrunk to `rect` with its page
    friend bool operator==(const OverlayPlacement &, const OverlayPlacement &) = default;
};
// Over the page in place `index`, where there is one.
OverlayPlacement placeOverlay(const SidePlacement &side, int index);

} // namespace kelvo
