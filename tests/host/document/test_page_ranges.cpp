#include "page_ranges.h"
#include "table.h"

#include <QTest>

using namespace kelvo;

using Runs = std::vector<PageRun>;
Q_DECLARE_METATYPE(kelvo::Error::Code)

class TestPageRanges : public QObject
{
    Q_OBJECT

private slots:
    void readsRanges_data();
    void readsRanges();
    void refusesRanges_data();
    void refusesRanges();
    void boundsWhatRangesMultiply();
    void countsPages();
};

void TestPageRanges::readsRanges_data()
{
    // runs: of a document of 12 pages
    const Table<QString, Runs> row{"text", "runs"};

    row("nothing is everything", "  ", {{1, 12}});
    row("one page", "7", {{7, 7}});
    row("the order written", "9-10,1-3", {{9, 10}, {1, 3}});
    row("overlapping", "1-3,2", {{1, 3}, {2, 2}});
    row("blanks", " 1 - 3 , 7 ", {{1, 3}, {7, 7}});
    row("open end", "9-", {{9, 12}});
    row("open begin", "-3", {{1, 3}});
    row("last page", "12-12", {{12, 12}});
    row("ends after the document", "11-13", {{11, 12}});
    row("backwards", "6-1,3-2", {{6, 1}, {3, 2}});
    row("backwards from after the document", "13-11", {{12, 11}});
    row("ends after all numbers", "11-99999999999999999999", {{11, 12}});
}

void TestPageRanges::readsRanges()
{
    QFETCH(QString, text);
    QFETCH(Runs, runs);

    const Result<Runs> read = pageRunsFrom(text, 12);

    QVERIFY2(read, read ? "" : qPrintable(read.error().text()));
    QVERIFY(read.value() == runs);
}

void TestPageRanges::refusesRanges_data()
{
    using Code = Error::Code;
    // part: named in the message
    const Table<QString, Error::Code, QString> row{"text", "code", "part"};

    row("page 0", "1,0", Code::OutOfRange, "“0”");
    row("from page 0", "0-3", Code::OutOfRange, "“0-3”");
    row("up to page 0", "-0", Code::OutOfRange, "“-0”");
    row("one after the last", "13", Code::OutOfRange, "“13”");
    row("backwards, all after the last", "15-13", Code::OutOfRange, "“15-13”");
    row("begins after the last", "13-", Code::OutOfRange, "“13-”");
    row("after all numbers", "4294967297", Code::OutOfRange, "“4294967297”");
    row("only a dash", "-", Code::Damaged, "“-”");
    row("a comma too many", "1,,3", Code::Damaged, "“”");
    row("a comma at the end", "1,", Code::Damaged, "“”");
    row("two dashes", "1--3", Code::Damaged, "“1--3”");
    row("a blank inside", "1 2", Code::Damaged, "“1 2”");
    row("a word", "1,odd", Code::Damaged, "“odd”");
    row("a fraction", "1.5", Code::Damaged, "“1.5”");
    row("other digits", "\u0661", Code::Damaged, "");
}

void TestPageRanges::refusesRanges()
{
    QFETCH(QString, text);
    QFETCH(Error::Code, code);
    QFETCH(QString, part);

    const Result<Runs> read = pageRunsFrom(text, 12);

    QVERIFY(!read);
    QCOMPARE(read.error().code, code);
    QVERIFY2(read.error().where.contains(part), qPrintable(read.error().where));
}

void TestPageRanges::boundsWhatRangesMultiply()
{
    QVERIFY(pageRunsFrom("1-,1-", 50'000));
    const Result<Runs> tooMany = pageRunsFrom("1-,1-,1", 50'000);
    QVERIFY(!tooMany);
    QCOMPARE(tooMany.error().code, Error::Code::TooLarge);
    QVERIFY(pageRunsFrom("1-", 150'000)); // a document may have more by itself
}

void TestPageRanges::countsPages()
{
    const Runs runs{{9, 10}, {3, 1}, {7, 7}};

    QCOMPARE(pageCount(runs), 6);
    QCOMPARE(pagesIn(runs), (std::vector<int>{9, 10, 3, 2, 1, 7}));
}

QTEST_APPLESS_MAIN(TestPageRanges)
#include "test_page_ranges.moc"
