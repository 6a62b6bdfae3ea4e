#pragma once

#include "sheet_sequence.h"

#include <QString>

// What the preview says of a side, as rules without a window.
namespace kelvo {

// "Sheet 2, front · page 3 of 12" for a side of what is printed, where that is page
// `page` of the document's `count`. One-sided sheets have no front.
QString sideCaption(const SheetSide &side, int page, int count, const SpecialSheetWords &words);
// What else is to be said of it: the exception that it lies in, and that it is cut.
QString remarkCaption(const SheetSide &side, bool isCut, const SpecialSheetWords &words);
// What stands on a sheet or a back without print, "Insert, 3 sheets"; empty for pages.
QString sheetWords(const SheetSide &side, const SpecialSheetWords &words);

} // namespace kelvo
