#include "insert_list.h"

#include <algorithm>

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
    const std::int32_t index = indexOfPage(insert);
    return index > 0 && m_pages[index - 1]->startPage() == insert->startPage();
}

void InsertList::promote(const Insert *insert)
{
    if (canPromote(insert))
        swapWithNext(indexOfPage(insert) - 1);
}

bool InsertList::canDemote(const Insert *insert) const
{
    const std::int32_t index = indexOfPage(insert);
    return index >= 0 && index + 1 < count()
        && m_pages[index + 1]->startPage() == insert->startPage();
}

void InsertList::demote(const Insert *insert)
{
    if (canDemote(insert))
        swapWithNext(indexOfPage(insert));
}

void InsertList::swapWithNext(std::int32_t index)
{
    std::swap(m_pages[index], m_pages[index + 1]);
    pagesChanged();
}

} // namespace kelvo
