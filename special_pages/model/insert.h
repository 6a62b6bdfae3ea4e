#pragma once

#include "special_page.h"

namespace kelvo {

// What a dictionary form says, as the insert made of it.
std::int32_t quantityIn(const Dictionary &form);

// Sheets put in between: `quantity` of them after page startPage(); 0 is before
// page 1. Its dictionary form adds
//   Quantity   integer  sheets; missing or no number: 1
class Insert : public SpecialPage
{
public:
    Insert() = default;
    explicit Insert(const Dictionary &dictionary);
    Insert(const Insert &) = default;
    Insert &operator=(const Insert &) = default;

    Dictionary asTicket() const override;
    std::unique_ptr<SpecialPage> clone() const override;

    std::int32_t quantity() const { return m_quantity; }
    void setQuantity(std::int32_t quantity) { m_quantity = quantity; }

private:
    std::int32_t m_quantity = 1;
};

} // namespace kelvo
