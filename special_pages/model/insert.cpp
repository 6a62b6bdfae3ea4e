#include "insert.h"

#include "ticket_values.h"

namespace kelvo {

Insert::Insert(const Dictionary &dictionary)
    : SpecialPage(dictionary)
    , m_quantity(integer32(dictionary, kQuantityKey).value_or(1))
{
}

Dictionary Insert::asTicket() const
{
    Dictionary dictionary = SpecialPage::asTicket();
    WriteTicketValue(dictionary, kQuantityKey, m_quantity);
    return dictionary;
}

std::unique_ptr<SpecialPage> Insert::clone() const
{
    return std::make_unique<Insert>(*this);
}

} // namespace kelvo
