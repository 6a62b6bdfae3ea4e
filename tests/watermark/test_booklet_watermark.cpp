#include "booklet_creation.h"
#include "booklet_watermark_settings.h"
#include "device_session.h"
#include "setting_maps.h"
#include "table.h"
#include "ticket_values.h"
#include "watermark_menu.h"

#include <QTest>

using namespace kelvo;
using namespace Qt::StringLiterals;

namespace {

const QString full = u"full"_s;

Ticket ticketOf(const Dictionary &entries, const PpdSelection &choices = {})
{
    Ticket ticket;
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry)
        setValue(ticket, u"test"_s, u"com.kelvo.print."_s + entry.key(), entry.value());
    ticket.ppdChoices = choices;
    return ticket;
}

// What of a ticket this is about: "FinishingOptions=24 Gutter=24[K] KVFold=…", sorted.
QString said(const Ticket &ticket)
{
    QStringList parts;
    for (const auto &[key, entry] : ticket.entries) {
        QString value = entry.value.toString();
        if (const auto stock = dictionary(entry.value))
            value = u"{%1}"_s.arg(stock->value(u"Size"_s).toString());
        const QString client = entry.client == u"K"_s ? u"[K]"_s : QString();
        parts << key.section(u'.', key.startsWith(u"com.kelvo"_s) ? 3 : -1) + u'=' + value + client;
    }
    for (auto choice = ticket.ppdChoices.cbegin(); choice != ticket.ppdChoices.cend(); ++choice)
        parts << choice.key() + u'=' + choice.value();
    parts.sort();
    return parts.join(u' ');
}

const QString noWatermark = u" watermark.FirstPageOnly=0 watermark.Option=2"_s;

} // namespace

class TestBookletWatermark : public QObject
{
    Q_OBJECT

private slots:
    void writesTheBooklet_data();
    void writesTheBooklet();
    void readsWhatItWrote();
    void aFoldIsReadWhereBookletsAreFolded_data();
    void aFoldIsReadWhereBookletsAreFolded();
    void equalCoversAreOne();
    void findsTheWatermarkOfATicket_data();
    void findsTheWatermarkOfATicket();
    void theMenuHasTheNamesAndMarks();
    void thePictureShowsTheSheets_data();
    void thePictureShowsTheSheets();
    void offersSizesThatAreKnown();
};

void TestBookletWatermark::writesTheBooklet_data()
{
    const Table<QString, BookletSettings, int, Dictionary, QString> row{"device", "booklet", "fold",
                                                                        "before", "after"};
    const BookletSettings off{.gutter = 36}, on{.layout = kBookletOn, .gutter = 36, .creep = 3};
    const BookletSettings newSize{.layout = kBookletOn, .pageBorders = 2, .newSize = 5};
    const QString layout =
        u"BookletDrawOutlines=1 BookletLayout=true Creep=3[K] Duplex=DuplexTumble "
        "FinishingDuplex=3 Gutter=36[K] KVFold=None PMDuplexing=3"_s;
    row("off", full, off, kFoldNone, {}, u"BookletLayout=false KVFold=None"_s);
    row("on", full, on, kFoldNone, {}, layout);
    row("on, with a stock", full, on, kFoldNone, {{"JobLevelStock", Dictionary{{"Size", 7}}}},
        u"BookletDrawOutlines=1 BookletForceNewSize=false[K] BookletLayout=true Creep=3[K] "
        "Duplex=DuplexTumble FinishingDuplex=3 Gutter=36[K] JobLevelStock={} KVFold=None "
        "PMDuplexing=3"_s);
    row("a new size", full, newSize, kFoldNone, {{"JobLevelStock", Dictionary{{"Size", 7}}}},
        u"BookletDrawOutlines=2 BookletForceNewSize=true[K] BookletLayout=true Creep=0[K] "
        "Duplex=DuplexTumble FinishingDuplex=3 Gutter=24[K] JobLevelStock={5} KVFold=None "
        "PMDuplexing=3"_s);
    row("folded, and off", full, off, kFoldBi, {{"FinishingOptions", 4}},
        u"BookletLayout=false FinishingOptions=24 KVFold=BiFold"_s);
    row("folded and stapled", full, off, kFoldBiAndStaple, {},
        u"BookletLayout=false FinishingOptions=24 KVFold=BiFoldStaple"_s);
    row("no fold any more", full, off, kFoldNone, {{"FinishingOptions", 24}},
        u"BookletLayout=false FinishingOptions=0 KVFold=None"_s);
    row("no fold, other options", full, off, kFoldNone, {{"FinishingOptions", 9}},
        u"BookletLayout=false FinishingOptions=9 KVFold=None"_s);
    row("another fold", full, off, 19, {}, u"BookletLayout=false KVFold=C"_s);
    row("one side only", u"bare"_s, on, kFoldBi, {{"FinishingOptions", 24}},
        u"FinishingOptions=24"_s);
}

