#include "device_session.h"
#include "stock_menus.h"
#include "stock_pictures.h"
#include "stock_summary.h"
#include "table.h"
#include "ticket_values.h"

#include <QTest>

using namespace kelvo;

namespace {

Stock stockOf(std::int32_t size, std::int32_t color, std::int32_t type)
{
    Stock stock;
    stock.setSize(size);
    stock.setColor(color);
    stock.setType(type);
    return stock;
}

Stock readBack(const Stock &stock)
{
    const Dictionary dictionary = stock.asTicket();
    return Stock(&dictionary);
}

// "command reference" of every item, "-" for a divider, "(…)" for what it opens.
QString described(const std::vector<MenuItem> &items)
{
    QStringList texts;
    for (const MenuItem &item : items) {
        if (item.divider) {
            texts << QStringLiteral("-");
            continue;
        }
        const OSType code = item.command;
        QString text = code == kNoCommand ? QStringLiteral("none")
                                          : QStringLiteral("%1%2%3%4")
                                                .arg(QChar(code >> 24), QChar(code >> 16 & 255),
                                                     QChar(code >> 8 & 255), QChar(code & 255));
        if (!item.submenu.empty())
            text += QStringLiteral("(%1)").arg(item.submenu.size());
        texts << text;
    }
    return texts.join(u' ');
}

const MenuItem *findReference(const Menu &menu, std::int32_t reference)
{
    const auto found = std::ranges::find(menu.items, reference, &MenuItem::reference);
    return found == menu.items.end() ? nullptr : &*found;
}

} // namespace

class TestStock : public QObject
{
    Q_OBJECT

private slots:
    void writesWhatIsSet_data();
    void writesWhatIsSet();
    void readsWhatItWrites();
    void readsOnlyWhatBelongsTogether_data();
    void readsOnlyWhatBelongsTogether();
    void keepsCustomSizesConsistent();
    void comparesTextsIgnoringCase();
    void beginsAsItsContextSays();
    void summarizes_data();
    void summarizes();
    void offersInEachContextWhatFits();
    void followsTheMenu_data();
    void followsTheMenu();
    void layersPictures_data();
    void layersPictures();
};

void TestStock::writesWhatIsSet_data()
{
    const Table<Stock, QStringList> row{"stock", "keys"};

    Stock stock;
    row("nothing but the colour", stock, {"Color"});
    stock.setColor(kUnset);
    stock.setCoatingType(3);
    row("coating type alone", stock, {});
    stock.setSidesCoated(2);
    row("coated", stock, {"SidesCoated", "kCoatingType"});
    Stock custom;
    custom.setWidth(21590);
    row("custom size", custom, {"Color", "Length", "Size", "Width"});
    Stock tab = stockOf(kUnset, kUnset, kStockTypeTab);
    tab.setModulus(5);
    tab.setCustomNameOnly(true);
    tab.setGrain(1);
    row("modulus of any type", tab, {"CustomNameOnly", "Modulus", "Type", "kGrain"});
}

void TestStock::writesWhatIsSet()
{
    QFETCH(Stock, stock);
    QFETCH(QStringList, keys);

    QCOMPARE(stock.asTicket().keys(), keys);
}

void TestStock::readsWhatItWrites()
{
    Stock stock = stockOf(kStockSizeCustom, kStockColorCustom, kStockTypeOrdered);
    stock.setWidth(21590);
    stock.setLength(27940);
    stock.setCustomType(QStringLiteral("Chapter sheets"));
    stock.setCustomColor(QStringLiteral("Teal"));
    stock.setModulus(7);
    stock.setPunched(kStockPrePunched);
    stock.setWeight(160);
    stock.setDescription(QStringLiteral("Höhe & Breite"));
    stock.setSidesCoated(2);
    stock.setCoatingType(3);
    stock.setFinish(2);
    stock.setGrain(1);
    stock.setCustomName(QStringLiteral("House card"));
    stock.setCustomNameOnly(true);
    stock.setComment(QStringLiteral("Shelf 4"));
    stock.setSource(kStockSourceInserter);

    QCOMPARE(stock.asTicket().size(), 19);
    QCOMPARE(readBack(stock), stock);
}

void TestStock::readsOnlyWhatBelongsTogether_data()
{
    // keys: of what is written again
    const Table<Dictionary, QStringList> row{"dictionary", "keys"};

    row("empty", {}, {});
    row("width without custom size", {{"Size", 4}, {"Width", 100}}, {"Size"});
    row("modulus of a tab type", {{"Type", 24}, {"Modulus", 5}}, {"Type"});
    row("modulus of pre-cut tabs", {{"Type", 4}, {"Modulus", 5}}, {"Modulus", "Type"});
    row("coating type alone", {{"kCoatingType", 2}}, {});
    row("numbers as texts", {{"Size", "4"}, {"Weight", 80.5}, {"CustomName", 7}}, {});
    row("beyond 32 bits", {{"Weight", qint64(1) << 40}}, {});
}

