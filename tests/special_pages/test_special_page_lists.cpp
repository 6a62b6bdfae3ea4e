#include "print_session.h"
#include "special_pages_settings.h"
#include "table.h"

#include <QTest>

#include <array>
#include <map>
#include <random>

using namespace kelvo;

namespace {

const QString kShiftKey = QStringLiteral("com.kelvo.print.ImageShiftOptionsPage");

Insert insertAfter(std::int32_t page, std::int32_t quantity)
{
    Insert insert;
    insert.setStartPage(page);
    insert.setQuantity(quantity);
    return insert;
}

ExceptionPage exceptionFor(std::int32_t first, std::int32_t last, std::int32_t plex)
{
    ExceptionPage page;
    page.setStartPage(first);
    page.setEndPage(last);
    page.setPlex(plex);
    return page;
}

template <class Page>
std::vector<const SpecialPage *> pointersTo(const std::vector<Page> &pages)
{
    std::vector<const SpecialPage *> pointers;
    pointers.reserve(pages.size());
    for (const Page &page : pages)
        pointers.push_back(&page);
    return pointers;
}

template <class List, class Page>
void add(List &list, const std::vector<Page> &pages)
{
    QCOMPARE(list.add(pointersTo(pages)), noErr);
}

// Exception pages by their range, inserts by the page they follow, and what tells
// those from one another: "1-4:1 5-8:2".
QString textOf(const ExceptionPageList &list, bool onlyCovering = false)
{
    QStringList texts;
    for (std::int32_t index = 0; index < list.count(); ++index) {
        const ExceptionPage &page = *list.pageAtIndex(index);
        if (!onlyCovering || page.coversPages())
            texts += QStringLiteral("%1-%2:%3")
                         .arg(page.startPage())
                         .arg(page.endPage())
                         .arg(page.plex());
    }
    return texts.join(u' ');
}

QString textOf(const InsertList &list)
{
    QStringList texts;
    for (std::int32_t index = 0; index < list.count(); ++index) {
        const Insert &page = *list.pageAtIndex(index);
        texts += QStringLiteral("%1:%2").arg(page.startPage()).arg(page.quantity());
    }
    return texts.join(u' ');
}

// "3-4,6-7" as exception pages whose plex counts up from `plex`.
std::vector<ExceptionPage> exceptionsFrom(const QString &text, std::int32_t plex)
{
    std::vector<ExceptionPage> pages;
    for (const QString &range : text.split(u',', Qt::SkipEmptyParts)) {
        const qsizetype dash = range.lastIndexOf(u'-');
        pages.push_back(
            exceptionFor(range.left(dash).toInt(), range.mid(dash + 1).toInt(), plex++));
    }
    return pages;
}

int upTo(int most, std::mt19937 &random)
{
    return static_cast<int>(random() % static_cast<unsigned>(most + 1));
}

// A plain picture of exception pages: on each page the number of the range that
// came last, 0 on a page without one.
using Picture = std::array<std::int32_t, 24>;

void paint(Picture &picture, std::int32_t first, std::int32_t last, std::int32_t number)
{
    for (std::int32_t page = first; page <= last; ++page)
        picture[page] = number;
}

QString textOf(const Picture &picture)
{
    QStringList texts;
    for (std::size_t first = 0, end = 0; first < picture.size(); first = end) {
        while (end < picture.size() && picture[end] == picture[first])
            ++end;
        if (picture[first] != 0)
            texts += QStringLiteral("%1-%2:%3").arg(first).arg(end - 1).arg(picture[first]);
    }
    return texts.join(u' ');
}

// What a page in a list was before a change.
struct Before
{
    const ExceptionPage *page;
    std::int32_t first, last, number;
};

std::vector<Before> pagesOf(const ExceptionPageList &list)
{
    std::vector<Before> pages;
    for (std::int32_t index = 0; index < list.count(); ++index) {
        const ExceptionPage *page = list.pageAtIndex(index);
        pages.push_back({page, page->startPage(), page->endPage(), page->plex()});
    }
    return pages;
}

// Whether what is left of the page begins with the page itself. All of one that covers
// nothing is left.
bool isFirstPiece(const ExceptionPageList &list, const Before &before, const Picture &picture)
{
    if (before.last < before.first)
        return list.indexOfPage(before.page) >= 0 && before.page->startPage() == before.first
            && before.page->endPage() == before.last;
    const auto end = picture.begin() + before.last + 1;
    const auto left = std::find(picture.begin() + before.first, end, before.number);
    return left == end
        || (list.indexOfPage(before.page) >= 0
            && before.page->startPage() == left - picture.begin());
}

struct ScreenedPage : ExceptionPage
{
    explicit ScreenedPage(std::int32_t screen) { m_halftoneScreen = screen; }
};

// A list that is full.
struct FullList : InsertList
{
    OSStatus add(Pages) override { return isFull ? paramErr : noErr; }
    bool isFull = true;
    void fill(const std::vector<Insert> &inserts) { InsertList::add(pointersTo(inserts)); }
};

} // namespace

