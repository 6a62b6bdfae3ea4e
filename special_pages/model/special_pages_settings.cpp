#include "special_pages_settings.h"

#include "cover_sync.h"
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

OSStatus writeList(Ticket &ticket, const QString &key, const SpecialPageList &list)
{
    const std::optional<Array> form = list.asTicket();
    return form ? setValue(ticket, client, key, *form) : removeValue(ticket, key);
}

Array formIn(const Ticket &ticket, const QString &key)
{
    return array(valueIn(ticket, key)).value_or(Array());
}

template <typename Page>
void readList(SpecialPageList &list, const Ticket &ticket, const QString &key)
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

void readSpecialPages(SpecialPagesSettings &settings, const Ticket &printSettings,
                      const Device &device)
{
    readList<Insert>(settings.inserts, printSettings, insertsKey());
    readList<ExceptionPage>(settings.exceptions, printSettings, exceptionsKey());
    settings.jobStock.reset();
    if (const auto stock = dictionary(valueIn(printSettings, ticketKey("JobLevelStock"))))
        settings.jobStock.emplace(&*stock);
    readCovers(settings.frontCover, settings.backCover, printSettings, device);
}

OSStatus writeSpecialPages(const SpecialPagesSettings &settings, Ticket &printSettings)
{
    writeCovers(settings.frontCover, settings.backCover, printSettings);
    writeList(printSettings, insertsKey(), settings.inserts);
    return writeList(printSettings, exceptionsKey(), settings.exceptions);
}

bool holdsSpecialPages(const Ticket &printSettings, const SpecialPagesSettings &settings)
{
    return settings.inserts.isWrittenAs(formIn(printSettings, insertsKey()))
        && settings.exceptions.isWrittenAs(formIn(printSettings, exceptionsKey()));
}

} // namespace kelvo
