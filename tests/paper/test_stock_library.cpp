#include "stock_library.h"

#include "preferences.h"
#include "sample_ppds.h"
#include "stock_properties.h"
#include "table.h"

#include <QLocale>
#include <QTest>

using namespace kelvo;

namespace {

QStringList names()
{
    QStringList found;
    for (const Stock &stock : readStockLibrary())
        found << stock.customName();
    return found;
}

Stock card()
{
    Stock stock;
    stock.setType(12);
    stock.setWeight(250);
    return stock;
}

} // namespace

class TestStockLibrary : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QLocale::setDefault(QLocale(QStringLiteral("en_US")));
        WriteUserPreferences(kStockLibraryFile, {});
    }

    void keepsOneStockOfAName();
    void refusesNames();
    void isFullAtItsLimit();
    void damagedEntriesAreSkippedAndStay();
    void saysWhenItCannotBeKept();

    void weightsAreChecked_data();
    void weightsAreChecked();
    void devicesOfferWhatTheirPpdHas();
    void whatIsNotOfferedIsNotSet();
    void nothingStaysWithoutItsTypeOrColor();
    void namesAreAskedFor();
};

void TestStockLibrary::keepsOneStockOfAName()
{
    QCOMPARE(saveInStockLibrary("gamma 10", card()), LibraryProblem::None);
    QCOMPARE(saveInStockLibrary("Beta", card()), LibraryProblem::None);
    QCOMPARE(saveInStockLibrary("gamma 9", card()), LibraryProblem::None);
    Stock other = card();
    other.setWeight(300);
    QCOMPARE(saveInStockLibrary(" BETA ", other), LibraryProblem::None);
    QCOMPARE(names(), QStringList({"BETA", "gamma 9", "gamma 10"}));
    QCOMPARE(readStockLibrary().front().weight(), 300);

    QCOMPARE(removeFromStockLibrary("Gamma 9"), LibraryProblem::None);
    QCOMPARE(names(), QStringList({"BETA", "gamma 10"}));
    QCOMPARE(removeFromStockLibrary("gamma 9"), LibraryProblem::NotFound);
}

void TestStockLibrary::refusesNames()
{
    const QString longest = QString(kLongestStockName - 1, u'x') + QStringLiteral("\U0001F4C4");
    QCOMPARE(saveInStockLibrary("  ", card()), LibraryProblem::NameMissing);
    QCOMPARE(saveInStockLibrary(longest + 'x', card()), LibraryProblem::NameTooLong);
    QCOMPARE(names(), QStringList());
    QCOMPARE(saveInStockLibrary(longest, card()), LibraryProblem::None);
    QCOMPARE(names(), QStringList(longest));
}

void TestStockLibrary::isFullAtItsLimit()
{
    Array entries;
    for (int i = 1; i < kMostLibraryStocks; ++i) {
        Stock stock = card();
        stock.setCustomName(QStringLiteral("Card %1").arg(i));
        entries << stock.asTicket();
    }
    WriteUserPreferences(kStockLibraryFile, {{"Stocks", entries}});

    QCOMPARE(saveInStockLibrary("Last", card()), LibraryProblem::None);
    QCOMPARE(saveInStockLibrary("One more", card()), LibraryProblem::Full);
    QCOMPARE(saveInStockLibrary("last", card()), LibraryProblem::None); // replaces
    QCOMPARE(int(readStockLibrary().size()), kMostLibraryStocks);
}

void TestStockLibrary::damagedEntriesAreSkippedAndStay()
{
    const Array damaged = {QStringLiteral("text"), Dictionary{{"CustomName", 7}},
                           Dictionary{{"Weight", 80}}};
    WriteUserPreferences(
        kStockLibraryFile,
        {{"Stocks", damaged + Array{Dictionary{{"CustomName", "Card"}}}}, {"Other", 1}});
    QCOMPARE(names(), QStringList("Card"));
    QCOMPARE(saveInStockLibrary("Bond", card()), LibraryProblem::None);
    QCOMPARE(names(), QStringList({"Bond", "Card"}));
    const Dictionary content = *CopyUserPreferences(kStockLibraryFile);
    QCOMPARE(array(content, "Stocks")->size(), damaged.size() + 2);
    QVERIFY(content.contains("Other"));

    WriteUserPreferences(kStockLibraryFile, {{"Stocks", "no array"}});
    QCOMPARE(names(), QStringList());
    QCOMPARE(saveInStockLibrary("Bond", card()), LibraryProblem::None);
    QCOMPARE(names(), QStringList("Bond"));
}

