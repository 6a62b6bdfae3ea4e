#include "dialog_driver.h"

#include "custom_size.h"
#include "custom_stock_size_dialog.h"
#include "stock_dialogs.h"
#include "stock_library.h"
#include "stock_menu_button.h"
#include "stock_menus.h"
#include "stock_properties.h"
#include "tab_stock_dialogs.h"

#include "input_limits.h"
#include "inspector.h"
#include "installed_features.h"
#include "modal_dialog.h"
#include "notice.h"
#include "pde_session.h"
#include "ppd_choices.h"
#include "preferences.h"
#include "print_session.h"
#include "window_loader.h"

#include <QFile>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace kelvo;

namespace {

constexpr std::int32_t kBlue = 2;       // "MediaColor"
constexpr std::int32_t kCardStock = 12; // "MediaType"

// The window that is in front, driven as its user does.
struct Front
{
    QWidget *window = frontWindow();

    QWidget *control(const QString &name) const
    {
        QWidget *found = window
            ? inspector::find(window, inspector::controlNameFrom(name).value()).control
            : nullptr;
        if (!found)
            qWarning("no %s in front", qPrintable(name));
        return found;
    }
    bool did(const inspector::Done &problem) const
    {
        if (problem)
            qWarning("%s", qPrintable(problem->text));
        return !problem;
    }
    bool type(const QString &name, const QString &text) const
    {
        return did(inspector::type(control(name), text));
    }
    bool choose(const QString &name, std::int32_t reference) const
    {
        return did(inspector::choose(control(name),
                                     {inspector::ItemName::By::Reference, reference, {}, 0}));
    }
    bool set(const QString &name, int value) const
    {
        return did(inspector::set(control(name), value));
    }
    bool check(const QString &name, bool on) const
    {
        return did(inspector::check(control(name), on));
    }
    bool click(const QString &name) const { return did(inspector::click(control(name))); }
    bool isEnabled(const QString &name) const { return control(name)->isEnabled(); }
    QString text(const QString &name) const
    {
        return inspector::property(control(name), QStringLiteral("text")).value();
    }
    QString value(const QString &name) const
    {
        return inspector::property(control(name), QStringLiteral("value")).value();
    }
};

// Does `act` in the dialog that opens next, and cancels it where it stays open.
void inNextDialog(const std::function<void(const Front &)> &act)
{
    QTimer::singleShot(0, [act] {
        const Front front;
        QPointer<QWidget> window = front.window;
        QVERIFY(window);
        act(front);
        if (window && window->isVisible())
            qobject_cast<QDialog *>(window)->reject();
    });
}

// Answers the notice that is shown next; `header` gets what it said.
void answerNextNotice(int button, QString *header)
{
    QTimer::singleShot(0, [button, header] {
        *header = frontNotice().header;
        QVERIFY(answerNotice(button));
    });
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(const Front &)>)

class TestStockDialogs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void windowsCanBeUsedWithoutAMouse_data();
    void windowsCanBeUsedWithoutAMouse();
    void argumentsAreChecked();

    void customSizeIsStoredAsTyped_data();
    void customSizeIsStoredAsTyped();
    void customSizeOutOfRangeIsRefused();
    void customSizeSaysItsLimitsInEitherUnit();
    void tabShiftIsSetInEitherUnit();
    void tabShiftIsMetricInBritain();
    void tabsOfASetAreCounted();
    void typesWithANameNeedOne();
    void transparencyIsClearOnlyWhenItIsKept();
    void typesCanBeLeftOpen_data();
    void typesCanBeLeftOpen();
    void descriptionSetsAndUnsets();
    void descriptionOffersWhatTheDeviceHas();
    void libraryStocksAreCalledByTheirNameUntilChanged_data();
    void libraryStocksAreCalledByTheirNameUntilChanged();
    void libraryIsKeptInTheWindow();
    void libraryThatCannotBeKeptNamesItsFile();
    void advancedSelectionNeedsAColorName();
    void revertLeavesNothingBehind();
    void menuCommandsChangeTheStock_data();
    void menuCommandsChangeTheStock();
    void menuOpensItsDialogs();

private:
    void usePrinter(const QString &model);

