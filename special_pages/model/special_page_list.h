#pragma once

#include "special_page.h"
#include "status.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace kelvo {

// Special pages in the order in which they come, owned by the list. Pages are
// found by identity: an equal page is another page. Nobody changes a page that is
// in a list, so that its order stands; update() replaces it.
//
// Made for 99,999 pages: finding one is a binary search, and whatever can concern
// many pages has a form for many.
class SpecialPageList
{
public:
    // Pages of others; none is null.
    using Pages = std::span<const SpecialPage *const>;

    virtual ~SpecialPageList() = default;

    std::int32_t count() const { return static_cast<std::int32_t>(m_pages.size()); }
    // Null for an index below 0 or beyond the last.
    virtual const SpecialPage *pageAtIndex(std::int32_t index) const;
    // -1 for null and for what is not in this list. The page must be alive.
    virtual std::int32_t indexOfPage(const SpecialPage *page) const;

    // Copies of the pages, one after the other; the caller's stay the caller's. When
    // it fails, the list is as it was.
    virtual OSStatus add(Pages pages) = 0;
    // Deletes the pages; null, and one that is not in the list, is left alone.
    void remove(const SpecialPage *page) { remove(Pages(&page, 1)); }
    void remove(Pages pages);
    void clear();
    // Adds the replacements as add() does, without `page` in its way, and deletes it.
    // When add() fails, the page is back at its place and the status is add()'s.
    // noErr, and nothing changed, for a page that is not in the list.
    OSStatus update(const SpecialPage &page, Pages replacements);

    // The dictionary forms in list order; none for an empty list. Kept until the
    // list changes: the panels write far more often than anybody edits.
    std::optional<Array> asTicket() const;
    // Whether `form` is the array that asTicket() answered last (or a copy, also out
    // of a ticket), and still would; an empty one for an empty list. Quick; an equal
    // array is another array.
    bool isWrittenAs(const Array &form) const;

    virtual std::unique_ptr<SpecialPageList> clone() const = 0;

    // The same pages in the same order, as a ticket would say them.
    friend bool operator==(const SpecialPageList &one, const SpecialPageList &other)
    {
        return one.asTicket() == other.asTicket();
    }

protected:
    SpecialPageList() = default;
    // Lists are copied by adding their source's pages, and moved with theirs.
    SpecialPageList(const SpecialPageList &) = delete;
    SpecialPageList &operator=(const SpecialPageList &) = delete;
    SpecialPageList(SpecialPageList &&other) noexcept { *this = std::move(other); }
    SpecialPageList &operator=(SpecialPageList &&other) noexcept;

    std::vector<const SpecialPage *> pages() const; // for add()

    // Which pages are meant, by identity; asked for each page of a list.
    class Members
    {
    public:
        explicit Members(Pages pages);
        bool has(const SpecialPage &page) const;

    private:
        std::vector<const SpecialPage *> m_sorted;
    };

    // Ascending by startPage(). Whoever changes it calls pagesChanged().
    std::vector<std::unique_ptr<SpecialPage>> m_pages;
    void pagesChanged() { m_form.reset(); }

private:
    mutable std::optional<Array> m_form;
};

} // namespace kelvo
