#include "insert_list.h"

#include <algorithm>
#include <unordered_map>

namespace kelvo {

InsertList::InsertList(const InsertList &other)
    : SpecialPageList()
{
    InsertList::add(other.pages());
}

const Insert *InsertList::pageAtIndex(std::int32_t index) const
{
    return dynamic_cast<const Insert *>(SpecialPageList::pageAtIndex(index));
}

OSStatus InsertList::add(Pages pages)
{
    const auto isBefore = [](const auto &one, const auto &other) {
        return one->startPage() < other->startPage();
    };
    std::vector<const SpecialPage *> sorted(pages.begin(), pages.end());
    std::ranges::stable_sort(sorted, isBefore);

    const auto oldCount = count();
    m_pages.reserve(m_pages.size() + sorted.size());
    for (const SpecialPage *page : sorted)
        m_pages.push_back(page->clone());
    // Of those after the same page the old ones come first.
    std::ranges::inplace_merge(m_pages, m_pages.begin() + oldCount, isBefore);
    pagesChanged();
    return noErr;
}

std::unique_ptr<SpecialPageList> InsertList::clone() const
{
    return std::make_unique<InsertList>(*this);
}

bool InsertList::canPromote(const Insert *insert) const
{
    return canSwapWithNext(indexOfPage(insert) - 1);
}

void InsertList::promote(const Insert *insert)
{
    const SpecialPage *page = insert;
    promote(Pages(&page, 1));
}

bool InsertList::canDemote(const Insert *insert) const
{
    return canSwapWithNext(indexOfPage(insert));
}

void InsertList::demote(const Insert *insert)
{
    const SpecialPage *page = insert;
    demote(Pages(&page, 1));
}

bool InsertList::canSwapWithNext(std::int32_t index) const
{
    return index >= 0 && index + 1 < count()
        && m_pages[index]->startPage() == m_pages[index + 1]->startPage();
}

// Found all at once: each of 99,999 after one page would be a walk over the others.
void InsertList::swapEach(Pages inserts, Neighbour with)
{
    std::unordered_map<const SpecialPage *, std::int32_t> indexOf;
    indexOf.reserve(m_pages.size());
    for (std::int32_t index = 0; index < count(); ++index)
        indexOf.emplace(m_pages[index].get(), index);
    for (const SpecialPage *insert : inserts) {
        const auto found = indexOf.find(insert);
        const auto upper =
            found == indexOf.end() ? -1 : found->second + static_cast<std::int32_t>(with);
        if (!canSwapWithNext(upper))
            continue;
        std::swap(m_pages[upper], m_pages[upper + 1]);
        std::swap(indexOf[m_pages[upper].get()], indexOf[m_pages[upper + 1].get()]);
        pagesChanged();
    }
}

} // namespace kelvo
