#pragma once

#include "result.h"

#include <QString>

#include <vector>

namespace kelvo {

// A run of pages from `first` to `last`, both included, from 1; backwards where `last` is smaller.
struct PageRun
{
    int first = 1;
    int last = 1;
    friend bool operator==(const PageRun &, const PageRun &) = default;
};

// "1-3,7,9-" as runs in the order written; blanks are fine, "9-" goes to
// `pageCount`, "-3" begins at 1, "6-1" runs backwards. Empty text: every page. OutOfRange
// with the part that was wrong for page 0, or a range that begins after `pageCount`; Damaged
// for anything that is no range; TooLarge for more pages than a document may have. The detail
// says what is wrong and how it is written.
Result<std::vector<PageRun>> pageRunsFrom(const QString &text, int pageCount);

int pageCount(const std::vector<PageRun> &runs);
// All of them, one after the other.
std::vector<int> pagesIn(const std::vector<PageRun> &runs);

} // namespace kelvo