class TestSpecialPageLists : public QObject
{
    Q_OBJECT

private slots:
    void readsAndWritesPages_data();
    void readsAndWritesPages();
    void screensAreWrittenOnly();
    void formIsKeptUntilTheListChanges();
    void insertsAfterAPageStayInTheOrderAdded();
    void insertsMoveAmongThoseAfterTheSamePage();
    void pagesAreFoundAndRemovedByIdentity();
    void aPageStaysWhereItsReplacementsFail();
    void laterExceptionsWin_data();
    void laterExceptionsWin();
    void exceptionsAreWhatThePagesSay();
    void settingsAreCopiedAsAWhole();
};

void TestSpecialPageLists::readsAndWritesPages_data()
{
    const Table<bool, Dictionary, Dictionary> row{"isInsert", "read", "written"};

    constexpr bool insert = true, exception = false;
    const qint64 beyond = qint64(1) << 32;
    const Dictionary noStock;
    const Dictionary plainInsert{{"StartPage", 0}, {"Stock", noStock}, {"Quantity", 1}};
    const Dictionary plainException{{"StartPage", 0}, {"Stock", noStock}, {"EndPage", 0}};
    const Dictionary blue{{"Color", 2}, {"CustomName", "Blue"}};
    const Dictionary fullInsert{{"StartPage", 4}, {"Stock", blue}, {"Quantity", 3}};
    const Dictionary shift{{"Option", 2}, {"Inches", 1}, {"FullPrecision", true},
                           {"X1", 51},    {"X2", 0},     {"Y1", -51},
                           {"Y2", 0}};
    const Dictionary fullException{
        {"StartPage", 4},   {"EndPage", 9},       {"Stock", blue},
        {"SidesImaged", 2}, {"LightenDarken", 0}, {kShiftKey, shift},
    };

    row("insert", insert, fullInsert, fullInsert);
    row("insert without keys", insert, {}, plainInsert);
    row("insert with other types", insert, {{"StartPage", "4"}, {"Stock", 1}, {"Quantity", beyond}},
        plainInsert);
    row("exception", exception, fullException, fullException);
    row("exception without keys", exception, {}, plainException);
    row("exception with other types", exception,
        {{"StartPage", true},
         {"EndPage", beyond},
         {"Stock", Array()},
         {"SidesImaged", "2"},
         {"LightenDarken", 0.5},
         {kShiftKey, Array()}},
        plainException);
    row("screen is not read", exception, {{"HalftoneScreen", 2}}, plainException);
}

void TestSpecialPageLists::readsAndWritesPages()
{
    QFETCH(bool, isInsert);
    QFETCH(Dictionary, read);
    QTEST(isInsert ? Insert(read).asTicket() : ExceptionPage(read).asTicket(), "written");
}

void TestSpecialPageLists::screensAreWrittenOnly()
{
    const ScreenedPage page(106);
    QCOMPARE(integer32(page.asTicket(), "HalftoneScreen"), 106);
    QCOMPARE(integer32(page.clone()->asTicket(), "HalftoneScreen"), 106);
}

