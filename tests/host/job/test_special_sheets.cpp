#include "bundle.h"
#include "sheet_sequence.h"

#include <QTest>

#include <limits>

using namespace kelvo;

using Inserts = QList<SpecialSheets::Insert>;
using Exceptions = QList<SpecialSheets::Exception>;

Q_DECLARE_METATYPE(kelvo::SpecialSheets)

class TestSpecialSheets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void areReadFromTickets_data();
    void areReadFromTickets();
    void areReadAgainWhenTheyChange();
    void reachNoDeviceWithoutThem();
    void comeInOrder_data();
    void comeInOrder();
    void areCheapInGreatNumbers();

private:
    std::shared_ptr<PpdFile> m_ppd;
    SpecialSheetKeys m_keys;
};

namespace {

const QString insertsEntry = QStringLiteral("com.kelvo.print.SpecialPages.InsertList");
const QString exceptionsEntry = QStringLiteral("com.kelvo.print.SpecialPages.ExceptionList");

QVariant insert(const QVariant &after, const QVariant &quantity)
{
    return Dictionary{{"StartPage", after}, {"Quantity", quantity}, {"Stock", Dictionary()}};
}

QVariant exception(const QVariant &first, const QVariant &last, const QVariant &sides = {})
{
    Dictionary made{{"StartPage", first}, {"EndPage", last}};
    if (sides.isValid())
        made.insert("SidesImaged", sides);
    return made;
}

Ticket ticketOf(const QVariant &inserts, const QVariant &exceptions,
                const PPDDictionary &choices = {})
{
    Ticket ticket;
    ticket.entries[insertsEntry] = {inserts, "test"};
    ticket.entries[exceptionsEntry] = {exceptions, "test"};
    ticket.ppdChoices = choices;
    return ticket;
}

// "F" front cover, "2x3" two sheets of an insert after page 3, "4" a page, "4f" and "4b"
// on a front or back, "-" a blank back, "B" back cover; "!" in an exception. Before each
// the number of the sheet.
QString outlineOf(const SheetSequence &sequence)
{
    QStringList parts;
    for (int index = 0; index < sequence.sides(); ++index) {
        const SheetSide side = sequence.side(index);
        QString text;
        switch (side.kind) {
        case SheetSide::Kind::FrontCover:
            text = "F";
            break;
        case SheetSide::Kind::BackCover:
            text = "B";
            break;
        case SheetSide::Kind::Insert:
            text = QString("%1x%2").arg(side.sheets).arg(side.page);
            break;
        case SheetSide::Kind::BlankBack:
            text = side.isBack ? "-" : "a blank front";
            break;
        case SheetSide::Kind::Page:
            text = QString::number(side.page);
            if (side.isTwoSided)
                text += side.isBack ? "b" : "f";
            if (side.exceptionFirst > 0)
                text += "!";
            if (sequence.indexOfPage(side.page) != index)
                text += " is not found";
            break;
        }
        parts << QString("%1:%2").arg(side.sheet).arg(text);
    }
    return parts.join(' ');
}

} // namespace

void TestSpecialSheets::initTestCase()
{
    auto ppd =
        PpdFile::open(QStringLiteral(KELVO_SOURCE_DIR "/resources/ppds/kelvo-corvane-full.ppd"));
    QVERIFY(ppd);
    m_ppd = std::move(ppd).value();
    const auto bundle = Bundle::open(QStringLiteral(KELVO_BUILD_DIR "/lib/KelvoPDE.pde"));
    QVERIFY(bundle);
    m_keys = specialSheetKeysOf(bundle.value());
    QCOMPARE(m_keys.frontCover.label, "Front cover");
    QCOMPARE(m_keys.exceptions.label, "exception %1");
}

void TestSpecialSheets::areReadFromTickets_data()
{
    QTest::addColumn<Ticket>("ticket");
    QTest::addColumn<SpecialSheets>("sheets");
    constexpr int most = std::numeric_limits<int>::max();
    const PPDDictionary covers{{"KVFrontCoverSheet", "Tray1"}, {"KVBackCoverSheet", "None"}};

    QTest::newRow("nothing") << Ticket() << SpecialSheets();
    QTest::newRow("a front cover") << ticketOf({}, {}, covers) << SpecialSheets{true, false};
    QTest::newRow("a cover from a tray that is not there")
        << ticketOf({}, {}, {{"KVBackCoverSheet", "Tray99"}}) << SpecialSheets();
    QTest::newRow("lists") << ticketOf(Array{insert(3, 2), insert(0, 1), insert(3, 1)},
                                       Array{exception(5, 8, 1), exception(9, 9, 3),
                                             exception(12, 99999), exception(100000, 100001, 7)})
                           << SpecialSheets{.inserts = {{0, 1}, {3, 2}, {3, 1}},
                                            .exceptions = {{5, 8, false},
                                                           {9, 9, true},
                                                           {12, 99999, {}},
                                                           {100000, 100001, {}}}};
    QTest::newRow("inserts that are none")
        << ticketOf(Array{insert(-1, 1), insert("2", 1), insert(2, 0), insert(2, -5),
                          insert(2.5, 1), "2", QVariant(), Dictionary()},
                    "none")
        << SpecialSheets();
    QTest::newRow("inserts brought within bounds")
        << ticketOf(Array{insert(1, 10000), insert(qint64(1) << 40, qint64(1) << 40),
                          Dictionary{{"StartPage", 2}}},
                    {})
        << SpecialSheets{.inserts = {{1, 9999}, {2, 1}, {most, 9999}}};
    QTest::newRow("exceptions that are none") << ticketOf(
        {}, Array{exception(0, 3), exception(5, 4), exception(3, "4"), exception({}, 4)})
                                              << SpecialSheets();
    QTest::newRow("exceptions that overlap")
        << ticketOf({}, Array{exception(4, qint64(1) << 40), exception(1, 4), exception(9, 9)})
        << SpecialSheets{.exceptions = {{1, 4, {}}, {9, 9, {}}}};
}

