#include "control.h"
#include "finishing_dialogs.h"
#include "help_window.h"
#include "inspector.h"
#include "installed_features.h"
#include "modal_dialog.h"
#include "paper_output_context.h"
#include "pde_session.h"
#include "popup_button.h"
#include "ppd_choices.h"
#include "print_session.h"
#include "separators_dialog.h"

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace kelvo;
using RunDialog = OSStatus (*)(CFBundleRef, _PaperOutputContext *, DialogResult *, QWidget *);

Q_DECLARE_METATYPE(RunDialog)

namespace {

inspector::ItemName byReference(std::int32_t reference)
{
    return {.reference = reference};
}

// The window in front, while a dialog runs.
struct Front
{
    QWidget *window = frontWindow();

    QWidget *control(const char *objectName) const
    {
        return inspector::find(window, {.objectName = QString::fromLatin1(objectName)}).control;
    }
    QString property(const char *objectName, const char *name) const
    {
        const auto found = inspector::property(control(objectName), QString::fromLatin1(name));
        return found ? found.value() : QStringLiteral("-");
    }
    // The texts of a pop-up's items.
    QString items(const char *objectName) const
    {
        QStringList texts;
        if (const auto *popup = qobject_cast<PopupButton *>(control(objectName))) {
            for (const MenuItem &item : popup->menu().items)
                texts << item.text;
        }
        return texts.join(u'|');
    }
    bool choose(const char *objectName, std::int32_t reference) const
    {
        return !inspector::choose(control(objectName), byReference(reference));
    }
    bool check(const char *objectName, bool on) const
    {
        return !inspector::check(control(objectName), on);
    }
    bool type(const char *objectName, const QString &text) const
    {
        return !inspector::type(control(objectName), text);
    }
    bool click(const char *objectName) const { return !inspector::click(control(objectName)); }
};

} // namespace

class TestFinishingDialogs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void menuOffersWhatIsInstalled_data();
    void menuOffersWhatIsInstalled();
    void everyChoiceHasItsWindow_data();
    void everyChoiceHasItsWindow();
    void okSetsTheChosenHoles();
    void whatOkReplacesIsSaidFirst();
    void cancelKeepsTheOffset();
    void okStoresTheOffset();
    void anOffsetThatIsNotOfferedIsKept();
    void customFinishingNeedsAText();
    void separatorsFollowTheirOption();
    void revertLeavesNoSeparators();
    void aSourceThatThePpdLacksBecomesTheFirst();
    void aDeviceWithoutSeparatorsSaysSo();
    void badArgumentsAreRefused();

private:
    void useDevice(const char *device);
    // Does `actions` while `run` runs a dialog; Cancel when they did not end it.
    template <typename Run>
    void during(const std::function<void(const Front &)> &actions, Run run);

    CFBundleRef m_bundle = nullptr;
    PrintSession m_session;
};

void TestFinishingDialogs::initTestCase()
{
    const auto opened = Bundle::open(QStringLiteral(KELVO_BUILD_DIR "/lib/KelvoPDE.pde"));
    QVERIFY2(opened, qPrintable(opened ? QString() : opened.error().text()));
    m_bundle = opened.value();
    QCOMPARE(AHRegisterHelpBook(m_bundle), noErr);
}

void TestFinishingDialogs::cleanup()
{
    UnloadInstallableOptions();
    PPDCloseCurrent();
    setCurrentPrintSession(nullptr);
}

void TestFinishingDialogs::useDevice(const char *device)
{
    const QString path = QStringLiteral(KELVO_SOURCE_DIR "/resources/ppds/kelvo-corvane-%1.ppd")
                             .arg(QLatin1String(device));
    m_session.setPrinter({QStringLiteral("Hall-3"), path});
    setCurrentPrintSession(&m_session);
    QVERIFY(LoadInstallableOptions(PPDGetCurrent(), InstalledFeatures));
}

template <typename Run>
void TestFinishingDialogs::during(const std::function<void(const Front &)> &actions, Run run)
{
    bool isShown = false;
    QTimer::singleShot(0, qApp, [&] {
        const Front front;
        isShown = front.window;
        QVERIFY(isShown);
        actions(front);
        if (front.window->isVisible())
            front.click("cancelButton");
    });
    QCOMPARE(run(), noErr);
    QVERIFY(isShown);
}

