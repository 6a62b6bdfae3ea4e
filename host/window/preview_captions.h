#pragma once

#include "printed_pages.h"
#include "sheet_sequence.h"

#include <QString>
#include <QStringList>

// What the preview says of a side, as rules without a window.
namespace kelvo {

// "Sheet 2, front · page 3 of 12" for a side of what is printed, where `count` are all pages that
// the document has. One-sided sheets have no front. What comes before the document is
// `leadingPage`.
QString sideCaption(const SheetSide &side, const PrintedPages &pages, int count,
                    const SpecialSheetWords &words, const QString &leadingPage);
// What else is to be said of it: the exceptions that its pages lie in, that one is cut, what
// the printer alone decides, and which of the drawings over its pages are not shown.
QString remarkCaption(const SheetSide &side, const SidePlacement &placement,
                      const QStringList &lackingOverlays, const SpecialSheetWords &words);
// What stands on a sheet or a back without print, "Insert, 3 sheets"; empty for others.
QString sheetWords(const SheetSide &side, const SpecialSheetWords &words);
QString blankWords(); // on a place without a page

} // namespace kelvo
