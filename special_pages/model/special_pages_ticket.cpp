#include "special_pages_ticket.h"

#include "ticket.h"
#include "ticket_values.h"

namespace kelvo {

namespace {

const QString client = QStringLiteral("com.kelvo.print");

QString insertsKey()
{
    return ticketKey("SpecialPages.InsertList");
}

QString exceptionsKey()
{
    return ticketKey("SpecialPages.ExceptionList");
}

OSStatus writeList(PMTicketRef ticket, const QString &key, const SpecialPageList &list)
{
    const std::optional<Array> form = list.asTicket();
    return form ? PMTicketSetCFArray(ticket, client, key, *form) : PMTicketReleaseItem(ticket, key);
}

Array formIn(PMTicketRef ticket, const QString &key)
{
    return PMTicketGetCFArray(ticket, key).value_or(Array());
}

template <typename Page>
void readList(PMTicketRef ticket, const QString &key, SpecialPageList &list)
{
    const Array form = formIn(ticket, key);
    if (list.isWrittenAs(form))
        return;
    list.clear();
    std::vector<Page> pages;
    pages.reserve(static_cast<std::size_t>(form.size()));
    for (const QVariant &element : form) {
        if (const std::optional<Dictionary> page = dictionary(element))
            pages.emplace_back(*page);
    }
    std::vector<const SpecialPage *> pointers;
    pointers.reserve(pages.size());
    for (const Page &page : pages)
        pointers.push_back(&page);
    list.add(pointers);
}

} // namespace

OSStatus writeSpecialPages(PMTicketRef ticket, const InsertList &inserts,
                           const ExceptionPageList &exceptions)
{
    writeList(ticket, insertsKey(), inserts);
    return writeList(ticket, exceptionsKey(), exceptions);
}

bool holdsSpecialPages(PMTicketRef ticket, const InsertList &inserts,
                       const ExceptionPageList &exceptions)
{
    return inserts.isWrittenAs(formIn(ticket, insertsKey()))
        && exceptions.isWrittenAs(formIn(ticket, exceptionsKey()));
}

OSStatus readSpecialPages(PMTicketRef ticket, InsertList &inserts, ExceptionPageList &exceptions,
                          std::unique_ptr<Stock> &jobStock)
{
    readList<Insert>(ticket, insertsKey(), inserts);
    readList<ExceptionPage>(ticket, exceptionsKey(), exceptions);
    const std::optional<Dictionary> stock =
        PMTicketGetCFDictionary(ticket, ticketKey("JobLevelStock"));
    jobStock = stock ? std::make_unique<Stock>(&*stock) : nullptr;
    return stock ? noErr : kPMKeyNotFound;
}

} // namespace kelvo
