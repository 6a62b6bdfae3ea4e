#include "special_page_edits.h"
#include "table.h"

#include <QTest>

using namespace kelvo;

namespace {

Insert insertAfter(std::int32_t page, std::int32_t quantity = 1)
{
    Insert insert;
    insert.setStartPage(page);
    insert.setQuantity(quantity);
    return insert;
}

ExceptionPage exceptionOf(std::int32_t first, std::int32_t last)
{
    ExceptionPage page;
    page.setStartPage(first);
    page.setEndPage(last);
    return page;
}

QString places(const std::vector<Insert> &inserts)
{
    QStringList places;
    for (const Insert &insert : inserts)
        places << QStringLiteral("%1x%2").arg(insert.quantity()).arg(insert.startPage());
    return places.join(u' ');
}

QString ranges(const std::vector<ExceptionPage> &pages)
{
    QStringList ranges;
    for (const ExceptionPage &page : pages)
        ranges << QStringLiteral("%1-%2").arg(page.startPage()).arg(page.endPage());
    return ranges.join(u' ');
}

} // namespace

class TestSpecialPageEdits : public QObject
{
    Q_OBJECT

private slots:
    void insertsComeOfWhatIsTyped_data();
    void insertsComeOfWhatIsTyped();
    void moreInsertsThanAListTakesAreRefused_data();
    void moreInsertsThanAListTakesAreRefused();
    void exceptionsComeOfWhatIsTyped_data();
    void exceptionsComeOfWhatIsTyped();
    void editingShowsWhereThePageIs_data();
    void editingShowsWhereThePageIs();
    void theImageShiftGoesWithTheTabs();
};

void TestSpecialPageEdits::insertsComeOfWhatIsTyped_data()
{
    const Table<std::int32_t, QString, OSStatus, QString> row{"position", "pages", "status",
                                                              "made"};

    row("pages", kInsertAfterPages, "2,5", noErr, "3x2 3x5");
    row("range, as typed", kInsertAfterPages, "4-6,1", noErr, "3x4 3x5 3x6 3x1");
    row("0 is before page 1", kInsertAfterPages, "0,1", noErr, "3x0 3x1");
    row("before page 1", kInsertBeforePage1, "7-3", noErr, "3x0");
    row("nothing", kInsertAfterPages, "", OSStatus(kPageRangesMalformed), "");
    row("too high", kInsertAfterPages, "100000", OSStatus(kPageNumberTooHigh), "");
}

void TestSpecialPageEdits::insertsComeOfWhatIsTyped()
{
    QFETCH(std::int32_t, position);
    QFETCH(QString, pages);

    std::vector<Insert> inserts = {insertAfter(9)};
    QTEST(insertsFrom({position, pages, insertAfter(9, 3)}, 0, &inserts), "status");
    QTEST(places(inserts), "made");
}

void TestSpecialPageEdits::moreInsertsThanAListTakesAreRefused_data()
{
    const Table<std::int32_t, QString, std::int32_t, OSStatus> row{"position", "pages", "others",
                                                                   "status"};

    const OSStatus tooMany = kTooManyInserts;
    row("one after each page", kInsertAfterPages, "1-", 0, noErr);
    row("and before page 1", kInsertAfterPages, "0-", 0, tooMany);
    row("beside another", kInsertAfterPages, "1-", 1, tooMany);
    row("into a full list", kInsertBeforePage1, "", kMostInserts, tooMany);
    row("the last place", kInsertAfterPages, "1", kMostInserts - 1, noErr);
}

void TestSpecialPageEdits::moreInsertsThanAListTakesAreRefused()
{
    QFETCH(std::int32_t, position);
    QFETCH(QString, pages);
    QFETCH(std::int32_t, others);

    std::vector<Insert> inserts;
    QTEST(insertsFrom({position, pages, {}}, others, &inserts), "status");
}

void TestSpecialPageEdits::exceptionsComeOfWhatIsTyped_data()
{
    const Table<QString, OSStatus, QString> row{"pages", "status", "made"};

    row("ranges", "4-6,2,12-", noErr, "4-6 2-2 12-99999");
    row("0", "5,0-3", OSStatus(kPageNumberTooLow), "");
    row("backwards", "7-3", OSStatus(kPageRangeBackwards), "");
}

void TestSpecialPageEdits::exceptionsComeOfWhatIsTyped()
{
    QFETCH(QString, pages);

    ExceptionEdit edit{pages, exceptionOf(9, 9)};
    edit.page.setPlex(2);
    std::vector<ExceptionPage> exceptions = {edit.page};
    QTEST(exceptionsFrom(edit, &exceptions), "status");
    QTEST(ranges(exceptions), "made");
    for (const ExceptionPage &page : exceptions)
        QCOMPARE(page.plex(), 2);
}

void TestSpecialPageEdits::editingShowsWhereThePageIs_data()
{
    // insert empty: before page 1
    const Table<std::int32_t, std::int32_t, QString, QString> row{"first", "last", "insert",
                                                                  "exception"};

    row("a page", 7, 7, "7", "7");
    row("a range", 4, 6, "4", "4-6");
    row("to the end", 12, kHighestPage, "12", "12-");
    row("the last page", kHighestPage, kHighestPage, "99999", "99999");
    row("no pages, from a ticket", -3, -2, "", "");
    row("ends before it begins, from a ticket", 7, 5, "7", "");
    row("beyond the last page, from a ticket", 7, 100'005, "7", "7-");
}

void TestSpecialPageEdits::editingShowsWhereThePageIs()
{
    QFETCH(std::int32_t, first);
    QFETCH(std::int32_t, last);
    QFETCH(QString, insert);

    const Insert edited = insertAfter(first);
    QCOMPARE(insertEdit(&edited).pages, insert);
    QCOMPARE(insertEdit(&edited).position,
             insert.isEmpty() ? kInsertBeforePage1 : kInsertAfterPages);
    const ExceptionPage page = exceptionOf(first, last);
    QTEST(exceptionEdit(&page).pages, "exception");
}

void TestSpecialPageEdits::theImageShiftGoesWithTheTabs()
{
    const auto optionAfter = [](std::int32_t before, std::int32_t after) {
        ExceptionPage page;
        page.imageShift()->option = 1;
        page.stock().setType(before);
        const bool wasTabStock = isTabStock(page.stock());
        page.stock().setType(after);
        settleImageShift(page, wasTabStock);
        return page.imageShift()->option;
    };
    QCOMPARE(optionAfter(kStockTypeTab, kStockTypeHeavyTab), 1);
    QCOMPARE(optionAfter(kStockTypeTab, kStockTypeStandard), kUnset);
    QCOMPARE(optionAfter(kStockTypeStandard, kStockTypePunched), 1);
}

QTEST_APPLESS_MAIN(TestSpecialPageEdits)
#include "test_special_page_edits.moc"
