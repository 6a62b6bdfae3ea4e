#include "cover.h"

#include "ticket_values.h"

namespace kelvo {

namespace {

const QString sidesImagedKey = QStringLiteral("SidesImaged");

} // namespace

Cover::Cover(const Dictionary &dictionary)
    : SpecialPage(dictionary)
    , m_sidesImaged(integer32(dictionary, sidesImagedKey).value_or(kCoverBlank))
{
}

Dictionary Cover::asTicket() const
{
    Dictionary dictionary = SpecialPage::asTicket();
    WriteTicketValue(dictionary, sidesImagedKey, m_sidesImaged);
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
