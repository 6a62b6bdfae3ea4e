#include "special_page.h"

#include "ticket_values.h"

#include <atomic>

namespace kelvo {

namespace {

const QString startPageKey = QStringLiteral("StartPage");
const QString stockKey = QStringLiteral("Stock");

Stock stockFrom(const std::optional<Dictionary> &dictionary)
{
    return Stock(dictionary ? &*dictionary : nullptr);
}

} // namespace

std::int32_t startPageIn(const Dictionary &form)
{
    return integer32(form, startPageKey).value_or(0);
}

SpecialPage::SpecialPage(const Dictionary &dictionary)
    : m_startPage(startPageIn(dictionary))
    , m_stock(stockFrom(kelvo::dictionary(dictionary, stockKey)))
{
}

SpecialPage::SpecialPage(const SpecialPage &other)
    : m_startPage(other.m_startPage)
    , m_stock(other.m_stock)
{
}

SpecialPage &SpecialPage::operator=(const SpecialPage &other)
{
    m_startPage = other.m_startPage;
    m_stock = other.m_stock;
    return *this;
}

std::uint64_t SpecialPage::newIdentity()
{
    static std::atomic<std::uint64_t> last = 0;
    return ++last;
}

Dictionary SpecialPage::asTicket() const
{
    Dictionary dictionary;
    WriteTicketValue(dictionary, startPageKey, m_startPage);
    dictionary.insert(stockKey, m_stock.asTicket());
    return dictionary;
}

} // namespace kelvo
