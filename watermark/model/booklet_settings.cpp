#include "booklet_settings.h"

#include "stock.h"
#include "ticket_values.h"

namespace kelvo {

namespace {

const QString client = QStringLiteral("com.kelvo.print");
const QString shellClient = QStringLiteral("K"); // of gutter, creep and new size

QString stockKey()
{
    return ticketKey("JobLevelStock");
}

void take(std::int32_t &value, const Ticket &ticket, const char *name)
{
    value = integer32(valueIn(ticket, ticketKey(name))).value_or(value);
}

void put(Ticket &ticket, const char *name, const QVariant &value, const QString &by)
{
    setValue(ticket, by, ticketKey(name), value);
}

} // namespace

void readBooklet(BookletSettings &booklet, const Ticket &printSettings)
{
    if (!boolean(valueIn(printSettings, ticketKey("BookletLayout"))).value_or(false)) {
        booklet.layout = kBookletOff;
        return;
    }
    booklet = {.layout = kBookletOn};
    take(booklet.pageBorders, printSettings, "BookletDrawOutlines");
    take(booklet.gutter, printSettings, "Gutter");
    take(booklet.creep, printSettings, "Creep");
    const auto stock = dictionary(valueIn(printSettings, stockKey()));
    if (stock && boolean(valueIn(printSettings, ticketKey("BookletForceNewSize"))).value_or(false))
        booklet.newSize = Stock(&*stock).size();
}

void writeBooklet(const BookletSettings &booklet, Ticket &printSettings)
{
    put(printSettings, "BookletLayout", booklet.isOn(), client);
    if (!booklet.isOn())
        return;
    put(printSettings, "BookletDrawOutlines", qint64(booklet.pageBorders), client);
    if (const auto dictionaryForm = dictionary(valueIn(printSettings, stockKey()))) {
        Stock stock(&*dictionaryForm);
        stock.setSize(booklet.newSize);
        put(printSettings, "JobLevelStock", stock.asTicket(), client);
        put(printSettings, "BookletForceNewSize", booklet.newSize != kUnset, shellClient);
    }
    put(printSettings, "Gutter", qint64(booklet.gutter), shellClient);
    put(printSettings, "Creep", qint64(booklet.creep), shellClient);
}

} // namespace kelvo
