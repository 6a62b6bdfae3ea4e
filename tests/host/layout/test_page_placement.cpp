#include "booklet_imposition.h"
#include "table.h"

#include <QTest>

#include <set>

using namespace kelvo;

Q_DECLARE_METATYPE(kelvo::Orientation)
Q_DECLARE_METATYPE(kelvo::ReadingOrder)
Q_DECLARE_METATYPE(kelvo::Imposition)
Q_DECLARE_METATYPE(kelvo::BookletSide)

namespace {

const QSizeF a4(595, 842);
const QSizeF wide(842, 595);

SidePlacement sideOf(const QSizeF &sheet, const QRectF &page, int rotation, bool isUpsideDown)
{
    return {sheet, {{page, rotation, 1, QRectF(QPointF(), sheet)}}, {}, isUpsideDown};
}

QRectF rounded(const QRectF &rect)
{
    const auto tenths = [](double points) { return std::round(points * 10) / 10; };
    return {tenths(rect.x()), tenths(rect.y()), tenths(rect.width()), tenths(rect.height())};
}

} // namespace

class TestPagePlacement : public QObject
{
    Q_OBJECT

private slots:
    void onePageOnASheet_data();
    void onePageOnASheet();
    void pagesOfBooklets_data();
    void pagesOfBooklets();
    void everyPageOfABookletIsOnOneSide();
    void bookletsAreMeasured_data();
    void bookletsAreMeasured();
    void pagesOfABookletStayOnTheirHalf();
    void overlaysLieOverSheetsOrPages();
};

void TestPagePlacement::onePageOnASheet_data()
{
    const Table<QSizeF, QSizeF, Orientation, QSizeF, QRectF, int> row{
        "page", "paper", "orientation", "sheet", "rect", "rotation"};
    using enum Orientation;
    const QRectF whole(QPointF(), a4);
    const QRectF wholeWide(QPointF(), wide);

    row("fits", a4, a4, Portrait, a4, whole, 0);
    row("no paper known", wide, QSizeF(), Portrait, wide, wholeWide, 0);
    row("smaller, centred", QSizeF(195, 442), a4, Portrait, a4, {200, 200, 195, 442}, 0);
    row("larger, cut", QSizeF(795, 1042), a4, Portrait, a4, {-100, -100, 795, 1042}, 0);
    row("wide page on tall paper", wide, a4, Portrait, a4, whole, 270);
    row("wide page, landscape", wide, a4, Landscape, wide, wholeWide, 0);
    row("tall page, landscape", a4, a4, Landscape, wide, wholeWide, 270);
    row("upside down", a4, a4, ReversePortrait, a4, whole, 180);
    row("tall page, reverse landscape", a4, a4, ReverseLandscape, wide, wholeWide, 90);
    row("a square is never turned", QSizeF(100, 100), QSizeF(200, 300), Portrait, {200, 300},
        {50, 100, 100, 100}, 0);
}

void TestPagePlacement::onePageOnASheet()
{
    QFETCH(QSizeF, page);
    QFETCH(QSizeF, paper);
    QFETCH(Orientation, orientation);
    QFETCH(QSizeF, sheet);
    QFETCH(QRectF, rect);
    QFETCH(int, rotation);

    const SidePlacement side = placePage(page, paper, orientation);

    QCOMPARE(side, sideOf(sheet, rect, rotation, isReverse(orientation)));
    const bool isCut = QByteArray(QTest::currentDataTag()) == "larger, cut";
    QCOMPARE(side.isCut(), isCut);
    QCOMPARE(side.all(), isCut ? rect : QRectF(QPointF(), sheet));
}

void TestPagePlacement::pagesOfBooklets_data()
{
    // Front and back of each sheet from the outer one on, as they are read from left to right.
    const Table<int, QString> row{"pages", "sides"};

    row("none", 0, "");
    row("1", 1, "- 1 | - -");
    row("2", 2, "- 1 | 2 -");
    row("4", 4, "4 1 | 2 3");
    row("5", 5, "- 1 | 2 - | - 3 | 4 5");
    row("6", 6, "- 1 | 2 - | 6 3 | 4 5");
    row("8", 8, "8 1 | 2 7 | 6 3 | 4 5");
}