void TestSpecialPageLists::formIsKeptUntilTheListChanges()
{
    InsertList list;
    QVERIFY(!list.asTicket());
    QVERIFY(list.isWrittenAs({}));

    const std::vector<Insert> inserts{insertAfter(9, 1), insertAfter(4, 2), insertAfter(4, 3)};
    const Array form{inserts[1].asTicket(), inserts[2].asTicket(), inserts[0].asTicket()};
    add(list, inserts);
    PrintSession session;
    const PMTicketRef ticket = session.printSettingsTicket();
    // Whether the list is written as the ticket says, after `change`.
    const auto isWritten = [&](auto change) {
        PMTicketSetCFArray(ticket, "test", "Inserts", list.asTicket().value(), false);
        change();
        return list.isWrittenAs(PMTicketGetCFArray(ticket, "Inserts").value());
    };
    QVERIFY(isWritten([] {}));
    QCOMPARE(list.asTicket().value(), form);
    QVERIFY(!list.isWrittenAs(form)); // an equal array says nothing about later changes

    const Insert other = insertAfter(1, 1);
    const std::vector<const SpecialPage *> others{&other};
    QVERIFY(isWritten([&] { list.remove(&other); })); // not in the list
    QVERIFY(isWritten([&] { list.update(other, others); }));
    QVERIFY(!isWritten([&] { list.promote(list.pageAtIndex(1)); }));
    QVERIFY(!isWritten([&] { list.demote(list.pageAtIndex(0)); }));
    QVERIFY(!isWritten([&] { list.add(others); }));
    QVERIFY(!isWritten([&] { list.update(*list.pageAtIndex(0), others); }));
    QVERIFY(!isWritten([&] { list.remove(list.pageAtIndex(0)); }));
    QVERIFY(!isWritten([&] {
        list.remove(SpecialPageList::Pages(std::vector<const SpecialPage *>{list.pageAtIndex(0)}));
    }));
    QVERIFY(!isWritten([&] { list.clear(); }));
}

void TestSpecialPageLists::insertsAfterAPageStayInTheOrderAdded()
{
    std::mt19937 random(1);
    InsertList list;
    std::map<std::int32_t, QStringList> byPage;
    for (std::int32_t quantity = 1; quantity < 300;) {
        std::vector<Insert> inserts;
        for (int more = upTo(6, random); more > 0; --more, ++quantity) {
            inserts.push_back(insertAfter(upTo(8, random), quantity));
            byPage[inserts.back().startPage()] +=
                QStringLiteral("%1:%2").arg(inserts.back().startPage()).arg(quantity);
        }
        add(list, inserts);
    }
    QStringList expected;
    for (const auto &[page, texts] : byPage)
        expected += texts;
    QCOMPARE(textOf(list), expected.join(u' '));
}

void TestSpecialPageLists::insertsMoveAmongThoseAfterTheSamePage()
{
    InsertList list;
    add(list,
        std::vector{insertAfter(3, 1), insertAfter(4, 2), insertAfter(4, 3), insertAfter(5, 4)});
    QString canPromote, canDemote;
    for (std::int32_t index = 0; index < list.count(); ++index) {
        canPromote += list.canPromote(list.pageAtIndex(index)) ? u'+' : u'-';
        canDemote += list.canDemote(list.pageAtIndex(index)) ? u'+' : u'-';
    }
    QCOMPARE(canPromote, "--+-");
    QCOMPARE(canDemote, "-+--");

    const Insert *insert = list.pageAtIndex(2);
    list.promote(insert);
    QCOMPARE(textOf(list), "3:1 4:3 4:2 5:4");
    list.promote(insert); // no further
    QCOMPARE(textOf(list), "3:1 4:3 4:2 5:4");
    list.demote(insert);
    QCOMPARE(textOf(list), "3:1 4:2 4:3 5:4");
    QCOMPARE(list.pageAtIndex(2), insert);

    // Many, one after the other: the first cannot move, and the second passes it.
    InsertList many;
    add(many, std::vector{insertAfter(4, 1), insertAfter(4, 2), insertAfter(4, 3)});
    const std::vector<const SpecialPage *> firstTwo{many.pageAtIndex(0), many.pageAtIndex(1)};
    many.promote(firstTwo);
    QCOMPARE(textOf(many), "4:2 4:1 4:3");
    many.promote(firstTwo); // as they were given, not as they stand
    QCOMPARE(textOf(many), "4:2 4:1 4:3");
    many.demote(firstTwo);
    QCOMPARE(textOf(many), "4:3 4:2 4:1");
    const std::vector<const SpecialPage *> strangers{nullptr, insert};
    many.promote(strangers);
    QCOMPARE(textOf(many), "4:3 4:2 4:1");

    const Insert stranger = insertAfter(4, 2);
    QVERIFY(!list.canPromote(&stranger) && !list.canDemote(&stranger));
    QVERIFY(!list.canPromote(nullptr) && !list.canDemote(nullptr));
}

