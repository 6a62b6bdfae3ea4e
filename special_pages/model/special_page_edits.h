#pragma once

#include "exception_page.h"
#include "exception_page_list.h"
#include "insert.h"
#include "insert_list.h"
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

inline constexpr std::int32_t kMostInsertedSheets = 9999; // of one insert

struct InsertEdit
{
    std::int32_t position = kInsertAfterPages;
    QString pages; // as typed; kInsertAfterPages only
    Insert page;   // quantity and stock
};
// The dialog's defaults for null, else what is edited.
InsertEdit insertEdit(const Insert *edited);

// As many inserts as a list takes: one after each page. A page range of three
// characters makes that many.
inline constexpr std::int32_t kMostInserts = kHighestPage;
inline constexpr OSStatus kTooManyInserts = 1100; // beside the PageRangeProblems

// The inserts that `edit` makes; `others` is how many the list has besides. 0 typed
// by hand is before page 1. noErr, a PageRangeProblem or kTooManyInserts.
OSStatus insertsFrom(const InsertEdit &edit, std::int32_t others, std::vector<Insert> *inserts);

struct ExceptionEdit
{
    QString pages;      // as typed
    ExceptionPage page; // everything but its range
};
ExceptionEdit exceptionEdit(const ExceptionPage *edited);

// One page for each range. noErr or a PageRangeProblem.
OSStatus exceptionsFrom(const ExceptionEdit &edit, std::vector<ExceptionPage> *exceptions);

} // namespace kelvo