void TestPagePlacement::pagesOfBooklets()
{
    QFETCH(int, pages);
    QFETCH(QString, sides);

    QStringList leftToRight;
    QStringList mirrored;
    for (int side = 0; side < 2 * bookletSheets(pages); ++side) {
        const auto word = [](int page) { return page == 0 ? QString("-") : QString::number(page); };
        const BookletPages places = bookletPages(pages, side, ReadingOrder::LeftToRight);
        leftToRight << word(places[0]) + ' ' + word(places[1]);
        const BookletPages other = bookletPages(pages, side, ReadingOrder::RightToLeft);
        mirrored << word(other[1]) + ' ' + word(other[0]);
    }

    QCOMPARE(leftToRight.join(" | "), sides);
    QCOMPARE(mirrored, leftToRight);
}

// Of 200, the outer and the inner sheet by their numbers, the others by what a fold makes
// of them: leaves that are numbered through.
void TestPagePlacement::everyPageOfABookletIsOnOneSide()
{
    using enum ReadingOrder;
    QCOMPARE(bookletSheets(200), 50);
    QCOMPARE(bookletPages(200, 0, LeftToRight), (BookletPages{200, 1}));
    QCOMPARE(bookletPages(200, 1, LeftToRight), (BookletPages{2, 199}));
    QCOMPARE(bookletPages(200, 98, RightToLeft), (BookletPages{99, 102}));
    QCOMPARE(bookletPages(200, 99, LeftToRight), (BookletPages{100, 101}));

    std::set<int> pages;
    for (int sheet = 0; sheet < 50; ++sheet) {
        const BookletPages front = bookletPages(200, 2 * sheet, LeftToRight);
        const BookletPages back = bookletPages(200, 2 * sheet + 1, LeftToRight);
        QCOMPARE(back[0], front[1] + 1); // what is right in front is left on the back
        QCOMPARE(front[0], back[1] + 1);
        pages.insert({front[0], front[1], back[0], back[1]});
        for (int page : front)
            QCOMPARE(bookletSideOf(page, 200), 2 * sheet);
        for (int page : back)
            QCOMPARE(bookletSideOf(page, 200), 2 * sheet + 1);
    }
    QCOMPARE(pages.size(), std::size_t(200));
    QCOMPARE(*pages.begin(), 1);
}

void TestPagePlacement::bookletsAreMeasured_data()
{
    // rects: of the two pages, rounded to tenths of a point
    const Table<BookletSide, Imposition, Orientation, QSizeF, QRectF, QRectF, int> row{
        "side", "imposition", "orientation", "sheet", "first", "second", "rotation"};
    using enum Orientation;
    const Imposition plain;
    const QSizeF card(200, 300);

    row("portrait, side by side", {{a4, a4}, a4}, plain, Portrait, wide, {0.5, 0, 420.5, 595},
        {421, 0, 420.5, 595}, 0);
    row("landscape, one above the other", {{wide, wide}, wide}, plain, Portrait, a4,
        {0, 0.5, 595, 420.5}, {0, 421, 595, 420.5}, 0);
    row("landscape as orientation does not count", {{a4, a4}, a4}, plain, Landscape, wide,
        {0.5, 0, 420.5, 595}, {421, 0, 420.5, 595}, 0);
    row("never larger", {{card, card}, card}, plain, Portrait, wide, {221, 147.5, 200, 300},
        {421, 147.5, 200, 300}, 0);
    row("gutter", {{card, card}, card}, {.gutter = 24}, Portrait, wide, {209, 147.5, 200, 300},
        {433, 147.5, 200, 300}, 0);
    row("gutter makes pages smaller", {{a4, a4}, a4}, {.gutter = 24}, Portrait, wide,
        {0, 8.1, 409, 578.8}, {433, 8.1, 409, 578.8}, 0);
    row("gutter, landscape", {{wide, wide}, wide}, {.gutter = 24}, Portrait, a4,
        {8.1, 0, 578.8, 409}, {8.1, 433, 578.8, 409}, 0);
    row("creep, outer sheet", {{card, card}, card}, {.gutter = 24, .creep = 0.5}, Portrait, wide,
        {209, 147.5, 200, 300}, {433, 147.5, 200, 300}, 0);
    row("creep, 10 sheets further in", {{card, card}, card, 10}, {.gutter = 24, .creep = 0.5},
        Portrait, wide, {214, 147.5, 200, 300}, {428, 147.5, 200, 300}, 0);
    row("creep, landscape", {{card.transposed(), card.transposed()}, wide, 10},
        {.gutter = 24, .creep = 0.5}, Portrait, a4, {147.5, 214, 300, 200}, {147.5, 428, 300, 200},
        0);
    row("creep ends at the fold", {{card, card}, card, 99}, {.gutter = 24, .creep = 1}, Portrait,
        wide, {221, 147.5, 200, 300}, {421, 147.5, 200, 300}, 0);
    row("a page of another shape is turned", {{card.transposed(), QSizeF()}, a4}, plain, Portrait,
        wide, {221, 147.5, 200, 300}, {}, 270);
    row("upside down", {{card, QSizeF()}, card}, {.gutter = 24}, ReverseLandscape, wide,
        {433, 147.5, 200, 300}, {}, 180);
    row("a sheet of its own", {{card, card}, card}, {.sheet = {300, 400}}, Portrait, {400, 300},
        {0, 0, 200, 300}, {200, 0, 200, 300}, 0);
}

