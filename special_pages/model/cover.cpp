#include "cover.h"

#include "ticket_values.h"

namespace kelvo {

Cover::Cover(const Dictionary &dictionary)
    : SpecialPage(dictionary)
    , m_sidesImaged(integer32(dictionary, kSidesImagedKey).value_or(kCoverBlank))
{
}

Dictionary Cover::asTicket() const
{
    Dictionary dictionary = SpecialPage::asTicket();
    WriteTicketValue(dictionary, kSidesImagedKey, m_sidesImaged);
    return dictionary;
}

std::unique_ptr<SpecialPage> Cover::clone() const
{
    return std::make_unique<Cover>(*this);
}

bool Cover::operator==(const Cover &other) const
{
    return m_sidesImaged == other.m_sidesImaged && stock() == other.stock();
}

} // namespace kelvo