void TestStockLibrary::saysWhenItCannotBeKept()
{
    const QByteArray folder = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", "/dev/null");
    QCOMPARE(saveInStockLibrary("Card", card()), LibraryProblem::NotWritten);
    QCOMPARE(removeFromStockLibrary("Card"), LibraryProblem::NotWritten);
    qputenv("XDG_CONFIG_HOME", folder);
}

void TestStockLibrary::weightsAreChecked_data()
{
    const Table<QString, std::optional<WeightRange>> row{"text", "range"};

    const std::optional<WeightRange> none;
    row("two numbers", " 60  300 ", std::optional(WeightRange{60, 300}));
    row("at the limits", "1 1000", std::optional(WeightRange{1, 1000}));
    row("one weight", "80 80", std::optional(WeightRange{80, 80}));
    row("nothing at all", "0 300", none);
    row("too heavy", "60 1001", none);
    row("the wrong way round", "300 60", none);
    row("one number", "300", none);
    row("three numbers", "60 300 400", none);
    row("no numbers", "light heavy", none);
    row("fractions", "60.5 300", none);
}

void TestStockLibrary::weightsAreChecked()
{
    QFETCH(QString, text);
    QTEST(weightRangeFrom(text), "range");
}

void TestStockLibrary::devicesOfferWhatTheirPpdHas()
{
    const QString withoutWeights = QStringLiteral(KELVO_TEST_DATA "/platform/test.ppd");
    const StockProperties usual{{60, 300}, false, false};
    for (const auto &[path, properties] :
         {std::pair(samplePpd("full"), StockProperties{{60, 350}, true, true}),
          {samplePpd("bare"), StockProperties{{60, 163}, false, false}},
          {withoutWeights, usual}}) {
        const auto ppd = PpdFile::open(path);
        QVERIFY(ppd);
        QCOMPARE(stockPropertiesOf(ppd.value().get()), properties);
    }
    QCOMPARE(stockPropertiesOf(nullptr), usual);
}

void TestStockLibrary::whatIsNotOfferedIsNotSet()
{
    Stock stock = card();
    stock.setWeight(301);
    stock.setSidesCoated(3);
    stock.setCoatingType(2);
    stock.setPunched(kStockPrePunched);

    const Stock rich = offered(stock, {{60, 350}, true, true});
    QCOMPARE(rich.asTicket(), stock.asTicket());
    const Stock poor = offered(stock, {{60, 300}, false, false});
    QCOMPARE(poor.weight(), 300);
    QCOMPARE(poor.sidesCoated(), kUnset);
    QCOMPARE(poor.coatingType(), kUsualCoating);
    QCOMPARE(poor.punched(), kUnset);

    stock.setWeight(kUnset);
    stock.setPunched(1);
    QCOMPARE(offered(stock, {}).weight(), kUnset);
    QCOMPARE(offered(stock, {}).punched(), 1); // needs nothing of the device
}

void TestStockLibrary::nothingStaysWithoutItsTypeOrColor()
{
    Stock stock;
    stock.setType(kStockTypeOrdered);
    stock.setCustomType(" Dividers ");
    stock.setColor(kStockColorCustom);
    stock.setCustomColor(" Sunset ");
    const Stock kept = tidied(stock);
    QCOMPARE(kept.customType(), QStringLiteral("Dividers"));
    QCOMPARE(kept.customColor(), QStringLiteral("Sunset"));
    QCOMPARE(kept.modulus(), kUsualTabs);

    stock.setModulus(9);
    stock.setColor(kStockColorWhite);
    stock.setType(kStockTypeTab);
    QCOMPARE(tidied(stock).modulus(), 9);
    QCOMPARE(tidied(stock).customType(), QString());
    QCOMPARE(tidied(stock).customColor(), QString());
    stock.setType(kStockTypeStandard);
    QCOMPARE(tidied(stock).modulus(), kUnset);
}

void TestStockLibrary::namesAreAskedFor()
{
    Stock stock;
    QCOMPARE(findProblem(stock), StockProblem::None);
    stock.setColor(kStockColorCustom);
    QCOMPARE(findProblem(stock), StockProblem::ColorNameMissing);
    stock.setType(kStockTypeCustom);
    stock.setCustomType("  ");
    QCOMPARE(findProblem(stock), StockProblem::TypeNameMissing);
    stock.setCustomType("Bank");
    stock.setCustomColor("Sunset");
    QCOMPARE(findProblem(stock), StockProblem::None);
}

QTEST_GUILESS_MAIN(TestStockLibrary)
#include "test_stock_library.moc"