    CFBundleRef m_bundle = nullptr;
    PrintSession m_session;
    DialogResult m_result = DialogResult::Cancel;
};

void TestStockDialogs::initTestCase()
{
    const auto opened = Bundle::open(QStringLiteral(KELVO_BUILD_DIR "/lib/KelvoPDE.pde"));
    QVERIFY2(opened, qPrintable(opened ? QString() : opened.error().text()));
    m_bundle = opened.value();
    setCurrentPrintSession(&m_session);
}

void TestStockDialogs::init()
{
    QLocale::setDefault(QLocale(QStringLiteral("en_US")));
    setCurrentSizeUnit(SizeUnit::Inches);
    usePrinter(QStringLiteral("full"));
    WriteUserPreferences(kStockLibraryFile, {});
}

void TestStockDialogs::cleanup()
{
    UnloadInstallableOptions();
    PPDCloseCurrent();
}

void TestStockDialogs::usePrinter(const QString &model)
{
    PPDCloseCurrent();
    m_session.setPrinter(
        {QStringLiteral("Hall-3"),
         QStringLiteral(KELVO_SOURCE_DIR "/resources/ppds/kelvo-corvane-%1.ppd").arg(model)});
    QVERIFY(PPDGetCurrent());
}

void TestStockDialogs::windowsCanBeUsedWithoutAMouse_data()
{
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("window");

    for (const char *const name : {"CustomStockSize", "PreCutTabStockSetup", "StockType",
                                   "StockDescription", "AdvancedStockSelection"})
        QTest::newRow(name) << name << name;
    QTest::newRow("TabStockSetup") << "StockTypeSetupDialogs"
                                   << "TabStockSetup";
    QTest::newRow("SaveInLibrary") << "AdvancedStockSelection"
                                   << "SaveInLibrary";
}

void TestStockDialogs::windowsCanBeUsedWithoutAMouse()
{
    QFETCH(QString, description);
    QFETCH(QString, window);
    const auto loaded = createWindowFromDescription(m_bundle, description, window);
    QVERIFY2(loaded, qPrintable(loaded ? QString() : loaded.error().text()));
    const std::unique_ptr<QWidget> content(loaded.value());

    const QString page = content->property("helpPage").toString();
    if (!page.isEmpty())
        QVERIFY2(QFile::exists(m_bundle->resourcesPath() + "/help/" + page), qPrintable(page));
    QSet<QChar> mnemonics;
    for (QWidget *control : content->findChildren<QWidget *>()) {
        if (control->focusPolicy() != Qt::NoFocus && controlIDOf(control)
            && !qobject_cast<QAbstractButton *>(control))
            QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
        const QString text = control->property("text").toString();
        QVERIFY2(!text.contains(QLatin1String("Command")), qPrintable(text)); // a key
        const qsizetype at = text.indexOf(u'&');
        if (at < 0)
            continue;
        const QChar letter = text[at + 1].toLower();
        QVERIFY2(!mnemonics.contains(letter), qPrintable(text));
        mnemonics.insert(letter);
    }
}

void TestStockDialogs::argumentsAreChecked()
{
    std::int32_t length = 0;
    Stock stock;
    QCOMPARE(RunModalCustomStockSizeDialog(m_bundle, &m_result, nullptr, &length), paramErr);
    QCOMPARE(RunModalTabStockSetupDialog(m_bundle, &stock, nullptr, &m_result), paramErr);
    QCOMPARE(
        RunModalPreCutTabStockSetup(nullptr, kDialogModeEdit, kJobContextJob, &stock, &m_result),
        paramErr);
    QCOMPARE(RunModalStockTypeSetup(m_bundle, kDialogModeEdit, kJobContextJob, &stock, nullptr),
             paramErr);
    QCOMPARE(InitializeStockMenuButton(nullptr, nullptr), paramErr);
    QCOMPARE(ShowStockSummary(m_bundle, nullptr, &stock, kJobContextJob), paramErr);
}

