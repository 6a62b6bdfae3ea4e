#pragma once

#include <QString>

#include <array>
#include <optional>

// How the document's pages come onto paper. All of it is done to the document before it is
// sent: what a server's filters would make of it could not be shown, nor counted on.
namespace kelvo {

// Which pages of the chosen ones, by the numbers that they have in the document.
enum class PageSet { All, Odd, Even };

enum class PageScaling {
    Shrink, // pages that are larger than their place, until they fit; others as they are
    Fit,    // as large as their place lets them
    Fill,   // until nothing of their place is free; what lies outside is cut off
    Percent,
    None, // what is larger than its place is cut off
};

// Where the pages of a side follow one another. First the way that they go, then the way that
// the rows, or columns, do: from left (L), right (R), top (T) or bottom (B).
enum class PageFlow { LrTb, LrBt, RlTb, RlBt, TbLr, TbRl, BtLr, BtRl };

struct PageLayout
{
    PageScaling scaling = PageScaling::Shrink;
    int percent = 100;    // of a page's own size, for PageScaling::Percent
    int pagesPerSide = 1; // one of kPagesPerSide
    PageFlow flow = PageFlow::LrTb;
    bool drawsBorders = false; // a thin line around each page, where there are several

    friend bool operator==(const PageLayout &, const PageLayout &) = default;
};
inline constexpr std::array kPagesPerSide = {1, 2, 4, 6, 9, 16};
// What lp takes for `scaling`.
inline constexpr int kLeastPercent = 1, kMostPercent = 800;

// How tickets and options of the command line write them, in any case. The first value where a
// name has several.
QString nameOf(PageSet set);         // "all", "odd", "even"
QString nameOf(PageScaling scaling); // "auto", "fit", "fill", "percent", "none"
QString nameOf(PageFlow flow);       // "lrtb", …
std::optional<PageSet> pageSetFrom(const QString &name);
std::optional<PageScaling> pageScalingFrom(const QString &name);
std::optional<PageFlow> pageFlowFrom(const QString &name);

} // namespace kelvo