void TestFinishingDialogs::menuOffersWhatIsInstalled_data()
{
    QTest::addColumn<QByteArray>("device");
    QTest::addColumn<QStringList>("commands");

    QTest::newRow("full") << QByteArray("full")
                          << QStringList{"Fst1", "Fst2", "Fhpn", "Ffld", "Fadv",
                                         "Fzfd", "Fbnd", "Foff", "Fcus"};
    QTest::newRow("mid") << QByteArray("mid") << QStringList{"Fst1", "Fhpn", "Foff", "Fcus"};
    QTest::newRow("bare") << QByteArray("bare") << QStringList{"Foff", "Fcus"};
}

void TestFinishingDialogs::menuOffersWhatIsInstalled()
{
    QFETCH(QByteArray, device);
    QFETCH(QStringList, commands);
    useDevice(device.constData());
    Menu menu;
    PopulateMoreFinishingMenu(menu, m_bundle);
    QStringList found;
    for (const MenuItem &item : menu.items) {
        found << textOf({item.command, 0}).left(4); // "Fst1 0"
        QVERIFY2(item.text.endsWith(u'…'), qPrintable(item.text));
    }
    QCOMPARE(found, commands);
}

void TestFinishingDialogs::everyChoiceHasItsWindow_data()
{
    QTest::addColumn<RunDialog>("run");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("items");

    const auto row = [](const char *name, RunDialog run, const char *title, const char *items) {
        QTest::newRow(name) << run << QString::fromUtf8(title) << QString::fromUtf8(items);
    };
    row("1 staple", RunModal1StapleFinishingDialog, "1 staple", "No staple|1 staple");
    row("2 staples", RunModal2StaplesFinishingDialog, "2 staples", "No staple|2 staples");
    row("holes", RunModalHolePunchFinishingDialog, "Hole punch",
        "No hole punch|2-hole punch|3-hole punch|4-hole punch");
    row("fold", RunModalFoldFinishingDialog, "Fold", "No fold|C-fold|Z-fold");
    row("advanced fold", RunModalAdvancedFoldFinishingDialog, "Advanced fold",
        "No fold|Bi-fold|Booklet fold and staple|C-fold|Z-fold|Z-fold half sheet");
    row("Z-fold", RunModalZFoldFinishingDialog, "Z-fold", "No fold|Z-fold|Z-fold half sheet");
    row("bind", RunModalBindFinishingDialog, "Tape binding",
        "No binding|Left edge|Right edge|Top edge");
}

void TestFinishingDialogs::everyChoiceHasItsWindow()
{
    QFETCH(RunDialog, run);
    QFETCH(QString, title);
    QFETCH(QString, items);
    useDevice("full");
    _PaperOutputContext context;
    DialogResult result = DialogResult::OK;
    during(
        [&](const Front &front) {
            QCOMPARE(front.window->windowTitle(), title);
            QCOMPARE(front.items("finishingChoice"), items);
            QVERIFY(!labelOf(front.control("finishingChoice"))->text().isEmpty());
            // Every choice has a sentence of its own.
            QStringList hints;
            for (int row = 1; row <= items.count(u'|') + 1; ++row) {
                QVERIFY(!inspector::choose(front.control("finishingChoice"),
                                           {.by = inspector::ItemName::By::Row, .row = row}));
                hints << front.property("finishingHint", "text");
            }
            QVERIFY(!hints.contains(QStringLiteral("STRING NOT FOUND")));
            QCOMPARE(hints.removeDuplicates(), 0);
            QVERIFY(front.property("finishingLimits", "text")
                    != QStringLiteral("STRING NOT FOUND"));
            QCOMPARE(sendCommand(front.window, kCommandHelp), noErr);
        },
        [&] { return run(m_bundle, &context, &result, nullptr); });
    QCOMPARE(result, DialogResult::Cancel);
    QVERIFY(context.finishing == Finishing());
}

void TestFinishingDialogs::okSetsTheChosenHoles()
{
    useDevice("full");
    _PaperOutputContext context;
    context.finishing.fold = kFoldC;
    DialogResult result = DialogResult::Cancel;
    during(
        [](const Front &front) {
            QCOMPARE(front.property("finishingChoice", "value"), QString("1"));
            QVERIFY(front.choose("finishingChoice", kPunchThreeHoles));
            QVERIFY(front.click("okButton"));
        },
        [&] { return RunModalHolePunchFinishingDialog(m_bundle, &context, &result); });
    QCOMPARE(result, DialogResult::OK);
    QCOMPARE(context.finishing.punch, kPunchThreeHoles);
    QCOMPARE(context.finishing.options, kFinishingPunch);
    QCOMPARE(context.finishing.fold, kFoldNone);
}

