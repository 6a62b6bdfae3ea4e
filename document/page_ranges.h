#pragma once

#include "result.h"

#include <QString>

#include <vector>

namespace kelvo {

// A run of pages from `first` to `last`, both included, from 1.
struct PageRun
{
    int first = 1;
    int last = 1;
    friend bool operator==(const PageRun &, const PageRun &) = default;
};

// "1-3,7,9-" as runs in the order written; blanks are fine, "9-" goes to
// `pageCount`, "-3" begins at 1. Empty text: every page. OutOfRange with the
// part that was wrong for page 0, a last page before its first, or a range that
// begins after `pageCount`; Damaged for anything that is no range; TooLarge for more
// pages than a document may have. The detail says what is wrong and how it is written.
Result<std::vector<PageRun>> pageRunsFrom(const QString &text, int pageCount);

int pageCount(const std::vector<PageRun> &runs);
// The document's page (from 1) that becomes page `index` (from 0) of what is printed.
int documentPage(const std::vector<PageRun> &runs, int index);
// The other way, both from 1; 0 for a page that is not printed, the first of several.
int printedPage(const std::vector<PageRun> &runs, int page);

} // namespace kelvo
