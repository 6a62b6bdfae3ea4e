#pragma once

#include "job_settings.h"

#include <QLineF>
#include <QList>
#include <QRectF>
#include <QSizeF>

namespace kelvo {

// How a page of the document lies on the sheet as one looks at it. Points, from
// the sheet's top left.
struct PagePlacement
{
    QRectF rect;      // null: nothing is printed in this place
    int rotation = 0; // clockwise: 0, 90, 180 or 270
    double scale = 1; // of the page's own size, at most 1
    friend bool operator==(const PagePlacement &, const PagePlacement &) = default;
};

// One side of a sheet, with the pages that are printed on it.
struct SidePlacement
{
    QSizeF sheet; // turned for landscape
    QList<PagePlacement> pages;
    QLineF fold;               // across the sheet; null: it is not folded
    bool isUpsideDown = false; // all of it

    bool isCut() const; // a page by the sheet's edge, by more than what sizes are rounded by
    QRectF all() const; // the sheet, and what of a cut page lies around it
    friend bool operator==(const SidePlacement &, const SidePlacement &) = default;
};

// One page on a sheet, centred, in its own size, which may be larger: jobs are not scaled.
// A device may fit pages all the same, but showing them fitted would hide what others cut
// off. `paper` empty: the sheet is the page. A page that is wide on tall paper (or the other
// way round) is turned a quarter, as printers do; reverse orientations turn everything
// upside down.
SidePlacement placePage(const QSizeF &page, const QSizeF &paper, Orientation orientation);

// The part of the sheet that page `index` has for itself: all of it, or its side of the fold.
QRectF placeOfPage(const SidePlacement &side, int index);

bool isReverse(Orientation orientation);
// Neither is a square, and one is wide where the other is tall.
bool liesAcross(const QSizeF &page, const QSizeF &place);

// Where something is drawn that lies over a page or under it, upright as one looks at the
// side: over the whole sheet, or over each page of a sheet that is made of smaller pages.
struct OverlayPlacement
{
    QRectF rect; // points, on the sheet
    QSizeF page; // points, what it is drawn for; shrunk to `rect` with its page
    friend bool operator==(const OverlayPlacement &, const OverlayPlacement &) = default;
};
// Over the page in place `index`, where there is one.
OverlayPlacement placeOverlay(const SidePlacement &side, int index);

} // namespace kelvo
