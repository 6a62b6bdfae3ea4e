#include "device_session.h"
#include "table.h"

#include "special_pages_summary.h"

#include <QTest>

#include <memory>

using namespace kelvo;

namespace {

constexpr std::int32_t kBlue = 2;

Insert insertAfter(std::int32_t page, std::int32_t quantity = 1)
{
    Insert insert;
    insert.stock().setColor(kUnset);
    insert.setStartPage(page);
    insert.setQuantity(quantity);
    return insert;
}

ExceptionPage exceptionOf(std::int32_t first, std::int32_t last)
{
    ExceptionPage page;
    page.stock().setColor(kUnset);
    page.setStartPage(first);
    page.setEndPage(last);
    return page;
}

template <typename... Page>
void addTo(SpecialPageList &list, const Page &...page)
{
    const std::vector<const SpecialPage *> pages{&page...};
    list.add(pages);
}

} // namespace

class TestSpecialPagesSummary : public QObject
{
    Q_OBJECT

private slots:
    void listsPagesInTheirOrder();
    void describesPages_data();
    void describesPages();
    void lastOneSelectedSaysWhetherItMoves_data();
    void lastOneSelectedSaysWhetherItMoves();
};

void TestSpecialPagesSummary::listsPagesInTheirOrder()
{
    const DeviceSession session("full");
    const Device device = currentDevice();
    const Cover other;
    SpecialPagesSettings pages{.frontCover = Cover(), .backCover = Cover()};
    addTo(pages.inserts, insertAfter(5), insertAfter(3), insertAfter(0));
    addTo(pages.exceptions, exceptionOf(3, 5), exceptionOf(1, 1));
    QStringList rows;
    for (const SpecialPage *page : rowsOf(pages))
        rows << pagesText(device, pages, *page) + u' ' + typeText(device, *page);
    QCOMPARE(rows.join(QStringLiteral(" · ")),
             QStringLiteral("Front Cover · Before page 1 Insert · 1 Exception · 3-5 Exception"
                            " · 3 Insert · 5 Insert · Back Cover"));
    QCOMPARE(pagesText(device, pages, other), QString());
}

void TestSpecialPagesSummary::describesPages_data()
{
    const Table<std::shared_ptr<SpecialPage>, QString> table{"page", "text"};
    const auto row = [&](const char *name, const SpecialPage &page, const char *text) {
        table(name, std::shared_ptr<SpecialPage>(page.clone()), text);
    };
    const auto insertOn = [](const auto &change) {
        Insert insert = insertAfter(2, 3);
        change(insert.stock());
        return insert;
    };

    Cover cover;
    cover.stock().setSource(1);
    row("a cover from a tray", cover, "Blank or preprinted");
    cover.setSidesImaged(kCoverPrinted);
    cover.stock().setSource(kUnset);
    cover.stock().setCustomName("Card");
    row("a printed cover of named stock", cover,
        "Name: Card; Printed; White; No paper source: left out");
    row("an insert", insertAfter(2, 3), "Sheets [3]");
    row("from the inserter", insertOn([](Stock &stock) {
            stock.setSource(kStockSourceInserter);
            stock.setColor(kBlue);
        }),
        "Sheets [3]; Post-print inserter");
    row("size, colour and type", insertOn([](Stock &stock) {
            stock.setSize(4);
            stock.setColor(kBlue);
            stock.setType(kStockTypeStandard);
        }),
        "Sheets [3]; A4 (210 × 297 mm); Blue; Plain");
    row("ordered, in a colour of its own", insertOn([](Stock &stock) {
            stock.setColor(kStockColorCustom);
            stock.setCustomColor("Teal");
            stock.setType(kStockTypeOrdered);
            stock.setCustomType("Maps");
            stock.setModulus(4);
        }),
        "Sheets [3]; Teal; Maps (4)");
    row("tabs", insertOn([](Stock &stock) {
            stock.setType(kStockTypeTab);
            stock.setModulus(5);
        }),
        "Sheets [3]; Tab stock (5)");
    row("a colour that the device does not have",
        insertOn([](Stock &stock) { stock.setColor(4711); }), "Sheets [3]");

    ExceptionPage exception = exceptionOf(1, 2);
    row("an exception that differs in nothing", exception, "Use job setting");
    exception.setPlex(3);
    exception.setLightenDarken(-2);
    row("an exception's sides and image", exception,
        "2-sided print, flip on short edge; Lighten 2");
    row("an exception without a last page", ExceptionPage(Dictionary{{"StartPage", 5}}),
        "Applies to no pages");
    row("an exception before page 1", ExceptionPage(Dictionary{{"SidesImaged", 1}}),
        "1-sided print; Applies to no pages");
}

void TestSpecialPagesSummary::describesPages()
{
    QFETCH(std::shared_ptr<SpecialPage>, page);
    const DeviceSession session("full");
    QTEST(attributesText(*page, currentDevice()), "text");
}

void TestSpecialPagesSummary::lastOneSelectedSaysWhetherItMoves_data()
{
    // rows: an exception, then two inserts after one page, and one
    // enabled: edit, remove, move up, move down
    const Table<QList<int>, QString> row{"rows", "enabled"};

    row("none", QList<int>(), "0000");
    row("an exception", QList{0}, "1100");
    row("the first insert", QList{1}, "1101");
    row("the second", QList{2}, "1110");
    row("one alone after its page", QList{3}, "1100");
    row("the last one cannot move", QList{2, 3}, "0100");
    row("the last one can move up", QList{1, 2}, "0110");
    row("the last one can move down", QList{0, 1}, "0101");
}

void TestSpecialPagesSummary::lastOneSelectedSaysWhetherItMoves()
{
    QFETCH(QList<int>, rows);
    SpecialPagesSettings pages;
    const InsertList &inserts = pages.inserts;
    addTo(pages.inserts, insertAfter(3, 1), insertAfter(3, 2), insertAfter(4));
    addTo(pages.exceptions, exceptionOf(3, 3));
    const auto all = rowsOf(pages);
    std::vector<const SpecialPage *> selected;
    for (const int row : rows)
        selected.push_back(all[static_cast<std::size_t>(row)]);
    const SpecialPagesCommands commands = commandsFor(inserts, selected, 4, false);
    QString enabled;
    for (const bool each : {commands.edit, commands.remove, commands.moveUp, commands.moveDown})
        enabled += each ? u'1' : u'0';
    QTEST(enabled, "enabled");
    QVERIFY(commands.removeAll && !commands.undo);
    QCOMPARE(commandsFor(inserts, {}, 0, true), (SpecialPagesCommands{.undo = true}));
}

QTEST_MAIN(TestSpecialPagesSummary)
#include "test_special_pages_summary.moc"