void TestStockDialogs::customSizeIsStoredAsTyped_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<SizeUnit>("unit");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("width");

    QTest::newRow("inches") << "en_US" << SizeUnit::Inches << "8.50"
                            << "@okButton" << 21590;
    QTest::newRow("decimal comma") << "de_DE" << SizeUnit::Millimetres << "215,5"
                                   << "@okButton" << 21550;
    QTest::newRow("the widest") << "en_US" << SizeUnit::Inches << "13"
                                << "@okButton" << 33020;
    QTest::newRow("cancelled") << "en_US" << SizeUnit::Inches << "8.50"
                               << "@cancelButton" << kUnset;
}

void TestStockDialogs::customSizeIsStoredAsTyped()
{
    QFETCH(QString, locale);
    QFETCH(SizeUnit, unit);
    QFETCH(QString, typed);
    QFETCH(QString, button);
    QFETCH(int, width);
    QLocale::setDefault(QLocale(locale));
    setCurrentSizeUnit(unit);
    std::int32_t newWidth = kUnset;
    std::int32_t newLength = 30000;
    inNextDialog([&](const Front &front) {
        QVERIFY(front.type("KPDE 7001", typed));
        QVERIFY(front.click(button));
    });
    QCOMPARE(RunModalCustomStockSizeDialog(m_bundle, &m_result, &newWidth, &newLength), noErr);
    QCOMPARE(m_result, width == kUnset ? DialogResult::Cancel : DialogResult::OK);
    QCOMPARE(newWidth, width);
}

// Nothing that was typed is changed without a word, and nothing of the dialog is lost.
void TestStockDialogs::customSizeOutOfRangeIsRefused()
{
    setCurrentSizeUnit(SizeUnit::Inches);
    QLocale::setDefault(QLocale(QStringLiteral("en_US")));
    std::int32_t width = 21590;
    std::int32_t length = 90000; // of a ticket for another device
    const DialogDriver driver(
        {expect("customLength", "text", "35.43"), type("customWidth", "13.01"), press("okButton"),
         answerNoticeWith("3.50 to 13.00 in"), expect("customWidth", "text", "13.01"),
         expect("customWidth", "focus", "true"), type("customWidth", "3.49"), press("okButton"),
         answerNoticeWith("3.50 to 13.00 in"), type("customWidth", "8.5"), press("okButton"),
         answerNoticeWith("5.00 to 19.00 in"), type("customLength", "11"), press("okButton")});
    QCOMPARE(RunModalCustomStockSizeDialog(m_bundle, &m_result, &width, &length), noErr);
    QCOMPARE(m_result, DialogResult::OK);
    QCOMPARE(width, 21590);
    QCOMPARE(length, 27940);
}

void TestStockDialogs::customSizeSaysItsLimitsInEitherUnit()
{
    std::int32_t width = kUnset; // the device's A4
    std::int32_t length = 27940;
    inNextDialog([](const Front &front) {
        QCOMPARE(front.value("@customWidth"), QStringLiteral("827"));
        QCOMPARE(front.text("@customWidthLimits"), QStringLiteral("3.50 to 13.00 in"));
        QCOMPARE(front.text("@customLengthLimits"), QStringLiteral("5.00 to 19.00 in"));
        QVERIFY(front.type("@customWidth", "9.00"));
        QVERIFY(front.set("@sizeUnit", 2));
        QCOMPARE(front.text("@customWidthUnit"), QStringLiteral("Millimeters"));
        QCOMPARE(front.text("@customWidthLimits"), QStringLiteral("88.9 to 330.2 mm"));
        QCOMPARE(front.value("@customWidth"), QStringLiteral("2286"));
        QVERIFY(front.click("@okButton"));
    });
    QCOMPARE(RunModalCustomStockSizeDialog(m_bundle, &m_result, &width, &length), noErr);
    QCOMPARE(width, 22860);
    QCOMPARE(length, 27940);
    QCOMPARE(currentSizeUnit(), SizeUnit::Millimetres);
}

