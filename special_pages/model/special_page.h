#pragma once

#include "stock.h"
#include "values.h"

#include <cstdint>
#include <memory>

namespace kelvo {

// A key of dictionary forms, of covers and of exception pages.
inline const QString kSidesImagedKey = QStringLiteral("SidesImaged");
// What a dictionary form says, as the page made of it.
std::int32_t startPageIn(const Dictionary &form);

// A sheet of the job that is not like the others: its place and its paper. Pages are
// told apart by identity: a copy is another page.
//
// Dictionary form:
//   StartPage   integer     missing or no number: 0
//   Stock       dictionary  as stock.h says; missing: a stock without anything set
class SpecialPage
{
public:
    SpecialPage() = default;
    explicit SpecialPage(const Dictionary &dictionary);
    virtual ~SpecialPage() = default;

    virtual Dictionary asTicket() const;
    virtual std::unique_ptr<SpecialPage> clone() const = 0;

    // No other page of this program has it, also when this one is gone.
    std::uint64_t identity() const { return m_identity; }

    // The first page of the document that this is about; for what is put in
    // between, the page after which it comes.
    std::int32_t startPage() const { return m_startPage; }
    void setStartPage(std::int32_t startPage) { m_startPage = startPage; }

    Stock &stock() { return m_stock; }
    const Stock &stock() const { return m_stock; }

protected:
    SpecialPage(const SpecialPage &other);
    SpecialPage &operator=(const SpecialPage &other); // stays the page that it is

private:
    static std::uint64_t newIdentity();

    const std::uint64_t m_identity = newIdentity();
    std::int32_t m_startPage = 0;
    Stock m_stock;
};

} // namespace kelvo
