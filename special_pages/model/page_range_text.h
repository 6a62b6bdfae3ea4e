#pragma once

#include "status.h"

#include <QString>

#include <cstdint>
#include <vector>

// Page ranges as users type them: "1,3,5-7,12-".
namespace kelvo {

inline constexpr std::int32_t kHighestPage = 99'999;

// What is wrong with pages that were typed; SpecialPagesUserNotification says it.
enum PageRangeProblem : OSStatus {
    kPageNumberTooHigh = 1000,    // above kHighestPage
    kPageRangesMalformed = 1001,  // a stray or doubled dash, or no page at all
    kPageRangeBackwards = 1002,   // first page above the last
    kPageNumberTooLow = 1003,     // below 1; found by the dialogs
    kPageRangesInConflict = 1234, // nothing of ours reports it
};

struct PageRange
{
    std::int32_t first = 0; // may be 0
    std::int32_t count = 0; // pages, at least 1
    friend bool operator==(const PageRange &, const PageRange &) = default;
};

// The ranges in the order typed, neither sorted nor merged; one for each page
// when `asRanges` is false. "-7" begins at 1, "12-" ends at kHighestPage. Anything
// but digits, commas and dashes is skipped, and parts two numbers: "3 5" is "3,5".
//
// noErr, paramErr for a null pointer, or the first PageRangeProblem; `ranges` is
// empty then. Without `asRanges`, 3 characters can become kHighestPage ranges:
// look at the sum of the counts first.
OSStatus CreatePageRangesBySeparatingString(const QString *text, bool asRanges,
                                            std::vector<PageRange> *ranges);

} // namespace kelvo
