#pragma once

#include "job_settings.h"

#include <QRectF>
#include <QSizeF>

namespace kelvo {

// How a page of the document lies on the sheet as one looks at it. Points, from
// the sheet's top left. In its own size, because jobs are not scaled: a device may fit
// pages all the same, but showing them fitted would hide what others cut off.
struct PagePlacement
{
    QSizeF sheet;       // turned for landscape
    QRectF page;        // centred on the sheet, in its own size, which may be larger
    int rotation = 0;   // of the page, clockwise: 0, 90, 180 or 270
    bool isCut() const; // by more than what sizes are rounded by
    QRectF all() const; // the sheet, and what of a cut page lies around it
    friend bool operator==(const PagePlacement &, const PagePlacement &) = default;
};

// `paper` empty: the sheet is the page. A page that is wide on tall paper (or
// the other way round) is turned a quarter, as printers do; reverse orientations
// turn everything upside down.
PagePlacement placePage(const QSizeF &page, const QSizeF &paper, Orientation orientation);

} // namespace kelvo