void TestSpecialPageLists::pagesAreFoundAndRemovedByIdentity()
{
    InsertList list;
    const std::vector<Insert> inserts{insertAfter(4, 1), insertAfter(4, 1), insertAfter(4, 2),
                                      insertAfter(7, 3), insertAfter(9, 4)};
    add(list, inserts);
    for (std::int32_t index = 0; index < list.count(); ++index)
        QCOMPARE(list.indexOfPage(list.pageAtIndex(index)), index);
    QCOMPARE(list.indexOfPage(&inserts[0]), -1);
    QCOMPARE(list.indexOfPage(nullptr), -1);
    QVERIFY(!list.pageAtIndex(-1) && !list.pageAtIndex(5));

    list.remove(&inserts[0]);
    QCOMPARE(list.count(), 5);
    const SpecialPage *kept = list.pageAtIndex(0);
    list.remove(list.pageAtIndex(1));
    QCOMPARE(textOf(list), "4:1 4:2 7:3 9:4");
    QCOMPARE(list.pageAtIndex(0), kept);
    list.remove(std::vector<const SpecialPage *>{list.pageAtIndex(3), nullptr, &inserts[1],
                                                 list.pageAtIndex(1), list.pageAtIndex(3)});
    QCOMPARE(textOf(list), "4:1 7:3");
}

void TestSpecialPageLists::aPageStaysWhereItsReplacementsFail()
{
    FullList list;
    list.fill({insertAfter(4, 1), insertAfter(4, 2), insertAfter(4, 3)});
    const Insert *page = list.pageAtIndex(1);
    const Insert other = insertAfter(1, 9);
    const std::vector<const SpecialPage *> replacements{&other};

    QCOMPARE(list.update(*page, replacements), paramErr);
    QCOMPARE(textOf(list), "4:1 4:2 4:3");
    QCOMPARE(list.pageAtIndex(1), page);
    QCOMPARE(list.update(other, replacements), noErr); // add() is not asked
    list.isFull = false;
    QCOMPARE(list.update(*page, replacements), noErr);
    QCOMPARE(textOf(list), "4:1 4:3");
}

void TestSpecialPageLists::laterExceptionsWin_data()
{
    // old: plex 1 and so on, in one batch; added: plex 11 and so on
    const Table<QString, QString, QString> row{"old", "added", "result"};

    row("inside", "1-10", "5-8", "1-4:1 5-8:11 9-10:1");
    row("over several", "3-4,6-7", "1-10", "1-10:11");
    row("the end", "1-7", "5-10", "1-4:1 5-10:11");
    row("the beginning", "1-7", "1-3", "1-3:11 4-7:1");
    row("the last page", "1-7", "7-7", "1-6:1 7-7:11");
    row("the same", "1-7", "1-7", "1-7:11");
    row("from before", "3-7", "1-5", "1-5:11 6-7:1");
    row("across a gap", "1-3,7-9", "2-8", "1-1:1 2-8:11 9-9:2");
    row("touching", "4-6", "7-9,1-3", "1-3:12 4-6:1 7-9:11");
    row("upside down", "", "9-9,5-5,1-1", "1-1:13 5-5:12 9-9:11");
    row("among themselves", "", "1-9,2-8,3-7,5-5",
        "1-1:11 2-2:12 3-4:13 5-5:14 6-7:13 8-8:12 9-9:11");
    row("hidden at once", "5-5", "5-5,4-6", "4-6:12");
    row("again after a gap", "1-9", "3-4,3-3,4-4", "1-2:1 3-3:12 4-4:13 5-9:1");
    row("end before begin", "1-9", "5-4,2147483647-0,3-3",
        "1-2:1 3-3:13 4-9:1 5-4:11 2147483647-0:12");
    row("before what begins there", "5-0,5-8,7-0", "5-6,5-1", "5-0:1 5-1:12 5-6:11 7-0:3 7-8:2");
    row("only such", "", "9-1", "9-1:11");
    row("all of 32 bits", "-2147483648-2147483647", "0-0",
        "-2147483648--1:1 0-0:11 1-2147483647:1");
}

