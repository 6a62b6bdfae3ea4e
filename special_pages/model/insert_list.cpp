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

void InsertList::promote(Pages inserts)
{
    const Members members(inserts);
    for (std::int32_t index = 0; index + 1 < count(); ++index) {
        if (canSwapWithNext(index) && !members.has(*m_pages[index])
            && members.has(*m_pages[index + 1]))
            swapWithNext(index);
    }
}

void InsertList::demote(Pages inserts)
{
    const Members members(inserts);
    for (std::int32_t index = count() - 2; index >= 0; --index) {
        if (canSwapWithNext(index) && members.has(*m_pages[index])
            && !members.has(*m_pages[index + 1]))
            swapWithNext(index);
    }
}

bool InsertList::canSwapWithNext(std::int32_t index) const
{
    return index >= 0 && index + 1 < count()
        && m_pages[index]->startPage() == m_pages[index + 1]->startPage();
}

void InsertList::swapWithNext(std::int32_t index)
{
    std::swap(m_pages[index], m_pages[index + 1]);
    pagesChanged();
}

} // namespace kelvo