void TestBookletWatermark::writesTheBooklet()
{
    QFETCH(QString, device);
    QFETCH(BookletSettings, booklet);
    QFETCH(int, fold);
    QFETCH(Dictionary, before);
    QFETCH(QString, after);
    const DeviceSession session(device);
    Ticket ticket = ticketOf(before);
    writeBookletWatermark({.booklet = booklet, .fold = fold}, ticket, currentDevice());
    QCOMPARE(said(ticket), after + noWatermark);
}

void TestBookletWatermark::readsWhatItWrote()
{
    const DeviceSession session(full);
    const BookletWatermarkSettings all{.booklet = {.layout = kBookletOn,
                                                   .pageBorders = 2,
                                                   .gutter = 216,
                                                   .creep = 10,
                                                   .newSize = 5},
                                       .fold = kFoldBiAndStaple,
                                       .watermark = u"Draft"_s,
                                       .option = kWatermarkForeground,
                                       .pages = kWatermarkOnPage1};
    Ticket ticket = ticketOf({{"JobLevelStock", Dictionary()}});
    writeBookletWatermark(all, ticket, currentDevice());
    BookletWatermarkSettings again;
    readBookletWatermark(again, ticket, currentDevice(), {u"Copy"_s, u"Draft"_s});
    QVERIFY(again == all);

    // Off: what is not in the ticket any more is still in the panel.
    setValue(ticket, u"test"_s, ticketKey("BookletLayout"), false);
    readBookletWatermark(again, ticket, currentDevice(), {});
    QCOMPARE(again.booklet.layout, kBookletOff);
    QCOMPARE(again.booklet.gutter, 216);
}

void TestBookletWatermark::aFoldIsReadWhereBookletsAreFolded_data()
{
    const Table<QString, QString, int> row{"device", "choice", "fold"};
    row("the PPD's default", full, {}, kFoldNone);
    row("folded", full, u"BiFold"_s, kFoldBi);
    row("another fold", full, u"C"_s, 19);
    row("one that has no value", full, u"Origami"_s, -1);
    row("no booklet maker", u"mid"_s, u"BiFold"_s, 0);
}

void TestBookletWatermark::aFoldIsReadWhereBookletsAreFolded()
{
    QFETCH(QString, device);
    QFETCH(QString, choice);
    QFETCH(int, fold);
    const DeviceSession session(device);
    Ticket ticket;
    if (!choice.isEmpty())
        ticket.ppdChoices.insert(u"KVFold"_s, choice);
    BookletWatermarkSettings settings;
    readBookletWatermark(settings, ticket, currentDevice(), {});
    QCOMPARE(settings.fold.value_or(0), fold);
    writeBookletWatermark(settings, ticket, currentDevice());
    const QString unset = fold == kFoldNone ? u"None"_s : QString();
    QCOMPARE(ticket.ppdChoices.value(u"KVFold"_s), choice.isEmpty() ? unset : choice);
}

void TestBookletWatermark::equalCoversAreOne()
{
    const DeviceSession session(full);
    const QString back = ticketKey("SpecialPages.BackCover");
    const Dictionary blank{{"SidesImaged", 1}}, printed{{"SidesImaged", 4}};
    for (const bool isEqual : {true, false}) {
        Ticket ticket = ticketOf({{"SpecialPages.FrontCover", blank},
                                  {"SpecialPages.BackCover", isEqual ? blank : printed}});
        writeBookletWatermark({}, ticket, currentDevice());
        QCOMPARE(valueIn(ticket, back).isNull(), isEqual);
        QVERIFY(!valueIn(ticket, ticketKey("SpecialPages.FrontCover")).isNull());
    }
}

void TestBookletWatermark::findsTheWatermarkOfATicket_data()
{
    const Table<QVariant, QString, QString> row{"named", "chosen", "absent"};
    row("none", {}, {}, {});
    row("by its name", u"Confidential"_s, u"Confidential"_s, {});
    row("in capital letters", u"CONFIDENTIAL"_s, u"Confidential"_s, {});
    row("the first of two", u"draft"_s, u"Draft"_s, {});
    row("not here", u"Secret"_s, {}, u"Secret"_s);
    row("empty", u""_s, {}, {});
    row("a number", 1, {}, {});
}

