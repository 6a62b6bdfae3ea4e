#pragma once

#include "stock.h"
#include "values.h"

#include <cstdint>
#include <memory>

namespace kelvo {

// A sheet of the job that is not like the others: its place and its paper.
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

    // The first page of the document that this is about; for what is put in
    // between, the page after which it comes.
    std::int32_t startPage() const { return m_startPage; }
    void setStartPage(std::int32_t startPage) { m_startPage = startPage; }

    Stock &stock() { return m_stock; }
    const Stock &stock() const { return m_stock; }

protected:
    SpecialPage(const SpecialPage &) = default;
    SpecialPage &operator=(const SpecialPage &) = default;

private:
    std::int32_t m_startPage = 0;
    Stock m_stock;
};

} // namespace kelvo
