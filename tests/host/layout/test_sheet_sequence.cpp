#include "sheet_sequence.h"
#include "table.h"

#include <QTest>

#include <limits>

using namespace kelvo;

using Cover = SpecialSheets::Cover;

Q_DECLARE_METATYPE(kelvo::SpecialSheets)

class TestSheetSequence : public QObject
{
    Q_OBJECT

private slots:
    void comeInOrder_data();
    void comeInOrder();
    void bookletsComeInOrder_data();
    void bookletsComeInOrder();
    void areCheapInGreatNumbers();
};

namespace {

// "L" what leads, "F" front cover, "2x3" two sheets of an insert after page 3, "4" a page, "4f" and
// "4b" on a front or back, "8+1f" a front of a booklet, "-" a blank back, "B" back cover; "!" for
// each exception, "?" for an insert anywhere. Before each the number of the sheet.
QString outlineOf(const SheetSequence &sequence)
{
    QStringList parts;
    for (int index = 0; index < sequence.sides(); ++index) {
        const SheetSide side = sequence.side(index);
        QString text;
        switch (side.kind) {
        case SheetSide::Kind::LeadingPage:
            text = "L";
            break;
        case SheetSide::Kind::FrontCover:
            text = "F";
            break;
        case SheetSide::Kind::BackCover:
            text = "B";
            break;
        case SheetSide::Kind::Insert:
            text = QString("%1x%2").arg(side.sheets).arg(side.page);
            if (side.isAnywhere)
                text += "?";
            break;
        case SheetSide::Kind::Booklet:
            text = QString("%1+%2").arg(side.bookletPages[0]).arg(side.bookletPages[1]);
            text += side.isBack ? "b" : "f";
            text += QString("!").repeated(side.exceptions.size());
            for (int page : side.bookletPages) {
                if (page > 0 && sequence.indexOfPage(page) != index)
                    text += QString(" %1 is not found").arg(page);
            }
            break;
        case SheetSide::Kind::BlankBack:
            text = side.isBack ? "-" : "a blank front";
            break;
        case SheetSide::Kind::Page:
            text = QString::number(side.page);
            if (side.isTwoSided)
                text += side.isBack ? "b" : "f";
            text += QString("!").repeated(side.exceptions.size());
            if (sequence.indexOfPage(side.page) != index)
                text += " is not found";
            break;
        }
        parts << QString("%1:%2").arg(side.sheet).arg(text);
    }
    return parts.join(' ');
}

} // namespace

void TestSheetSequence::comeInOrder_data()
{
    const Table<int, bool, SpecialSheets, QString, qint64> row{"pages", "twoSided", "special",
                                                               "outline", "sheets"};
    const SpecialSheets covers{Cover::Sheet, Cover::Sheet};

    row("no pages", 0, true, covers, "", 0);
    row("one-sided", 3, false, SpecialSheets(), "1:1 2:2 3:3", 3);
    row("two-sided", 3, true, SpecialSheets(), "1:1f 1:2b 2:3f", 2);
    row("covers, one-sided", 2, false, covers, "1:F 2:1 3:2 4:B", 4);
    row("covers, two-sided", 3, true, covers, "1:F 2:1f 2:2b 3:3f 3:- 4:B", 4);
    row("inserts", 4, true,
        SpecialSheets{Cover::None, Cover::Sheet, {{0, 2}, {3, 1}, {3, 5}, {4, 1}, {5, 1}}},
        "1:2x0 3:1f 3:2b 4:3f 4:- 5:1x3 6:5x3 11:4f 11:- 12:1x4 13:B", 13);
    row("an exception with the job's sides", 5, true, SpecialSheets{.exceptions = {{2, 4, {}}}},
        "1:1f 1:- 2:2f! 2:3b! 3:4f! 3:- 4:5f", 4);
    row("one-sided pages among two-sided ones", 6, true,
        SpecialSheets{.exceptions = {{3, 4, false}, {5, 9, false}}},
        "1:1f 1:2b 2:3! 3:4! 4:5! 5:6!", 5);
    row("two-sided pages among one-sided ones", 5, false,
        SpecialSheets{Cover::Sheet, Cover::None, {{2, 1}}, {{1, 3, true}}},
        "1:F 2:1f! 2:2b! 3:1x2 4:3f! 4:- 5:4 6:5", 6);
    row("beyond the last page", 2, false,
        SpecialSheets{.inserts = {{3, 1}}, .exceptions = {{3, 3, true}}}, "1:1 2:2", 2);
}

