#pragma once

#include "job_description.h"
#include "page_placement.h"

#include <array>

// Booklets: sheets that lie in one another and are folded once in the middle, so that four
// pages come on each. Which page falls where, and how it lies there.
namespace kelvo {

// Which of two pages that lie open comes first. Pages above one another follow the same
// rule, with top for left: they are read from top to bottom, or from bottom to top.
enum class ReadingOrder { LeftToRight, RightToLeft };

// Pages of what is printed, from 1; 0: blank. The left one first, or the upper one.
using BookletPages = std::array<int, 2>;

int bookletSheets(int pages); // those that `pages` pages make: a quarter, rounded up
// The pages on side `side`, which counts from the front of the outer sheet: 0 its front, 1
// its back, 2 the front of the sheet in it, up to 2 * bookletSheets(pages) - 1.
BookletPages bookletPages(int pages, int side, ReadingOrder order);
int bookletSideOf(int page, int pages); // the side that `page` is on

// How the two pages of a side lie on the sheet.
//
// - The sheet is turned so that pages of `shape` stand upright on its halves: side by side
//   when they are tall, above one another when they are wide. A page of another shape is
//   turned a quarter.
// - A page is made smaller until it fits its half without half the gutter, and never larger,
//   so that all pages of one size are as large. The two pages are a gutter apart, and
//   centred along the fold.
// - Folded sheets push those inside them outwards, where they are trimmed: pages on `sheet`,
//   0 for the outer one, move `sheet` times the creep towards the fold, and not across it.
// - A reverse orientation turns everything upside down. Whether it is portrait or landscape
//   does not count: that is for pages that have a sheet of their own.
struct BookletSide
{
    std::array<QSizeF, 2> pages; // points, as in BookletPages; empty: blank
    QSizeF shape;                // points, of the booklet's first page: one fold for all
    int sheet = 0;
};
// `paper` in points, upright; empty: as large as `shape`.
SidePlacement placeBooklet(const BookletSide &side, const Imposition &imposition,
                           const QSizeF &paper, Orientation orientation);

} // namespace kelvo
