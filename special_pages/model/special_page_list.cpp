#include "special_page_list.h"

#include <algorithm>

namespace kelvo {

const SpecialPage *SpecialPageList::pageAtIndex(std::int32_t index) const
{
    return index >= 0 && index < count() ? m_pages[index].get() : nullptr;
}

std::int32_t SpecialPageList::indexOfPage(const SpecialPage *page) const
{
    if (!page)
        return -1;
    auto at = std::ranges::lower_bound(m_pages, page->startPage(), {},
                                       [](const auto &listed) { return listed->startPage(); });
    for (; at != m_pages.end() && (*at)->startPage() == page->startPage(); ++at) {
        if (at->get() == page)
            return static_cast<std::int32_t>(at - m_pages.begin());
    }
    return -1;
}

void SpecialPageList::remove(Pages pages)
{
    const Members members(pages);
    const auto gone =
        std::erase_if(m_pages, [&members](const auto &page) { return members.has(*page); });
    if (gone > 0)
        pagesChanged();
}

void SpecialPageList::clear()
{
    m_pages.clear();
    pagesChanged();
}

OSStatus SpecialPageList::update(const SpecialPage &page, Pages replacements)
{
    const std::int32_t index = indexOfPage(&page);
    if (index < 0)
        return noErr;
    std::unique_ptr<SpecialPage> old = std::move(m_pages[index]);
    m_pages.erase(m_pages.begin() + index);
    pagesChanged();
    const OSStatus status = add(replacements);
    if (status != noErr)
        m_pages.insert(m_pages.begin() + index, std::move(old));
    return status;
}

std::optional<Array> SpecialPageList::asTicket() const
{
    if (m_pages.empty())
        return std::nullopt;
    if (!m_form) {
        Array form;
        form.reserve(count());
        for (const auto &page : m_pages)
            form.append(page->asTicket());
        m_form = std::move(form);
    }
    return m_form;
}

bool SpecialPageList::isWrittenAs(const Array &form) const
{
    return m_pages.empty() ? form.isEmpty() : m_form && m_form->isSharedWith(form);
}

SpecialPageList &SpecialPageList::operator=(SpecialPageList &&other) noexcept
{
    m_pages = std::exchange(other.m_pages, {});
    m_form = std::exchange(other.m_form, std::nullopt);
    return *this;
}

std::vector<const SpecialPage *> SpecialPageList::pages() const
{
    std::vector<const SpecialPage *> pages;
    pages.reserve(m_pages.size());
    for (const auto &page : m_pages)
        pages.push_back(page.get());
    return pages;
}

SpecialPageList::Members::Members(Pages pages)
    : m_sorted(pages.begin(), pages.end())
{
    std::ranges::sort(m_sorted);
}

bool SpecialPageList::Members::has(const SpecialPage &page) const
{
    return std::ranges::binary_search(m_sorted, &page);
}

} // namespace kelvo