void TestSheetSequence::bookletsComeInOrder_data()
{
    const Table<int, SpecialSheets, QString, qint64> row{"pages", "special", "outline", "sheets"};

    row("no pages", 0, SpecialSheets{Cover::Sheet}, "", 0);
    row("1 page", 1, SpecialSheets(), "1:0+1f 1:0+0b", 1);
    row("6 pages", 6, SpecialSheets(), "1:0+1f 1:2+0b 2:6+3f 2:4+5b", 2);
    row("covers go around", 4, SpecialSheets{Cover::Sheet, Cover::Sheet}, "1:F 2:4+1f 2:2+3b 3:B",
        3);
    row("inserts are counted", 4,
        SpecialSheets{Cover::None, Cover::Sheet, {{0, 2}, {3, 1}, {5, 1}}},
        "1:4+1f 1:2+3b 2:2x4? 4:1x4? 5:B", 5);
    row("exceptions begin no sheet", 8, SpecialSheets{.exceptions = {{1, 1, {}}, {4, 9, false}}},
        "1:8+1f!! 1:2+7b! 2:6+3f! 2:4+5b!", 2);
}

void TestSheetSequence::bookletsComeInOrder()
{
    QFETCH(int, pages);
    QFETCH(SpecialSheets, special);
    QFETCH(qint64, sheets);

    for (bool twoSided : {false, true}) { // a booklet is
        const SheetSequence sequence(pages, twoSided, special, Imposition());
        QTEST(outlineOf(sequence), "outline");
        QCOMPARE(sequence.sheets(), sheets);
        QCOMPARE(sequence.indexOfPage(pages + 1), -1);
        QCOMPARE(sequence.indexOfPage(0), -1);
    }
}

void TestSheetSequence::comeInOrder()
{
    QFETCH(int, pages);
    QFETCH(bool, twoSided);
    QFETCH(SpecialSheets, special);
    QFETCH(qint64, sheets);

    const SheetSequence sequence(pages, twoSided, special);

    QTEST(outlineOf(sequence), "outline");
    QCOMPARE(sequence.sheets(), sheets);
    QCOMPARE(sequence.indexOfPage(pages + 1), -1);
    QCOMPARE(sequence.indexOfPage(0), -1);

    // What leads is a side to look at, and no sheet.
    const SheetSequence led(pages, twoSided, special, {}, true);
    QCOMPARE(outlineOf(led), pages > 0 ? "1:L " + outlineOf(sequence) : QString());
    QCOMPARE(led.sheets(), sheets);
}

// Sums beyond 32 bits, and no hang.
void TestSheetSequence::areCheapInGreatNumbers()
{
    SpecialSheets special;
    for (int page = 0; page < 999'999; ++page)
        special.inserts.append({page, SpecialSheets::mostInsertSheets});
    const SheetSequence sequence(1'999'999, true, special);
    QCOMPARE(sequence.sheets(), 999'999LL * 9999 + 999'998 + 500'001);
    QCOMPARE(sequence.side(sequence.sides() - 1).page, 1'999'999);
    QCOMPARE(sequence.indexOfPage(1'999'999), sequence.sides() - 1);
}

QTEST_GUILESS_MAIN(TestSheetSequence)
#include "test_sheet_sequence.moc"
