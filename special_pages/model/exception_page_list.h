#pragma once

#include "exception_page.h"
#include "special_page_list.h"

namespace kelvo {

// Ranges of exception pages, none of which share a page: what is added later wins,
// and of an older range what is not covered keeps its settings, in one piece or two.
class ExceptionPageList : public SpecialPageList
{
public:
    ExceptionPageList() = default;
    ExceptionPageList(const ExceptionPageList &other); // of clones

    const ExceptionPage *pageAtIndex(std::int32_t index) const override;
    // noErr. A range that ends before it begins, and a page of another kind, covers
    // nothing and is left out.
    OSStatus add(Pages pages) override;
    std::unique_ptr<SpecialPageList> clone() const override;
};

} // namespace kelvo
