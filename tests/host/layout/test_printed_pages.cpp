#include "page_ranges.h"
#include "printed_pages.h"
#include "table.h"

#include <QTest>

using namespace kelvo;

Q_DECLARE_METATYPE(kelvo::PageLayout)
Q_DECLARE_METATYPE(kelvo::PageSet)

namespace {

const QSizeF a4(595, 842);
const QSizeF a3(842, 1191);
const QSizeF a5(420, 595);
const QSizeF letter(612, 792);
const Paper onA4{a4, {12, 12}};

PagesToPrint request(const QString &ranges, int count, const QSizeF &size = a4)
{
    PagesToPrint pages;
    pages.chosen = pagesIn(pageRunsFrom(ranges, count).value());
    pages.sizeOf = [size](int) { return size; };
    pages.paper = onA4;
    return pages;
}

// "1 2 | 3 -": pages in their places, "-" for one that stays free.
QString inWords(const PrintedPages &pages)
{
    QStringList sides;
    for (int printed = 1; printed <= pages.count(); ++printed) {
        QStringList places;
        for (const int page : pages.onPage(printed))
            places << (page > 0 ? QString::number(page) : QString("-"));
        sides << places.join(' ');
    }
    return sides.join(" | ");
}

QRectF rounded(const QRectF &rect)
{
    return QRectF(rect.toRect());
}

} // namespace

class TestPrintedPages : public QObject
{
    Q_OBJECT

private slots:
    void ordersPages_data();
    void ordersPages();
    void scalesPages_data();
    void scalesPages();
    void dividesSheets_data();
    void dividesSheets();
    void followsTheFlow_data();
    void followsTheFlow();
    void liesOnAnother_data();
    void liesOnAnother();
};

void TestPrintedPages::ordersPages_data()
{
    const Table<QString, PageSet, int, bool, bool, QString> row{
        "ranges", "set", "perSide", "isReversed", "pairsSides", "sides"}; // of 5 pages
    using enum PageSet;

    row("all", "", All, 1, false, false, "1 | 2 | 3 | 4 | 5");
    row("backwards, a page twice", "5-3,4", All, 1, false, false, "5 | 4 | 3 | 4");
    row("odd by the document's numbers", "2-5", Odd, 1, false, false, "3 | 5");
    row("even", "", Even, 1, false, false, "2 | 4");
    row("none of them", "3", Even, 1, false, false, "");
    row("reversed", "", All, 1, true, false, "5 | 4 | 3 | 2 | 1");
    row("reversed sheets keep their fronts", "", All, 1, true, true, "5 | - | 3 | 4 | 1 | 2");
    row("reversed sheets, all full", "1-4", All, 1, true, true, "3 | 4 | 1 | 2");
    row("several on a side", "", All, 2, false, false, "1 2 | 3 4 | 5 -");
    row("several, odd ones", "", Odd, 4, false, false, "1 3 5 -");
    row("several, reversed", "", All, 2, true, false, "5 - | 3 4 | 1 2");
    row("several, reversed sheets", "", All, 2, true, true, "5 - | - - | 1 2 | 3 4");
}

void TestPrintedPages::ordersPages()
{
    QFETCH(QString, ranges);
    QFETCH(PageSet, set);
    QFETCH(int, perSide);
    QFETCH(bool, isReversed);
    QFETCH(bool, pairsSides);
    QFETCH(QString, sides);

    PagesToPrint wanted = request(ranges, 5);
    wanted.set = set;
    wanted.layout.pagesPerSide = perSide;
    wanted.isReversed = isReversed;
    wanted.pairsSides = pairsSides;
    const PrintedPages pages(wanted);

    QCOMPARE(inWords(pages), sides);
    for (int page = 1; page <= 5; ++page) {
        const int printed = pages.findPrinted(page);
        QCOMPARE(pages.onPage(printed).contains(page), sides.contains(QString::number(page)));
    }
    QCOMPARE(pages.onPage(0), QList<int>());
    QCOMPARE(pages.onPage(pages.count() + 1), QList<int>());
}

void TestPrintedPages::scalesPages_data()
{
    const Table<QSizeF, PageLayout, bool, QSizeF, QRectF> row{"page", "layout", "isAsItIs", "size",
                                                              "rect"}; // on A4, margins of 12
    using enum PageScaling;
    const QRectF whole(QPointF(), a4);
    const QRectF wide(QPointF(), a4.transposed());

    row("as large as the paper", a4, {}, true, a4, whole);
    row("as large, but for rounding", {596, 841}, {}, true, {596, 841}, {0, 0, 596, 841});
    row("as large, across", a4.transposed(), {}, true, a4.transposed(), wide);
    row("smaller", a5, {}, false, a4, {88, 124, 420, 595});
    row("larger", a3, {}, false, a4, {12, 17, 571, 808});
    row("larger, across", a3.transposed(), {}, false, a4.transposed(), {17, 12, 808, 571});
    row("wider only", letter, {}, false, a4, {12, 52, 571, 739});
    row("fit, larger", a3, {.scaling = Fit}, false, a4, {12, 17, 571, 808});
    row("fit, smaller", a5, {.scaling = Fit}, false, a4, {12, 17, 571, 809});
    row("fit, as large: the margins stay free", a4, {.scaling = Fit}, false, a4,
        {12, 17, 571, 808});
    row("fill", letter, {.scaling = Fill}, false, a4, {-28, 0, 651, 842});
    row("none", a3, {.scaling = None}, false, a4, {-124, -175, 842, 1191});
    row("half", a4, {.scaling = Percent, .percent = 50}, false, a4, {149, 211, 297, 421});
    row("all of it", a4, {.scaling = Percent, .percent = 100}, true, a4, whole);
}