void TestStock::readsOnlyWhatBelongsTogether()
{
    QFETCH(Dictionary, dictionary);
    QFETCH(QStringList, keys);

    QCOMPARE(Stock(&dictionary).asTicket().keys(), keys);
}

void TestStock::keepsCustomSizesConsistent()
{
    Stock stock = stockOf(kStockSizeLetter, 1, 1);
    stock.setWidth(100);
    QCOMPARE(stock.size(), kStockSizeCustom);
    stock.setSize(kStockSizeLetter);
    QCOMPARE(stock.width(), kUnset);
    QCOMPARE(stock.length(), kUnset);

    Stock custom;
    custom.setLength(200);
    stock = custom;
    QCOMPARE(stock.size(), kStockSizeCustom);
    QCOMPARE(stock.length(), 200);
}

void TestStock::comparesTextsIgnoringCase()
{
    Stock one;
    one.setDescription(QStringLiteral("Card"));
    Stock other = one;
    other.setDescription(QStringLiteral("CARD"));
    QCOMPARE(one, other);
    other.setCoatingType(2);
    QVERIFY(!(one == other));
}

void TestStock::beginsAsItsContextSays()
{
    Stock stock = stockOf(4, 2, 3);
    stock.setWeight(90);
    stock.setCustomName(QStringLiteral("Card"));
    stock.setComment(QStringLiteral("kept"));
    stock.setSource(3);
    stock.setFinish(2);

    DefaultStock(&stock, kJobContextJob);
    QCOMPARE(stock.asTicket().keys(),
             (QStringList{"Color", "CustomComment", "Finish", "Size", "Source", "Type"}));
    QCOMPARE(stock.size(), kStockSizeLetter);

    DefaultStock(&stock, kJobContextInserts);
    QCOMPARE(stock.asTicket().keys(), (QStringList{"CustomComment", "Finish", "Source"}));
}

void TestStock::summarizes_data()
{
    const Table<JobContext, Stock, QString> row{"context", "stock", "summary"};

    const Stock usual = stockOf(4, 2, kStockTypeStandard);
    row("job without its size", kJobContextJob, usual, "- Blue|- Plain");
    row("cover", kJobContextCovers, usual, "- A4 (210 × 297 mm)|- Blue|- Plain");
    row("nothing set", kJobContextInserts, stockOf(kUnset, kUnset, kUnset), "Use job setting");
    row("a job's unset lines stay", kJobContextJob, stockOf(1, kUnset, 1), "- |- Plain");
    Stock named = usual;
    named.setCustomName(QStringLiteral("House %2"));
    row("named", kJobContextJob, named, "Name: House %2|- Blue|- Plain");
    named.setCustomNameOnly(true);
    row("by its name alone", kJobContextCovers, named, "Name: House %2");
    Stock colored = stockOf(1, kStockColorCustom, kStockTypeCustom);
    colored.setCustomColor(QStringLiteral("Teal"));
    colored.setCustomType(QStringLiteral("Felt"));
    row("custom colour and type", kJobContextJob, colored, "Color: Teal|- Felt");
    Stock tab = stockOf(1, 1, kStockTypePrecutTab);
    tab.setModulus(5);
    row("pre-cut tabs", kJobContextJob, tab, "- White|- Precut tabs (5)");
    tab.setType(kStockTypeTab);
    row("tab stock of five", kJobContextJob, tab, "- White|- Tab stock (5)");
    tab.setModulus(kUnset);
    row("tab stock", kJobContextJob, tab, "- White|- Tab stock");
    Stock inserted = usual;
    inserted.setSource(kStockSourceInserter);
    row("inserter", kJobContextCovers, inserted, "- Post-print inserter");
    inserted.setSource(2);
    row("another source", kJobContextCovers, inserted, "Use job setting");
}

void TestStock::summarizes()
{
    QFETCH(JobContext, context);
    QFETCH(Stock, stock);
    const DeviceSession device(QStringLiteral("full"));

    QTEST(stockSummaryText(currentDevice(device.bundle), context, &stock).replace(u'\n', u'|'),
          "summary");
}