void TestSpecialPageLists::laterExceptionsWin()
{
    QFETCH(QString, old);
    QFETCH(QString, added);
    ExceptionPageList list;
    add(list, exceptionsFrom(old, 1));
    add(list, exceptionsFrom(added, 11));
    QTEST(textOf(list), "result");
}

void TestSpecialPageLists::exceptionsAreWhatThePagesSay()
{
    constexpr int sequences = 3000, steps = 6, lastPage = int(Picture().size()) - 1;
    std::mt19937 random(1);
    for (int sequence = 0; sequence < sequences; ++sequence) {
        ExceptionPageList list;
        Picture picture{};
        std::int32_t number = 0;
        for (int step = 0; step < steps; ++step) {
            const std::vector<Before> before = pagesOf(list);
            const Before *updated = nullptr;
            if (!before.empty() && upTo(2, random) == 0) {
                updated = &before[upTo(list.count() - 1, random)];
                paint(picture, updated->first, updated->last, 0);
            }
            std::vector<ExceptionPage> batch;
            for (int more = upTo(5, random); more > 0; --more) {
                const int first = upTo(lastPage, random);
                const int last = std::min(first + upTo(9, random) - 1, lastPage); // or before it
                batch.push_back(exceptionFor(first, last, ++number));
                paint(picture, first, last, number);
            }
            if (updated)
                list.update(*updated->page, pointersTo(batch));
            else
                add(list, batch);

            QCOMPARE(textOf(list, true), textOf(picture));
            for (const Before &page : before)
                QVERIFY(&page == updated || isFirstPiece(list, page, picture));
        }
    }
}

void TestSpecialPageLists::settingsAreCopiedAsAWhole()
{
    SpecialPagesSettings settings;
    add(settings.exceptions, exceptionsFrom("1-3,5-7", 1));
    add(settings.inserts, std::vector{insertAfter(2, 3)});
    settings.frontCover.emplace().setSidesImaged(kCoverPrinted);
    SpecialPagesSettings copy;
    copy = settings;
    QVERIFY(copy == settings);
    QCOMPARE(copy.exceptions.indexOfPage(settings.exceptions.pageAtIndex(0)), -1);
    settings.exceptions.clear();
    QVERIFY(copy != settings);
    QCOMPARE(textOf(copy.exceptions), "1-3:1 5-7:2");

    // What a ticket has as it was written keeps its pages, also where they have moved.
    Ticket ticket;
    QCOMPARE(writeSpecialPages(copy, ticket), noErr);
    const auto identity = copy.inserts.pageAtIndex(0)->identity();
    SpecialPagesSettings moved;
    moved = std::move(copy);
    QVERIFY(holdsSpecialPages(ticket, moved));
    readSpecialPages(moved, ticket, Device());
    QCOMPARE(moved.inserts.pageAtIndex(0)->identity(), identity);
    readSpecialPages(settings, ticket, Device());
    QVERIFY(settings.inserts.pageAtIndex(0)->identity() != identity);
    QVERIFY(settings == moved);
}

QTEST_APPLESS_MAIN(TestSpecialPageLists)
#include "test_special_page_lists.moc"