void TestPrintedPages::scalesPages()
{
    QFETCH(QSizeF, page);
    QFETCH(PageLayout, layout);
    QFETCH(bool, isAsItIs);
    QFETCH(QSizeF, size);
    QFETCH(QRectF, rect);

    PagesToPrint wanted = request("", 1, page);
    wanted.layout = layout;
    const PrintedPages pages(wanted);

    QCOMPARE(pages.isAsItIs(1), isAsItIs);
    QCOMPARE(pages.size(1), size);
    const SidePlacement side = pages.placement(1);
    QCOMPARE(side.sheet, size);
    QCOMPARE(rounded(side.pages.first().rect), rect);
    QCOMPARE(side.isCut(),
             layout.scaling == PageScaling::None || layout.scaling == PageScaling::Fill);

    // Without paper each page has its own.
    wanted.paper = {};
    QCOMPARE(PrintedPages(wanted).size(1), page);
}

void TestPrintedPages::dividesSheets_data()
{
    const Table<QSizeF, int, QSizeF, QSizeF> row{"page", "perSide", "sheet", "place"};

    row("2 tall ones", a4, 2, a4.transposed(), {409, 571});
    row("2 wide ones", a4.transposed(), 2, a4, {571, 409});
    row("4", a4, 4, a4, {286, 409});
    row("4 wide ones", a4.transposed(), 4, a4.transposed(), {409, 286});
    row("6", a4, 6, a4.transposed(), {273, 286});
    row("9", a4, 9, a4, {190, 273});
    row("16", a4, 16, a4, {143, 205});
    row("6 wide slides", {720, 405}, 6, a4.transposed(), {409, 190});
}

void TestPrintedPages::dividesSheets()
{
    QFETCH(QSizeF, page);
    QFETCH(int, perSide);
    QFETCH(QSizeF, sheet);
    QFETCH(QSizeF, place);

    PagesToPrint wanted = request("", perSide + 1, page);
    wanted.layout.pagesPerSide = perSide;
    const PrintedPages pages(wanted);

    const SidePlacement side = pages.placement(1);
    QCOMPARE(side.sheet, sheet);
    QCOMPARE(pages.size(1), sheet);
    QCOMPARE(side.pages.size(), perSide);
    for (const PagePlacement &placed : side.pages) {
        QCOMPARE(placed.place.size().toSize(), place.toSize());
        QVERIFY(placed.place.adjusted(-0.01, -0.01, 0.01, 0.01).contains(placed.rect));
        QCOMPARE(placed.rotation, 0);
    }
    // The last side has one page, and is divided all the same.
    const SidePlacement last = pages.placement(2);
    QCOMPARE(last.pages.first(), side.pages.first());
    QVERIFY(last.pages.last().rect.isNull());
    QCOMPARE(last.pages.last().place, side.pages.last().place);
}

void TestPrintedPages::followsTheFlow_data()
{
    const Table<QString, QString> row{"flow", "places"}; // of 6: column and row of each page

    row("right, then down", "lrtb", "00 10 20 01 11 21");
    row("right, then up", "lrbt", "01 11 21 00 10 20");
    row("left, then down", "rltb", "20 10 00 21 11 01");
    row("left, then up", "rlbt", "21 11 01 20 10 00");
    row("down, then right", "tblr", "00 01 10 11 20 21");
    row("down, then left", "tbrl", "20 21 10 11 00 01");
    row("up, then right", "btlr", "01 00 11 10 21 20");
    row("up, then left", "BTRL", "21 20 11 10 01 00");
}

void TestPrintedPages::followsTheFlow()
{
    QFETCH(QString, flow);
    QFETCH(QString, places);

    PagesToPrint wanted = request("", 6);
    wanted.layout.pagesPerSide = 6;
    wanted.layout.flow = pageFlowFrom(flow).value();
    QStringList cells;
    for (const PagePlacement &page : PrintedPages(wanted).placement(1).pages)
        cells << QString::number(std::lround((page.place.x() - 12) / page.place.width()))
                + QString::number(std::lround((page.place.y() - 12) / page.place.height()));

    QCOMPARE(cells.join(' '), places);
}

void TestPrintedPages::liesOnAnother_data()
{
    // A page on a sheet of 100 by 200, at 10, 20, 30 wide and 40 high.
    const Table<int, QRectF, QRectF, int> row{"rotation", "outer", "rect", "pageRotation"};

    row("upright", 0, {0, 0, 100, 200}, {10, 20, 30, 40}, 90);
    row("half as large", 0, {5, 6, 50, 100}, {10, 16, 15, 20}, 90);
    row("a quarter clockwise", 90, {0, 0, 200, 100}, {140, 10, 40, 30}, 180);
    row("upside down", 180, {0, 0, 100, 200}, {60, 140, 30, 40}, 270);
    row("a quarter back, half as large", 270, {0, 0, 100, 50}, {10, 30, 20, 15}, 0);
}

void TestPrintedPages::liesOnAnother()
{
    QFETCH(int, rotation);
    QFETCH(QRectF, outer);
    QFETCH(QRectF, rect);
    QFETCH(int, pageRotation);

    const SidePlacement inner{{100, 200}, {{{10, 20, 30, 40}, 90, 1, {10, 20, 30, 40}}}};
    const double scale = std::max(outer.width(), outer.height()) / 200;
    const SidePlacement side = placedWithin({outer, rotation, scale, outer}, inner);

    const PagePlacement expected{rect, pageRotation, scale, rect};
    QCOMPARE(side.pages, QList<PagePlacement>{expected});
}

QTEST_APPLESS_MAIN(TestPrintedPages)
#include "test_printed_pages.moc"