void TestSpecialSheets::areReadFromTickets()
{
    QFETCH(Ticket, ticket);
    QFETCH(SpecialSheets, sheets);

    QCOMPARE(SpecialSheetsReader(m_keys).read(ticket, m_ppd.get()), sheets);
}

void TestSpecialSheets::areReadAgainWhenTheyChange()
{
    SpecialSheetsReader reader(m_keys);
    Array list{insert(1, 1)};
    QCOMPARE(reader.read(ticketOf(list, {}), m_ppd.get()).inserts, (Inserts{{1, 1}}));

    list[0] = insert(2, 1);
    QCOMPARE(reader.read(ticketOf(list, {}), m_ppd.get()).inserts, (Inserts{{2, 1}}));
    QCOMPARE(reader.read(Ticket(), m_ppd.get()).inserts, Inserts());
}

void TestSpecialSheets::reachNoDeviceWithoutThem()
{
    const auto other = PpdFile::open(QStringLiteral(KELVO_TEST_DATA "/ppds/no-ticket.ppd"));
    QVERIFY(other);
    const Ticket ticket =
        ticketOf(Array{insert(1, 1)}, Array{exception(1, 1)}, {{"KVFrontCoverSheet", "Tray1"}});
    SpecialSheetsReader reader(m_keys);
    QCOMPARE(reader.read(ticket, other.value().get()), SpecialSheets());
    QCOMPARE(reader.read(ticket, nullptr), SpecialSheets());
    QCOMPARE(SpecialSheetsReader({}).read(ticket, m_ppd.get()), SpecialSheets());
}

void TestSpecialSheets::comeInOrder_data()
{
    QTest::addColumn<int>("pages");
    QTest::addColumn<bool>("twoSided");
    QTest::addColumn<SpecialSheets>("special");
    QTest::addColumn<QString>("outline");
    QTest::addColumn<qint64>("sheets");
    const SpecialSheets covers{true, true};

    QTest::newRow("no pages") << 0 << true << covers << "" << qint64(0);
    QTest::newRow("one-sided") << 3 << false << SpecialSheets() << "1:1 2:2 3:3" << qint64(3);
    QTest::newRow("two-sided") << 3 << true << SpecialSheets() << "1:1f 1:2b 2:3f" << qint64(2);
    QTest::newRow("covers, one-sided") << 2 << false << covers << "1:F 2:1 3:2 4:B" << qint64(4);
    QTest::newRow("covers, two-sided")
        << 3 << true << covers << "1:F 2:1f 2:2b 3:3f 3:- 4:B" << qint64(4);
    QTest::newRow("inserts") << 4 << true
                             << SpecialSheets{false, true, {{0, 2}, {3, 1}, {3, 5}, {4, 1}, {5, 1}}}
                             << "1:2x0 3:1f 3:2b 4:3f 4:- 5:1x3 6:5x3 11:4f 11:- 12:1x4 13:B"
                             << qint64(13);
    QTest::newRow("an exception with the job's sides")
        << 5 << true << SpecialSheets{.exceptions = {{2, 4, {}}}}
        << "1:1f 1:- 2:2f! 2:3b! 3:4f! 3:- 4:5f" << qint64(4);
    QTest::newRow("one-sided pages among two-sided ones")
        << 6 << true << SpecialSheets{.exceptions = {{3, 4, false}, {5, 9, false}}}
        << "1:1f 1:2b 2:3! 3:4! 4:5! 5:6!" << qint64(5);
    QTest::newRow("two-sided pages among one-sided ones")
        << 5 << false << SpecialSheets{true, false, {{2, 1}}, {{1, 3, true}}}
        << "1:F 2:1f! 2:2b! 3:1x2 4:3f! 4:- 5:4 6:5" << qint64(6);
    QTest::newRow("beyond the last page")
        << 2 << false << SpecialSheets{.inserts = {{3, 1}}, .exceptions = {{3, 3, true}}}
        << "1:1 2:2" << qint64(2);
}

void TestSpecialSheets::comeInOrder()
{
    QFETCH(int, pages);
    QFETCH(bool, twoSided);
    QFETCH(SpecialSheets, special);
    QFETCH(QString, outline);
    QFETCH(qint64, sheets);

    const SheetSequence sequence(pages, twoSided, special);

    QCOMPARE(outlineOf(sequence), outline);
    QCOMPARE(sequence.sheets(), sheets);
    QCOMPARE(sequence.indexOfPage(pages + 1), -1);
    QCOMPARE(sequence.indexOfPage(0), -1);
}

// Sums beyond 32 bits, and no hang.
void TestSpecialSheets::areCheapInGreatNumbers()
{
    SpecialSheets special;
    for (int page = 0; page < 999'999; ++page)
        special.inserts.append({page, SpecialSheets::mostInsertSheets});
    const SheetSequence sequence(1'999'999, true, special);
    QCOMPARE(sequence.sheets(), 999'999LL * 9999 + 999'998 + 500'001);
    QCOMPARE(sequence.side(sequence.sides() - 1).page, 1'999'999);
    QCOMPARE(sequence.indexOfPage(1'999'999), sequence.sides() - 1);
}

QTEST_GUILESS_MAIN(TestSpecialSheets)
#include "test_special_sheets.moc"
