#include "exception_page_list.h"

#include <algorithm>
#include <limits>
#include <queue>

namespace kelvo {

namespace {

// Pages `first` to `end`, without `end`; 64 bits, as a page may be the last of 32.
struct Range
{
    std::int64_t first;
    std::int64_t end;
    std::size_t rank; // the higher one wins
    const ExceptionPage *page;

    bool operator<(const Range &other) const { return rank < other.rank; }
};

Range rangeOf(const ExceptionPage &page, std::size_t rank)
{
    return {page.startPage(), std::int64_t(page.endPage()) + 1, rank, &page};
}

// What is seen of the ranges, from page to page, in one sweep: cutting old ranges one by
// one would move the list for each of 99,999. They are in the order of their
// first pages, and none is empty.
std::vector<Range> seenOf(const std::vector<Range> &ranges)
{
    std::vector<Range> pieces;
    pieces.reserve(ranges.size());
    // Of those that have begun, the highest is seen until it ends or a higher one
    // begins. Those below wait, and may end unseen.
    std::priority_queue<Range> begun;
    std::int64_t at = std::numeric_limits<std::int64_t>::min(); // all before is done
    auto next = ranges.begin();
    while (next != ranges.end() || !begun.empty()) {
        if (begun.empty())
            begun.push(*next++);
        Range seen = begun.top();
        while (next != ranges.end() && next->first < seen.end && *next < seen)
            begun.push(*next++);
        const bool isCut = next != ranges.end() && next->first < seen.end;
        if (isCut) {
            seen.end = next->first;
            begun.push(*next++);
        } else {
            begun.pop();
        }
        seen.first = std::max(seen.first, at);
        if (seen.first < seen.end) {
            pieces.push_back(seen);
            at = seen.end;
        }
    }
    return pieces;
}

} // namespace

ExceptionPageList::ExceptionPageList(const ExceptionPageList &other)
    : SpecialPageList()
{
    ExceptionPageList::add(other.pages());
}

const ExceptionPage *ExceptionPageList::pageAtIndex(std::int32_t index) const
{
    return static_cast<const ExceptionPage *>(
        SpecialPageList::pageAtIndex(index)); // add() takes no other
}

OSStatus ExceptionPageList::add(Pages pages)
{
    std::vector<Range> ranges;
    ranges.reserve(m_pages.size() + pages.size());
    std::vector<std::unique_ptr<SpecialPage>> result; // first those that cover nothing
    for (std::size_t rank = 0; rank < m_pages.size(); ++rank) {
        const auto &page = static_cast<const ExceptionPage &>(*m_pages[rank]);
        if (page.coversPages())
            ranges.push_back(rangeOf(page, rank));
        else
            result.push_back(std::move(m_pages[rank]));
    }
    const auto oldRanges = static_cast<std::ptrdiff_t>(ranges.size());
    for (const SpecialPage *page : pages) {
        const auto *exception = dynamic_cast<const ExceptionPage *>(page);
        if (exception && exception->coversPages())
            ranges.push_back(rangeOf(*exception, m_pages.size() + ranges.size()));
        else if (exception)
            result.push_back(exception->clone());
    }
    const auto added = ranges.begin() + oldRanges; // those before are in order
    std::ranges::stable_sort(added, ranges.end(), {}, &Range::first);
    std::ranges::inplace_merge(ranges, added, {}, &Range::first);

    const auto isBefore = [](const auto &one, const auto &other) {
        return one->startPage() < other->startPage();
    };
    std::ranges::stable_sort(result, isBefore);
    const auto coveringNothing = static_cast<std::ptrdiff_t>(result.size());
    const std::vector<Range> pieces = seenOf(ranges);
    result.reserve(result.size() + pieces.size());
    for (const Range &piece : pieces) {
        // The first piece of an old page is that page still.
        const bool isOldPage = piece.rank < m_pages.size() && m_pages[piece.rank];
        result.push_back(isOldPage ? std::move(m_pages[piece.rank]) : piece.page->clone());
        auto &page = static_cast<ExceptionPage &>(*result.back());
        page.setStartPage(static_cast<std::int32_t>(piece.first));
        page.setEndPage(static_cast<std::int32_t>(piece.end - 1));
    }
    std::ranges::inplace_merge(result, result.begin() + coveringNothing, isBefore);
    m_pages = std::move(result);
    pagesChanged();
    return noErr;
}

std::unique_ptr<SpecialPageList> ExceptionPageList::clone() const
{
    return std::make_unique<ExceptionPageList>(*this);
}

} // namespace kelvo