void TestBookletWatermark::findsTheWatermarkOfATicket()
{
    QFETCH(QVariant, named);
    QFETCH(QString, chosen);
    QFETCH(QString, absent);
    const DeviceSession session(u"bare"_s);
    Ticket ticket = ticketOf({{"watermark.Option", 3}, {"watermark.FirstPageOnly", 1}});
    const QString key = ticketKey("watermark.Watermark");
    if (!named.isNull())
        setValue(ticket, u"test"_s, key, named);
    BookletWatermarkSettings settings;
    readBookletWatermark(settings, ticket, currentDevice(),
                         {u"Draft"_s, u"DRAFT"_s, u"Confidential"_s});
    QCOMPARE(settings.watermark, chosen);
    QCOMPARE(settings.absentWatermark, absent);
    QCOMPARE(settings.option, kWatermarkForeground);
    QCOMPARE(settings.pages, kWatermarkOnPage1);
    writeBookletWatermark(settings, ticket, currentDevice());
    QCOMPARE(valueIn(ticket, key).toString(), chosen);
    QCOMPARE(valueIn(ticket, key).isNull(), chosen.isEmpty());
    QCOMPARE(integer32(valueIn(ticket, ticketKey("watermark.FirstPageOnly"))), 1);
}

void TestBookletWatermark::theMenuHasTheNamesAndMarks()
{
    const DeviceSession session(full);
    listOfWatermarks = {u"Draft"_s, u"Copy"_s};
    Menu menu;
    PopulateWatermarkMenuFromMapAndHistory(currentDevice(), menu, WatermarkMap);
    const auto described = [&menu] {
        QStringList lines;
        const auto describe = [&lines](const MenuItem &item) {
            lines << (item.divider ? u"-"_s : item.text) + (item.checked ? u"*"_s : QString())
                    + (item.enabled ? QString() : u" off"_s);
        };
        for (const MenuItem &item : menu.items) {
            describe(item);
            for (const MenuItem &option : item.submenu)
                describe(option);
        }
        return lines.join(u'|');
    };
    QCOMPARE(menu.items[1].reference, 0);
    QCOMPARE(menu.items[2].reference, 1); // as NoWatermark's value, under another command
    QCOMPARE(menu.items[2].command, kCommandWatermark);
    MarkWatermarkMenu(menu, {});
    QCOMPARE(described(),
             u"None*|Draft|Copy|-|Options|Print in background|Blend with page*|Print in foreground|"
             "-|Print on all pages*|Print on page 1 only|New…|Edit… off|Delete off"_s);
    BookletWatermarkSettings settings{.watermark = u"Copy"_s};
    QVERIFY(applyWatermarkOption(settings, fourCharCode("KWmB")));
    QVERIFY(applyWatermarkOption(settings, fourCharCode("KWm1")));
    QVERIFY(!applyWatermarkOption(settings, kCommandNewWatermark));
    QVERIFY(!applyWatermarkOption(settings, kNoCommand));
    MarkWatermarkMenu(menu, settings);
    QCOMPARE(described(),
             u"None|Draft|Copy*|-|Options|Print in background*|Blend with page|Print in foreground|"
             "-|Print on all pages|Print on page 1 only*|New…|Edit…|Delete"_s);
}

void TestBookletWatermark::thePictureShowsTheSheets_data()
{
    const Table<int, bool, bool, QString> row{"fold", "isOn", "isOutlined", "picture"};
    row("nothing", kFoldNone, false, false, u"None"_s);
    row("outlines alone", kFoldNone, false, true, u"None"_s);
    row("another fold", 19, true, false, u"Booklet"_s);
    row("outlined", kFoldNone, true, true, u"Booklet-Outlines"_s);
    row("folded", kFoldBi, false, true, u"Fold"_s);
    row("folded booklet", kFoldBi, true, true, u"Booklet-Fold-Outlines"_s);
    row("stapled", kFoldBiAndStaple, false, false, u"Fold-Staple"_s);
    row("stapled booklet", kFoldBiAndStaple, true, false, u"Booklet-Fold-Staple"_s);
    row("all", kFoldBiAndStaple, true, true, u"Booklet-Fold-Staple-Outlines"_s);
}

void TestBookletWatermark::thePictureShowsTheSheets()
{
    QFETCH(int, fold);
    QFETCH(bool, isOn);
    QFETCH(bool, isOutlined);
    QFETCH(QString, picture);
    const QString name = bookletPicture(paramsOf(
        {.layout = isOn ? kBookletOn : kBookletOff, .pageBorders = isOutlined ? 2 : 1}, fold));
    QCOMPARE(name, u"BookletCreation_%1.gif"_s.arg(picture));
}

void TestBookletWatermark::offersSizesThatAreKnown()
{
    const DeviceSession session(full);
    const Menu menu = newSizeMenu(currentDevice());
    QCOMPARE(menu.items.front().reference, kUnset);
    QVERIFY(menu.items.size() > 5);
    for (const MenuItem &item : menu.items)
        QCOMPARE(sizeOfPaper(currentDevice(), item.reference).isEmpty(), item.reference == kUnset);
}

QTEST_GUILESS_MAIN(TestBookletWatermark)
#include "test_booklet_watermark.moc"