void TestFinishingDialogs::whatOkReplacesIsSaidFirst()
{
    useDevice("full");
    _PaperOutputContext context;
    DialogResult result = DialogResult::OK;
    const auto shownNote = [&] {
        QString note;
        during([&](const Front &front) { note = front.property("finishingNote", "text"); },
               [&] { return RunModal1StapleFinishingDialog(m_bundle, &context, &result); });
        return note;
    };
    QCOMPARE(shownNote(), QString());
    setStaple(context.finishing, kStapleDual);
    QVERIFY(shownNote().contains(QStringLiteral("2 staples")));
    setStaple(context.finishing, kStapleSingle);
    context.booklet = kBookletOn;
    QVERIFY(shownNote().contains(QStringLiteral("booklet")));
}

void TestFinishingDialogs::cancelKeepsTheOffset()
{
    _PaperOutputContext context;
    DialogResult result = DialogResult::OK;
    during(
        [](const Front &front) {
            QVERIFY(front.choose("offset", kOffsetBoth));
            QVERIFY(front.click("cancelButton"));
        },
        [&] { return RunModalOffsetFinishingDialog(m_bundle, &context, &result); });
    QCOMPARE(result, DialogResult::Cancel);
    QVERIFY(context.finishing == Finishing());
}

void TestFinishingDialogs::okStoresTheOffset()
{
    _PaperOutputContext context;
    context.finishing.offset = kOffsetSets;
    DialogResult result = DialogResult::Cancel;
    during(
        [](const Front &front) {
            QCOMPARE(front.property("offset", "items"), QString("4"));
            QVERIFY(!front.control("subsets")->isEnabled());
            QVERIFY(!front.control("pagesPerSubset")->isEnabled());
            QVERIFY(front.choose("offset", kOffsetBoth));
            QCOMPARE(front.property("subsets", "checked"), QString("true"));
            QVERIFY(front.type("pagesPerSubset", "12"));
            QVERIFY(front.check("subsets", false)); // and sets again
            QCOMPARE(front.property("offset", "value"), QString("3"));
            QCOMPARE(front.property("pagesPerSubset", "value"), QString("0"));
            QVERIFY(front.choose("offset", kOffsetSubsets));
            QVERIFY(front.type("pagesPerSubset", "8")); // taken by OK
            QCOMPARE(sendCommand(front.window, kCommandHelp), noErr);
            QVERIFY(front.click("okButton"));
        },
        [&] { return RunModalOffsetFinishingDialog(m_bundle, &context, &result); });
    QCOMPARE(result, DialogResult::OK);
    QCOMPARE(context.finishing.offset, kOffsetSubsets);
    QCOMPARE(context.finishing.offsetSubsetEnabled, 1);
    QCOMPARE(context.finishing.pagesPerSubset, 8);
}

void TestFinishingDialogs::anOffsetThatIsNotOfferedIsKept()
{
    _PaperOutputContext context;
    context.finishing.offset = 1;
    DialogResult result = DialogResult::Cancel;
    during(
        [](const Front &front) {
            QCOMPARE(front.property("offset", "text"), QString("Printer default"));
            QVERIFY(front.click("okButton"));
        },
        [&] { return RunModalOffsetFinishingDialog(m_bundle, &context, &result); });
    QCOMPARE(result, DialogResult::OK);
    QCOMPARE(context.finishing.offset, 1);
}

void TestFinishingDialogs::customFinishingNeedsAText()
{
    _PaperOutputContext context;
    DialogResult result = DialogResult::Cancel;
    during(
        [](const Front &front) {
            QWidget *ok = front.control("okButton");
            QVERIFY(!ok->isEnabled());
            QVERIFY(front.type("customFinishing", "Sew"));
            QVERIFY(ok->isEnabled());
            QVERIFY(front.type("customFinishing", ""));
            QVERIFY(!ok->isEnabled());
            QVERIFY(!front.type("customFinishing", QString(256, u'x')));
            QCOMPARE(front.property("customFinishing", "text"), QString(255, u'x'));
            QCOMPARE(sendCommand(front.window, kCommandHelp), noErr);
            QVERIFY(front.click("okButton"));
        },
        [&] { return RunModalCustomFinishingDialog(m_bundle, &context, &result); });
    QCOMPARE(result, DialogResult::OK);
    QCOMPARE(context.finishing.custom, QString(255, u'x'));
}