void TestStockDialogs::tabShiftIsSetInEitherUnit()
{
    const Stock stock;
    _IS_Options options;
    ImageShiftInitialize(m_bundle, nullptr, &options);
    inNextDialog([](const Front &front) {
        QVERIFY(!front.isEnabled("KPDE 1002"));
        QVERIFY(front.choose("KPDE 1001", 4));
        QVERIFY(front.type("KPDE 1002", "1.2"));
        QVERIFY(front.set("KPDE 1004", 2));
        QCOMPARE(front.value("KPDE 1002"), QStringLiteral("30"));
        QVERIFY(front.click("@okButton"));
    });
    QCOMPARE(RunModalTabStockSetupDialog(m_bundle, &stock, &options, &m_result), noErr);
    QCOMPARE(options.x1, 30);
    QCOMPARE(options.option, 1);

    const _IS_Options before = options;
    inNextDialog([](const Front &front) { QVERIFY(front.choose("KPDE 1001", 1)); }); // cancelled
    QCOMPARE(RunModalTabStockSetupDialog(m_bundle, &stock, &options, &m_result), noErr);
    QCOMPARE(m_result, DialogResult::Cancel);
    QCOMPARE(options, before);
}

void TestStockDialogs::tabShiftIsMetricInBritain()
{
    QLocale::setDefault(QLocale(QStringLiteral("en_GB")));
    const Stock stock;
    _IS_Options options;
    options.option = 1;
    options.x1 = 20;
    inNextDialog([](const Front &front) {
        QCOMPARE(front.value("KPDE 1004"), QStringLiteral("2"));
        QCOMPARE(front.value("KPDE 1002"), QStringLiteral("20"));
        QVERIFY(front.type("KPDE 1002", "21"));
        QVERIFY(front.click("@okButton"));
    });
    QCOMPARE(RunModalTabStockSetupDialog(m_bundle, &stock, &options, &m_result), noErr);
    QCOMPARE(options.x1, 21);
}

void TestStockDialogs::tabsOfASetAreCounted()
{
    Stock stock;
    inNextDialog([](const Front &front) {
        QCOMPARE(front.value("KPDE 20100"), QStringLiteral("3"));
        typeText(front.control("KPDE 20100"), "300"); // leaving the field makes it the most
        QVERIFY(front.click("@okButton"));
    });
    QCOMPARE(
        RunModalPreCutTabStockSetup(m_bundle, kDialogModeEdit, kJobContextJob, &stock, &m_result),
        noErr);
    QCOMPARE(stock.modulus(), 254);
}

void TestStockDialogs::typesWithANameNeedOne()
{
    Stock stock;
    DefaultStock(&stock, kJobContextJob);
    QString header;
    inNextDialog([&header](const Front &front) {
        QVERIFY(!front.isEnabled("@stockTypeName"));
        QVERIFY(!front.isEnabled("@stockTabs"));
        QVERIFY(front.choose("@stockType", kStockTypeOrdered));
        inNextDialog([](const Front &tabs) {
            QVERIFY(tabs.set("@tabsInSet", 12));
            QVERIFY(tabs.click("@okButton"));
        });
        QVERIFY(front.click("@stockTabs"));
        QCOMPARE(front.text("@stockTabsCount"), QStringLiteral("12 in each set"));
        answerNextNotice(1, &header);
        QVERIFY(front.click("@okButton"));
        QVERIFY(front.window->isVisible());
        QVERIFY(front.type("@stockTypeName", "Dividers "));
        QVERIFY(front.click("@okButton"));
    });
    QCOMPARE(RunModalStockTypeSetup(m_bundle, kDialogModeEdit, kJobContextJob, &stock, &m_result),
             noErr);
    QCOMPARE(header, QStringLiteral("Name the paper type"));
    QCOMPARE(stock.type(), kStockTypeOrdered);
    QCOMPARE(stock.customType(), QStringLiteral("Dividers"));
    QCOMPARE(stock.modulus(), 12);
}

