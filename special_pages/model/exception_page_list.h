#pragma once

#include "exception_page.h"
#include "special_page_list.h"

namespace kelvo {

// Ranges of exception pages, none of which share a page: what is added later wins,
// and of an older range what is not covered keeps its settings, in one piece or two. A
// page of a ticket that covers no pages stays as it is, before the range that begins on
// its first page: it cuts nothing, and nothing cuts it.
class ExceptionPageList : public SpecialPageList
{
public:
    ExceptionPageList() = default;
    ExceptionPageList(const ExceptionPageList &other); // of clones
    ExceptionPageList &operator=(const ExceptionPageList &other)
    {
        return *this = ExceptionPageList(other);
    }
    ExceptionPageList(ExceptionPageList &&) = default;
    ExceptionPageList &operator=(ExceptionPageList &&) = default;

    const ExceptionPage *pageAtIndex(std::int32_t index) const override;
    // noErr. A page of another kind is left out.
    OSStatus add(Pages pages) override;
    std::unique_ptr<SpecialPageList> clone() const override;
};

} // namespace kelvo