void TestFinishingDialogs::separatorsFollowTheirOption()
{
    useDevice("full");
    std::int32_t separators = 1;
    Stock stock;
    DialogResult result = DialogResult::Cancel;
    during(
        [](const Front &front) {
            QCOMPARE(front.items("separatorOption"),
                     QString("No separators|Blank separators|Printed separators"));
            QVERIFY(!front.control("separatorSource")->isEnabled());
            QVERIFY(!front.control("separatorColor")->isEnabled());
            QVERIFY(front.choose("separatorOption", 3));
            QVERIFY(front.choose("separatorSource", 2));
            QVERIFY(front.choose("separatorColor", 5));
            QVERIFY(front.choose("separatorOption", 2));
            QCOMPARE(sendCommand(front.window, kCommandHelp), noErr);
            QVERIFY(front.click("okButton"));
        },
        [&] { return RunModalSeparatorsDialog(m_bundle, &separators, &stock, &result); });
    QCOMPARE(result, DialogResult::OK);
    QCOMPARE(separators, 2);
    QCOMPARE(stock.source(), 2);
    QCOMPARE(stock.color(), kStockColorWhite); // the colour is the picture's alone
}

void TestFinishingDialogs::revertLeavesNoSeparators()
{
    useDevice("full");
    std::int32_t separators = 2;
    Stock stock;
    stock.setSource(3);
    DialogResult result = DialogResult::Cancel;
    during(
        [](const Front &front) {
            QCOMPARE(front.property("separatorSource", "text"), QString("Tray 3"));
            QVERIFY(front.control("separatorColor")->isEnabled());
            QVERIFY(front.click("revertButton"));
            QCOMPARE(front.property("separatorSource", "index"), QString("1"));
            QVERIFY(!front.control("separatorSource")->isEnabled());
            QVERIFY(!front.control("separatorColor")->isEnabled());
            QVERIFY(front.click("okButton"));
        },
        [&] { return RunModalSeparatorsDialog(m_bundle, &separators, &stock, &result); });
    QCOMPARE(separators, 1);
    QCOMPARE(stock.source(), 3); // stored with separators only
}

void TestFinishingDialogs::aSourceThatThePpdLacksBecomesTheFirst()
{
    useDevice("mid"); // three trays
    std::int32_t separators = 2;
    Stock stock;
    stock.setSource(6);
    DialogResult result = DialogResult::Cancel;
    during([](const Front &front) { QVERIFY(front.click("okButton")); },
           [&] { return RunModalSeparatorsDialog(m_bundle, &separators, &stock, &result); });
    QCOMPARE(stock.source(), 0);
}

void TestFinishingDialogs::aDeviceWithoutSeparatorsSaysSo()
{
    useDevice("bare");
    std::int32_t separators = 2;
    Stock stock;
    DialogResult result = DialogResult::Cancel;
    during(
        [](const Front &front) {
            for (const char *name : {"separatorOption", "separatorSource", "separatorColor"})
                QVERIFY2(!front.control(name)->isEnabled(), name);
            QVERIFY(front.property("separatorHint", "text").contains(QStringLiteral("cannot")));
            QVERIFY(front.click("okButton"));
        },
        [&] { return RunModalSeparatorsDialog(m_bundle, &separators, &stock, &result); });
    QCOMPARE(separators, 1);
    QCOMPARE(stock.source(), kUnset);
}

void TestFinishingDialogs::badArgumentsAreRefused()
{
    _PaperOutputContext context;
    Stock stock;
    std::int32_t separators = 1;
    DialogResult result = DialogResult::OK;
    for (const RunDialog run :
         {RunDialog(RunModalOffsetFinishingDialog), RunDialog(RunModalZFoldFinishingDialog),
          RunDialog(RunModalCustomFinishingDialog)}) {
        QCOMPARE(run(nullptr, &context, &result, nullptr), paramErr);
        QCOMPARE(run(m_bundle, nullptr, &result, nullptr), paramErr);
        QCOMPARE(run(m_bundle, &context, nullptr, nullptr), paramErr);
    }
    QCOMPARE(RunModalSeparatorsDialog(nullptr, &separators, &stock, &result), paramErr);
    QCOMPARE(RunModalSeparatorsDialog(m_bundle, nullptr, &stock, &result), paramErr);
    QCOMPARE(RunModalSeparatorsDialog(m_bundle, &separators, nullptr, &result), paramErr);
    QCOMPARE(RunModalSeparatorsDialog(m_bundle, &separators, &stock, nullptr), paramErr);
}

QTEST_MAIN(TestFinishingDialogs)
#include "test_finishing_dialogs.moc"