void TestStockDialogs::transparencyIsClearOnlyWhenItIsKept()
{
    for (const bool isKept : {true, false}) {
        Stock stock;
        inNextDialog([isKept](const Front &front) {
            QVERIFY(front.choose("@stockType", kStockTypeTransparency));
            if (!isKept)
                QVERIFY(front.choose("@stockType", kCardStock));
            QVERIFY(front.click("@okButton"));
        });
        RunModalStockTypeSetup(m_bundle, kDialogModeEdit, kJobContextJob, &stock, &m_result);
        QCOMPARE(stock.color(), isKept ? kStockColorClear : kStockColorWhite);
    }
}

void TestStockDialogs::typesCanBeLeftOpen_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<JobContext>("context");
    QTest::addColumn<int>("notSet"); // the item that says so

    QTest::newRow("a type of the device") << "full" << kJobContextJob << kStockTypeSystemDefault;
    QTest::newRow("an item of ours") << "bare" << kJobContextJob << kUnset;
    QTest::newRow("the job's") << "full" << kJobContextExceptions << kUnset;
}

void TestStockDialogs::typesCanBeLeftOpen()
{
    QFETCH(QString, printer);
    QFETCH(JobContext, context);
    QFETCH(int, notSet);
    usePrinter(printer);
    Stock stock;
    inNextDialog([notSet](const Front &front) {
        QCOMPARE(front.value("@stockType"), QString::number(notSet));
        QVERIFY(front.choose("@stockType", kCardStock));
        QVERIFY(front.choose("@stockType", notSet));
        QVERIFY(front.click("@okButton"));
    });
    RunModalStockTypeSetup(m_bundle, kDialogModeEdit, context, &stock, &m_result);
    QCOMPARE(stock.type(), notSet);
}

void TestStockDialogs::descriptionSetsAndUnsets()
{
    Stock stock;
    stock.setCustomName("Card");
    stock.setGrain(2);
    inNextDialog([](const Front &front) {
        QVERIFY(!front.isEnabled("@stockWeight"));
        QCOMPARE(front.text("@stockWeightUnset"), QStringLiteral("Use job setting"));
        QVERIFY(front.check("@stockWeightUnset", false));
        typeText(front.control("@stockWeight"), "400");
        QVERIFY(!front.isEnabled("@stockCoatingType"));
        QVERIFY(front.choose("@stockSidesCoated", 3));
        QVERIFY(front.choose("@stockCoatingType", 2));
        QVERIFY(front.choose("@stockGrain", kUnset));
        QVERIFY(front.choose("@stockPunched", kStockPrePunched));
        QVERIFY(front.type("@stockDescription", " Cover "));
        QVERIFY(front.type("@stockComment", "Room 214"));
        QVERIFY(front.click("@okButton"));
    });
    QCOMPARE(RunModalStockDescriptionSetup(m_bundle, kDialogModeEdit, kJobContextInserts, &stock,
                                           &m_result),
             noErr);
    QCOMPARE(m_result, DialogResult::OK);
    QCOMPARE(stock.weight(), 350); // the most that the device takes
    QCOMPARE(stock.sidesCoated(), 3);
    QCOMPARE(stock.coatingType(), 2);
    QCOMPARE(stock.grain(), kUnset);
    QCOMPARE(stock.punched(), kStockPrePunched);
    QCOMPARE(stock.description(), QStringLiteral("Cover"));
    QCOMPARE(stock.comment(), QStringLiteral("Room 214"));
    QCOMPARE(stock.customName(), QString());
}

void TestStockDialogs::descriptionOffersWhatTheDeviceHas()
{
    usePrinter(QStringLiteral("bare"));
    Stock stock;
    inNextDialog([](const Front &front) {
        QVERIFY(!front.isEnabled("@stockSidesCoated"));
        QVERIFY(front.control("@stockCoatingHint")->isVisible());
        QCOMPARE(front.text("@stockWeightRange"), QStringLiteral("60 to 163 g/m² on this device"));
        QCOMPARE(inspector::property(front.control("@stockPunched"), "items").value(),
                 QStringLiteral("2")); // not prepunched
    });
    RunModalStockDescriptionSetup(m_bundle, kDialogModeEdit, kJobContextJob, &stock, &m_result);
}

