#include "exception_page_list.h"

#include <algorithm>
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

} // namespace

ExceptionPageList::ExceptionPageList(const ExceptionPageList &other)
    : SpecialPageList()
{
    ExceptionPageList::add(other.pages());
}

const ExceptionPage *ExceptionPageList::pageAtIndex(std::int32_t index) const
{
    return static_cast<const ExceptionPage *>(SpecialPageList::pageAtIndex(index)); // see add()
}

OSStatus ExceptionPageList::add(Pages pages)
{
    std::vector<Range> ranges;
    ranges.reserve(m_pages.size() + pages.size());
    const auto addRange = [&ranges](const SpecialPage *page) {
        const auto *exception = dynamic_cast<const ExceptionPage *>(page);
        if (exception && exception->startPage() <= exception->endPage())
            ranges.push_back({exception->startPage(), std::int64_t(exception->endPage()) + 1,
                              ranges.size(), exception});
    };
    for (const auto &page : m_pages)
        addRange(page.get());
    for (const SpecialPage *page : pages)
        addRange(page);
    std::ranges::sort(ranges, {}, &Range::first);

    std::vector<std::unique_ptr<SpecialPage>> pieces;
    const auto addPiece = [this, &pieces](const Range &range, std::int64_t first,
                                          std::int64_t end) {
        // The first piece of an old page is that page still.
        const bool isOld = range.rank < m_pages.size() && m_pages[range.rank];
        std::unique_ptr<SpecialPage> piece =
            isOld ? std::move(m_pages[range.rank]) : range.page->clone();
        piece->setStartPage(static_cast<std::int32_t>(first));
        static_cast<ExceptionPage &>(*piece).setEndPage(static_cast<std::int32_t>(end - 1));
        pieces.push_back(std::move(piece));
    };

    // From page to page: of the ranges that have begun, the highest is seen until it
    // ends or a higher one begins. Ranges below it wait, and may end unseen.
    std::priority_queue<Range> begun;
    std::int64_t at = ranges.empty() ? 0 : ranges.front().first;
    auto next = ranges.begin();
    while (next != ranges.end() || !begun.empty()) {
        if (begun.empty())
            begun.push(*next++);
        const Range seen = begun.top();
        while (next != ranges.end() && next->first < seen.end && *next < seen)
            begun.push(*next++);
        const bool isCut = next != ranges.end() && next->first < seen.end;
        const std::int64_t end = isCut ? next->first : seen.end;
        at = std::max(at, seen.first);
        if (at < end) {
            addPiece(seen, at, end);
            at = end;
        }
        if (isCut)
            begun.push(*next++);
        else
            begun.pop();
    }
    m_pages = std::move(pieces);
    pagesChanged();
    return noErr;
}

std::unique_ptr<SpecialPageList> ExceptionPageList::clone() const
{
    return std::make_unique<ExceptionPageList>(*this);
}

} // namespace kelvo
