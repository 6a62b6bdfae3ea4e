#pragma once

#include "job_settings.h"
#include "sheet_sequence.h"

#include <QRectF>
#include <QSizeF>
#include <QString>

// What the preview shows, as rules without a window.
namespace kelvo {

// How a page of the document lies on the sheet as one looks at it. Points, from
// the sheet's top left.
struct PagePlacement
{
    QSizeF sheet;       // turned for landscape
    QRectF page;        // centred on the sheet, in its own size, which may be larger
    int rotation = 0;   // of the page, clockwise: 0, 90, 180 or 270
    bool isCut() const; // by more than what sizes are rounded by
    friend bool operator==(const PagePlacement &, const PagePlacement &) = default;
};

// `paper` empty: the sheet is the page. A page that is wide on tall paper (or
// the other way round) is turned a quarter, as printers do; reverse orientations
// turn everything upside down.
PagePlacement placePage(const QSizeF &page, const QSizeF &paper, Orientation orientation);

// "Sheet 2, front · page 3 of 12" for a side of what is printed, where that is page
// `page` of the document's `count`. One-sided sheets have no front.
QString sideCaption(const SheetSide &side, int page, int count, const SpecialSheetKeys &words);
// What else is to be said of it: the exception that it lies in, and that it is cut.
QString remarkCaption(const SheetSide &side, bool isCut, const SpecialSheetKeys &words);
// What stands on a sheet or a back without print, "Insert, 3 sheets"; empty for pages.
QString sheetWords(const SheetSide &side, const SpecialSheetKeys &words);

} // namespace kelvo