void TestStockDialogs::libraryStocksAreCalledByTheirNameUntilChanged_data()
{
    using Act = std::function<void(const Front &)>;
    QTest::addColumn<QString>("own"); // description of the library's stock
    QTest::addColumn<Act>("change");
    QTest::addColumn<QString>("shown"); // in the window's list
    QTest::addColumn<QString>("description");

    const Act nothing = [](const Front &) {};
    const Act color = [](const Front &front) {
        QVERIFY(front.choose("@advancedStockColor", kStockColorWhite));
    };
    const Act weight = [](const Front &front) {
        inNextDialog([](const Front &description) {
            QVERIFY(description.type("@stockWeight", "160"));
            QVERIFY(description.click("@okButton"));
        });
        QVERIFY(front.click("@advancedStockDescription"));
    };
    const QString choose = QStringLiteral("Choose a named paper");
    QTest::newRow("as it is") << "" << nothing << "Blue card"
                              << "Blue card";
    QTest::newRow("as it is, described") << "For menus" << nothing << "Blue card"
                                         << "For menus";
    QTest::newRow("another color") << "" << color << choose << "";
    QTest::newRow("another color, described") << "For menus" << color << choose << "For menus";
    QTest::newRow("another weight") << "" << weight << choose << "";
    QTest::newRow("another weight, described") << "For menus" << weight << choose << "For menus";
}

void TestStockDialogs::libraryStocksAreCalledByTheirNameUntilChanged()
{
    QFETCH(QString, own);
    QFETCH(std::function<void(const Front &)>, change);
    QFETCH(QString, shown);
    QFETCH(QString, description);
    Stock named;
    named.setWidth(10000); // a custom size, which covers cannot have
    named.setColor(kBlue);
    named.setWeight(250);
    named.setDescription(own);
    QCOMPARE(saveInStockLibrary("Blue card", named), LibraryProblem::None);
    Stock stock;
    DefaultStock(&stock, kJobContextCovers);
    inNextDialog([&](const Front &front) {
        QVERIFY(!front.isEnabled("@removeFromLibrary"));
        QVERIFY(front.choose("@stockLibrary", 0));
        QVERIFY(front.isEnabled("@removeFromLibrary"));
        QVERIFY(front.text("@advancedStockSummary").startsWith("Name: Blue card\n- Blue\n"));
        change(front);
        QCOMPARE(front.text("@stockLibrary"), shown);
        QCOMPARE(front.text("@advancedStockSummary").contains("Blue card"), shown == "Blue card");
        QVERIFY(front.click("@okButton"));
    });
    QCOMPARE(RunModalAdvancedStockSelection(m_bundle, kDialogModeEdit, kJobContextCovers,
                                            kNamedPaperLibrary, &stock, &m_result),
             noErr);
    QCOMPARE(stock.description(), description);
    QCOMPARE(stock.size(), kUnset);

    // Also when it is opened again, and changed by the menu of its button.
    forgetStockName(stock);
    inNextDialog([&](const Front &front) { QCOMPARE(front.text("@stockLibrary"), shown); });
    RunModalAdvancedStockSelection(m_bundle, kDialogModeEdit, kJobContextCovers, kNamedPaperLibrary,
                                   &stock, &m_result);
    _StockMenuCommandEventHandlerData data{m_bundle, &stock, kJobContextCovers};
    Event event;
    event.kind = EventKind::Command;
    event.command = kCommandStockColor;
    event.reference = 5;
    QCOMPARE(StockMenuCommandEventHandler(event, &data), noErr);
    QCOMPARE(stock.description(), own);
}

