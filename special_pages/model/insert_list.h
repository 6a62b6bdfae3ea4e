#pragma once

#include "insert.h"
#include "special_page_list.h"

namespace kelvo {

// Inserts by the page that they follow. Those after the same page stand in the
// order in which they were added, until they are promoted or demoted.
class InsertList : public SpecialPageList
{
public:
    InsertList() = default;
    InsertList(const InsertList &other); // of clones
    InsertList &operator=(const InsertList &other) { return *this = InsertList(other); }
    InsertList(InsertList &&) = default;
    InsertList &operator=(InsertList &&) = default;

    const Insert *pageAtIndex(std::int32_t index) const override; // null also for another kind
    OSStatus add(Pages pages) override;                           // noErr
    std::unique_ptr<SpecialPageList> clone() const override;

    // One place up or down, among the inserts after the same page. Nothing happens
    // where that cannot be.
    bool canPromote(const Insert *insert) const;
    void promote(const Insert *insert);
    bool canDemote(const Insert *insert) const;
    void demote(const Insert *insert);
    // The same for each of many, one after the other in the order given.
    void promote(Pages inserts) { swapEach(inserts, Neighbour::Before); }
    void demote(Pages inserts) { swapEach(inserts, Neighbour::After); }

private:
    // As the distance from an insert to the upper one of the two that change places.
    enum class Neighbour : std::int32_t { Before = -1, After = 0 };

    bool canSwapWithNext(std::int32_t index) const;
    void swapEach(Pages inserts, Neighbour with);
};

} // namespace kelvo