void TestStock::offersInEachContextWhatFits()
{
    const DeviceSession device(QStringLiteral("full"));
    Menu job, covers, exceptions;
    PopulateStockMenu(job, device.bundle, kJobContextJob);
    PopulateStockMenu(covers, device.bundle, kJobContextCovers);
    PopulateStockMenu(exceptions, device.bundle, kJobContextExceptions);
    QCOMPARE(described(job.items), QStringLiteral("none(21) none(39) - -"));
    QCOMPARE(described(covers.items), QStringLiteral("Ssiz(46) none(21) none(38) - - Ssrc"));
    QCOMPARE(described(exceptions.items), QStringLiteral("Ssiz(46) none(21) none(38) - -"));

    Menu sizes, colors, types;
    PopulateStockSizeMenu(sizes, device.bundle, kJobContextCovers);
    PopulateStockColorMenu(colors, device.bundle, kJobContextCovers);
    PopulateStockTypeMenu(types, device.bundle, kJobContextCovers);
    QVERIFY(!findReference(sizes, kStockSizeCustom)->enabled);
    QVERIFY(!findReference(colors, kStockColorUnspecified));
    QVERIFY(!findReference(types, kStockTypeSystemDefault));
    QVERIFY(!findReference(types, kStockTypeUnspecified));
    for (const Menu *menu : {&sizes, &colors, &types})
        QCOMPARE(menu->items.front().reference, kUnset);
    Menu exceptionSizes;
    PopulateStockSizeMenu(exceptionSizes, device.bundle, kJobContextExceptions);
    QVERIFY(findReference(exceptionSizes, kStockSizeCustom)->enabled);
}

void TestStock::followsTheMenu_data()
{
    // after: size, colour, type, source, name
    const Table<OSType, std::int32_t, bool, QString> row{"command", "value", "isTaken", "after"};

    row("size", kCommandStockSize, 5, true, "5 2 1 unset ''");
    row("custom size", kCommandStockSize, 75, false, "4 2 1 3 'Card'");
    row("colour", kCommandStockColor, 9, true, "4 9 1 unset ''");
    row("type", kCommandStockType, 14, true, "4 2 14 unset ''");
    row("transparency", kCommandStockType, 2, true, "4 6 2 unset ''");
    row("source", kCommandStockSource, 10, true, "4 2 1 10 'Card'");
    row("default", kCommandStockDefault, 0, true, "unset unset unset 3 ''");
    row("advanced", kCommandStockAdvanced, 0, false, "4 2 1 3 'Card'");
}

void TestStock::followsTheMenu()
{
    QFETCH(OSType, command);
    QFETCH(std::int32_t, value);
    Stock stock = stockOf(4, 2, 1);
    stock.setSource(3);
    stock.setCustomName(QStringLiteral("Card"));

    QTEST(applyStockCommand(stock, command, value, kJobContextInserts), "isTaken");

    const auto text = [](std::int32_t number) {
        return number == kUnset ? QStringLiteral("unset") : QString::number(number);
    };
    QTEST(QStringLiteral("%1 %2 %3 %4 '%5'")
              .arg(text(stock.size()), text(stock.color()), text(stock.type()),
                   text(stock.source()), stock.customName()),
          "after");
}

void TestStock::layersPictures_data()
{
    // pictures: without "Paper_" and ".gif"
    const Table<Stock, QString> table{"stock", "pictures"};

    const auto row = [&](const char *name, std::int32_t color, std::int32_t type, const char *shown,
                         std::int32_t punched = kUnset) {
        Stock stock = stockOf(1, color, type);
        stock.setPunched(punched);
        table(name, stock, shown);
    };
    row("plain", 2, 1, "Plain-Blue");
    row("colour without picture", 15, 1, "Plain-White");
    row("recycled", 4, 10, "Plain-Green Overlay-Recycled");
    row("heavy labels", 1, 25, "Plain-White Overlay-Labels Overlay-LablesHeavyweight");
    row("extra heavy labels", 1, 39, "Plain-White Overlay-LablesHeavyweight");
    row("punched envelope", 7, 8, "Envelope-Buff Overlay-HolePunchedEnvelope", 2);
    row("punched type", 1, 11, "Plain-White Overlay-HolePunched");
    row("clear transparency", 6, 2, "Plain-Clear");
    row("tinted transparency", 2, 2, "Plain-Blue Overlay-LightweightGloss");
    row("second side", 1, 32, "Reloaded-White Overlay-HeavyweightGlossReloaded");
    row("tabs, punched", 3, 33, "Pre-CutTab-Yellow Overlay-HolePunched", 2);
    row("full-cut tab", 13, 5, "FullCutTab-Orange");
    row("custom 7", 1, 21, "Plain-White Overlay-Custom7");
}

void TestStock::layersPictures()
{
    QFETCH(Stock, stock);

    QString shown = stockPictures(stock).join(u' ');
    shown.remove(QStringLiteral("Paper_")).remove(QStringLiteral(".gif"));
    QTEST(shown, "pictures");
}

QTEST_GUILESS_MAIN(TestStock)
#include "test_stock.moc"