void TestStockDialogs::libraryIsKeptInTheWindow()
{
    QCOMPARE(saveInStockLibrary("Card", {}), LibraryProblem::None);
    Stock stock;
    stock.setDescription("card");
    stock.setColor(kBlue);
    QString replace;
    QString remove;
    inNextDialog([&](const Front &front) {
        inNextDialog([&replace](const Front &save) {
            QCOMPARE(save.text("@libraryStockName"), QStringLiteral("card"));
            answerNextNotice(1, &replace);
            QVERIFY(save.click("@okButton"));
        });
        QVERIFY(front.click("@saveInLibrary"));
        QCOMPARE(int(readStockLibrary().size()), 1);
        QCOMPARE(readStockLibrary().front().color(), kBlue);
        answerNextNotice(1, &remove);
        QVERIFY(front.click("@removeFromLibrary"));
        QVERIFY(readStockLibrary().empty());
        QVERIFY(!front.isEnabled("@stockLibrary"));
    });
    RunModalAdvancedStockSelection(m_bundle, kDialogModeEdit, kJobContextJob, kNamedPaperLibrary,
                                   &stock, &m_result);
    QCOMPARE(replace, QStringLiteral("Replace “card”?"));
    QCOMPARE(remove, QStringLiteral("Remove “card”?"));
}

void TestStockDialogs::libraryThatCannotBeKeptNamesItsFile()
{
    const QByteArray folder = qgetenv("XDG_CONFIG_HOME");
    Stock stock;
    stock.setDescription("card");
    stock.setColor(kBlue);
    QString said;
    inNextDialog([&](const Front &front) {
        inNextDialog([&said](const Front &save) {
            QTimer::singleShot(0, [&said] {
                said = frontNotice().message;
                QVERIFY(answerNotice(1));
            });
            qputenv("XDG_CONFIG_HOME", "/dev/null");
            QVERIFY(save.click("@okButton"));
        });
        QVERIFY(front.click("@saveInLibrary"));
    });
    RunModalAdvancedStockSelection(m_bundle, kDialogModeEdit, kJobContextJob, kNamedPaperLibrary,
                                   &stock, &m_result);
    qputenv("XDG_CONFIG_HOME", folder);
    QVERIFY2(said.contains("/dev/null/kelvo/com.kelvo.print.stocks.plist"), qPrintable(said));
}

void TestStockDialogs::advancedSelectionNeedsAColorName()
{
    Stock stock;
    QString header;
    inNextDialog([&header](const Front &front) {
        QVERIFY(!front.control("@advancedStockSize")->isVisible()); // the job's own
        QVERIFY(front.choose("@advancedStockColor", kStockColorCustom));
        answerNextNotice(1, &header);
        QVERIFY(front.click("@okButton"));
        QVERIFY(front.type("@stockColorName", "Sunset"));
        QVERIFY(front.click("@okButton"));
    });
    RunModalAdvancedStockSelection(m_bundle, kDialogModeEdit, kJobContextJob, kNamedPaperLibrary,
                                   &stock, &m_result);
    QCOMPARE(header, QStringLiteral("Name the custom color"));
    QCOMPARE(stock.customColor(), QStringLiteral("Sunset"));
}

void TestStockDialogs::revertLeavesNothingBehind()
{
    Stock stock;
    stock.setWeight(250);
    stock.setComment("Room 214");
    inNextDialog([](const Front &front) {
        QVERIFY(front.click("@revertButton"));
        QVERIFY(front.click("@okButton"));
    });
    RunModalAdvancedStockSelection(m_bundle, kDialogModeEdit, kJobContextInserts,
                                   kNamedPaperLibrary, &stock, &m_result);
    QCOMPARE(stock.asTicket(), Dictionary());
}

void TestStockDialogs::menuCommandsChangeTheStock_data()
{
    QTest::addColumn<quint32>("command");
    QTest::addColumn<int>("reference");
    QTest::addColumn<Dictionary>("ticket");
    QTest::addColumn<QString>("summary");

    const auto number = [](qint64 value) { return QVariant(value); };
    QTest::newRow("size") << kCommandStockSize << 4
                          << Dictionary{{"Size", number(4)}, {"Color", number(kBlue)}}
                          << "- A4 (210 × 297 mm)\n- Blue";
    QTest::newRow("colour") << kCommandStockColor << 3 << Dictionary{{"Color", number(3)}}
                            << "- Yellow";
    QTest::newRow("transparency") << kCommandStockType << 2
                                  << Dictionary{{"Type", number(2)}, {"Color", number(6)}}
                                  << "- Clear\n- Transparency";
    QTest::newRow("default") << kCommandStockDefault << 0 << Dictionary() << "Use job setting";
}

