#include "insert.h"

#include "ticket_values.h"

namespace kelvo {

namespace {

const QString quantityKey = QStringLiteral("Quantity");

} // namespace

std::int32_t quantityIn(const Dictionary &form)
{
    return integer32(form, quantityKey).value_or(1);
}

Insert::Insert(const Dictionary &dictionary)
    : SpecialPage(dictionary)
    , m_quantity(quantityIn(dictionary))
{
}

Dictionary Insert::asTicket() const
{
    Dictionary dictionary = SpecialPage::asTicket();
    WriteTicketValue(dictionary, quantityKey, m_quantity);
    return dictionary;
}

std::unique_ptr<SpecialPage> Insert::clone() const
{
    return std::make_unique<Insert>(*this);
}

} // namespace kelvo