void TestPagePlacement::bookletsAreMeasured()
{
    QFETCH(BookletSide, side);
    QFETCH(Imposition, imposition);
    QFETCH(Orientation, orientation);
    QFETCH(QSizeF, sheet);
    QFETCH(int, rotation);

    const SidePlacement placed = placeBooklet(side, imposition, a4, orientation);

    QCOMPARE(placed.sheet, sheet);
    QTEST(rounded(placed.pages[0].rect), "first");
    QTEST(rounded(placed.pages[1].rect), "second");
    QCOMPARE(placed.pages[0].rotation, rotation);
    QCOMPARE(placed.fold.center(), QPointF(sheet.width() / 2, sheet.height() / 2));
    QCOMPARE(placed.fold.dx() > 0, sheet.width() < sheet.height());
}

// Whatever the bundle says: a gutter wider than the sheet, a creep of inches.
void TestPagePlacement::pagesOfABookletStayOnTheirHalf()
{
    for (const Imposition &imposition :
         {Imposition{.gutter = 0}, Imposition{.gutter = 216, .creep = 100},
          Imposition{.gutter = 5000}}) {
        for (const QSizeF &page : {a4, wide, QSizeF(10, 5000), QSizeF(5000, 5000)}) {
            const SidePlacement placed =
                placeBooklet({{page, page}, a4, 3}, imposition, a4, Orientation::Portrait);
            const QRectF first = placed.pages[0].rect;
            QVERIFY(!first.isEmpty() && first.right() <= 421.001);
            QCOMPARE(first.right() + placed.pages[1].rect.left(), 842.0);
            QVERIFY(!placed.isCut() || imposition.gutter > 842);
        }
    }
}

void TestPagePlacement::overlaysLieOverSheetsOrPages()
{
    const QSizeF small(195, 442);
    const OverlayPlacement sheet{{QPointF(), a4}, a4};
    QCOMPARE(placeOverlay(placePage(small, a4, Orientation::Portrait), 0), sheet);
    // Upright as one looks at it, however the page is turned.
    QCOMPARE(placeOverlay(placePage(wide, a4, Orientation::Portrait), 0), sheet);

    const SidePlacement booklet = placeBooklet({{QSizeF(), a4}, a4}, {}, a4, Orientation::Portrait);
    const OverlayPlacement page = placeOverlay(booklet, 1);
    QCOMPARE(page.rect, booklet.pages[1].rect);
    QCOMPARE(page.page, a4);
}

QTEST_GUILESS_MAIN(TestPagePlacement)
#include "test_page_placement.moc"