void TestStockDialogs::menuCommandsChangeTheStock()
{
    QFETCH(quint32, command);
    QFETCH(int, reference);
    QFETCH(Dictionary, ticket);
    QFETCH(QString, summary);
    Stock stock;
    stock.setColor(kBlue);
    stock.setCustomName("Card");
    QWidget window;
    auto *button = new MenuButton(&window);
    auto *view = new SummaryView(&window);
    window.show();
    int changes = 0;
    _StockMenuCommandEventHandlerData data;
    data.bundle = m_bundle;
    data.stock = &stock;
    data.jobContext = kJobContextInserts;
    data.summary = view;
    data.changed = [&changes] { ++changes; };
    QCOMPARE(InitializeStockMenuButton(button, &data), noErr);
    QCOMPARE(view->toPlainText(), QStringLiteral("Name: Card\n- Blue"));

    const inspector::ItemName item{inspector::ItemName::By::Reference, reference, {}, 0};
    const inspector::Done problem = inspector::chooseCommand(button, command, item);
    QVERIFY2(!problem, problem ? qPrintable(problem->text) : "");
    QCOMPARE(stock.asTicket(), ticket);
    QCOMPARE(view->toPlainText(), summary);
    QCOMPARE(changes, 1);
    // The first colour is the job's: checked only while no other is set.
    QCOMPARE(findItem(button->updatedMenu(), kCommandStockColor)->checked, stock.color() == kUnset);

    FinalizeStockMenuButton(&data);
    stock.setColor(kBlue);
    inspector::chooseCommand(button, kCommandStockDefault, {});
    QCOMPARE(stock.color(), kBlue);
    QCOMPARE(changes, 1);
}

void TestStockDialogs::menuOpensItsDialogs()
{
    Stock stock;
    stock.setCustomName("Card");
    QWidget window;
    auto *button = new MenuButton(&window);
    window.show();
    int changes = 0;
    _StockMenuCommandEventHandlerData data;
    data.bundle = m_bundle;
    data.stock = &stock;
    data.jobContext = kJobContextInserts;
    data.changed = [&changes] { ++changes; };
    QCOMPARE(InitializeStockMenuButton(button, &data), noErr);
    const inspector::ItemName custom{inspector::ItemName::By::Reference, kStockSizeCustom, {}, 0};

    inNextDialog([](const Front &) {});
    inspector::chooseCommand(button, kCommandStockAdvanced, {});
    QCOMPARE(stock.customName(), QStringLiteral("Card"));
    QCOMPARE(changes, 0);
    inNextDialog([](const Front &front) { QVERIFY(front.click("@okButton")); });
    inspector::chooseCommand(button, kCommandStockAdvanced, {});
    QCOMPARE(stock.customName(), QString());

    stock.setCustomName("Card");
    inNextDialog([](const Front &front) { QVERIFY(front.click("@cancelButton")); });
    StockMenuCommandEventHandler(
        {EventKind::Command, button, {}, kCommandStockSize, kStockSizeCustom}, &data);
    QCOMPARE(stock.size(), kUnset);
    QCOMPARE(stock.customName(), QString());
    inNextDialog([](const Front &front) {
        QVERIFY(front.type("@customWidth", "5"));
        QVERIFY(front.click("@okButton"));
    });
    StockMenuCommandEventHandler(
        {EventKind::Command, button, {}, kCommandStockSize, kStockSizeCustom}, &data);
    QCOMPARE(stock.size(), kStockSizeCustom);
    QCOMPARE(stock.width(), 12700);
    QCOMPARE(changes, 3);
    QCOMPARE(StockMenuCommandEventHandler({EventKind::Command, button, {}, kCommandOK}, &data),
             eventNotHandledErr);
    FinalizeStockMenuButton(&data);
}

QTEST_MAIN(TestStockDialogs)
#include "test_stock_dialogs.moc"
