#pragma once

#include "exception_page.h"
#include "insert.h"
#include "page_range_text.h"

#include <QString>

#include <cstdint>
#include <vector>

// The rules of the inserts and the exceptions dialog: what they work on, and which
// pages come of it.
namespace kelvo {

// Where inserts come: values of InsertOptionMap.
inline constexpr std::int32_t kInsertAfterPages = 1;
inline constexpr std::int32_t kInsertBeforePage1 = 2;

inline constexpr std::int32_t kMostInsertedSheets = 9'999; // of one insert

struct InsertEdit
{
    std::int32_t position = kInsertAfterPages;
    QString pages; // as typed; kept while the position is another
    Insert page;   // quantity and stock
};
// What is edited; for null what the dialog begins with: one sheet of the job's paper.
InsertEdit insertEdit(const Insert *edited);

// How many sheets the dialog takes: what a ticket asks for is kept, however much it is.
struct SheetLimits
{
    std::int32_t least = 1, most = kMostInsertedSheets;
};
SheetLimits sheetLimits(const Insert &edited);

// As many inserts as a list takes: one after each page. A page range of three
// characters makes that many.
inline constexpr std::int32_t kMostInserts = kHighestPage;
inline constexpr OSStatus kTooManyInserts = 1100; // beside the PageRangeProblems

// The inserts that `edit` makes; `others` is how many the list has besides. 0 typed
// by hand is before page 1. noErr, or a PageRangeProblem or kTooManyInserts, and
// `inserts` is empty then.
OSStatus insertsFrom(const InsertEdit &edit, std::int32_t others, std::vector<Insert> *inserts);

struct ExceptionEdit
{
    QString pages;      // as typed
    ExceptionPage page; // everything but its range
};
// What is edited; for null what the dialog begins with: nothing is set.
ExceptionEdit exceptionEdit(const ExceptionPage *edited);

// One page for each range. noErr, or a PageRangeProblem, and `exceptions` is empty
// then.
OSStatus exceptionsFrom(const ExceptionEdit &edit, std::vector<ExceptionPage> *exceptions);

// Tab stock is printed with an image shift, which moves the image onto the tab.
bool isTabStock(const Stock &stock);
// To be called when the stock has been changed, with whether it was tab stock
// before. The shift goes with the tabs: other paper would get its image off centre,
// and no window shows where to take that back. A shift that the page had without
// tab stock is somebody else's and stays.
void settleImageShift(ExceptionPage &page, bool wasTabStock);

} // namespace kelvo
