#include "page_range_text.h"
#include "table.h"

#include <QTest>

#include <numeric>

using namespace kelvo;

using Ranges = std::vector<PageRange>;

class TestPageRangeText : public QObject
{
    Q_OBJECT

private slots:
    void readsRanges_data();
    void readsRanges();
    void refusesRanges_data();
    void refusesRanges();
    void refusesNullPointers();
};

void TestPageRangeText::readsRanges_data()
{
    const Table<QString, Ranges> row{"text", "ranges"};

    row("pages and ranges", "1,3,5-7", {{1, 1}, {3, 1}, {5, 3}});
    row("neither sorted nor merged", "5-6,5,1", {{5, 2}, {5, 1}, {1, 1}});
    row("one page long", "7-7", {{7, 1}});
    row("from the first page", "-3", {{1, 3}});
    row("to the last page", "12-", {{12, 99'988}});
    row("to the last page, then more", "99998-,2", {{99'998, 2}, {2, 1}});
    row("the last page", "99999", {{99'999, 1}});
    row("a range in two steps", "1-3-5", {{1, 3}, {1, 5}});
    row("a page behind a range", "1-3 5", {{1, 3}, {5, 1}});
    row("a range behind a page", "1 3-5", {{1, 1}, {3, 3}});
    row("no comma", "3 a 5", {{3, 1}, {5, 1}});
    row("blanks within", " 3 - 5 , - 2 ", {{3, 3}, {1, 2}});
    row("commas too many", ",,4,,", {{4, 1}});
    row("page 0", "0", {{0, 1}});
    row("from page 0", "0-1", {{0, 2}});
    row("page 0 to the last", "0-", {{0, 100'000}});
    row("leading zeros", QString(1000, u'0') + u'7', {{7, 1}});
    row("digits of two scripts", QStringLiteral("1\u0662"), {{12, 1}});
    row("digits of another script", QStringLiteral("\u0662,4"), {{4, 1}});
}

void TestPageRangeText::readsRanges()
{
    QFETCH(QString, text);
    QFETCH(Ranges, ranges);
    Ranges read{{9, 9}};
    QCOMPARE(CreatePageRangesBySeparatingString(&text, true, &read), noErr);
    QVERIFY(read == ranges);

    Ranges pages;
    for (const PageRange &range : ranges) {
        for (std::int32_t page = range.first; page < range.first + range.count; ++page)
            pages.push_back({page, 1});
    }
    QCOMPARE(CreatePageRangesBySeparatingString(&text, false, &read), noErr);
    QVERIFY(read == pages);
}

void TestPageRangeText::refusesRanges_data()
{
    const Table<QString, int> table{"text", "status"};

    const auto row = [&](const QString &text, PageRangeProblem problem) {
        table(qPrintable(QStringLiteral("'%1'").arg(text.left(20))), text, int(problem));
    };
    for (const char *text : {"", ",,", "odd pages", "-", "-,1", "--1", "3--", "1,-", "-3-", "1-3-"})
        row(text, kPageRangesMalformed);
    for (const char *text : {"100000", "1,100000", "1 100000", "-100000", "1-100000", "4294967297"})
        row(text, kPageNumberTooHigh);
    row(QString(1000, u'9'), kPageNumberTooHigh);
    for (const char *text : {"7-3", "-0", "1,7-3"})
        row(text, kPageRangeBackwards);
    // The first problem is the one reported.
    row("100000--,7-3", kPageNumberTooHigh);
    row("1--100000,7-3", kPageRangesMalformed);
    row("7-3,100000,--", kPageRangeBackwards);
}

void TestPageRangeText::refusesRanges()
{
    QFETCH(QString, text);
    for (const bool asRanges : {true, false}) {
        Ranges ranges{{9, 9}};
        QTEST(int(CreatePageRangesBySeparatingString(&text, asRanges, &ranges)), "status");
        QVERIFY(ranges.empty());
    }
}

void TestPageRangeText::refusesNullPointers()
{
    const QString text = "1";
    Ranges ranges{{9, 9}};
    QCOMPARE(CreatePageRangesBySeparatingString(nullptr, true, &ranges), paramErr);
    QVERIFY(ranges.empty());
    QCOMPARE(CreatePageRangesBySeparatingString(&text, true, nullptr), paramErr);
}

QTEST_APPLESS_MAIN(TestPageRangeText)
#include "test_page_range_text.moc"
