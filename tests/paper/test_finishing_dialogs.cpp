#include "device_session.h"
#include "dialog_driver.h"

#include "control.h"
#include "finishing_dialogs.h"
#include "help_window.h"
#include "paper_output_settings.h"
#include "popup_button.h"
#include "separators_dialog.h"

#include <QTest>

using namespace kelvo;
using RunDialog = OSStatus (*)(CFBundleRef, PaperOutputSettings *, DialogResult *, QWidget *);

Q_DECLARE_METATYPE(RunDialog)

namespace {

// The texts of a pop-up's items.
QString items(const char *name)
{
    QStringList texts;
    for (const MenuItem &item : qobject_cast<PopupButton *>(control(name))->menu().items)
        texts << item.text;
    return texts.join(u'|');
}

DialogDriver::Step check(const char *name, bool on)
{
    return [name, on] { expectDone(inspector::check(control(name), on)); };
}

// The page that the window's Help names is in the help book.
DialogDriver::Step openHelp()
{
    return [] { QCOMPARE(sendCommand(frontWindow(), kCommandHelp), noErr); };
}

} // namespace

class TestFinishingDialogs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCOMPARE(AHRegisterHelpBook(DeviceSession({}).bundle), noErr); }

    void menuOffersWhatIsInstalled_data();
    void menuOffersWhatIsInstalled();
    void everyChoiceHasItsWindow_data();
    void everyChoiceHasItsWindow();
    void okSetsTheChosenHoles();
    void whatOkReplacesIsSaidFirst();
    void offsetDialogStoresWithOkOnly();
    void anOffsetThatIsNotOfferedIsKept();
    void customFinishingNeedsAText();
    void separatorsFollowTheirOption();
    void revertLeavesNoSeparators();
    void whatThePpdLacksIsSaidAndKept();
    void aDeviceWithoutSeparatorsSaysSo();
    void badArgumentsAreRefused();
};

void TestFinishingDialogs::menuOffersWhatIsInstalled_data()
{
    QTest::addColumn<QString>("commands");

    QTest::newRow("full") << "Fst1 Fst2 Fhpn Ffld Fadv Fzfd Fbnd Foff Fcus";
    QTest::newRow("mid") << "Fst1 Fhpn Foff Fcus";
    QTest::newRow("bare") << "Foff Fcus";
}

// The row's name is the device.
void TestFinishingDialogs::menuOffersWhatIsInstalled()
{
    QFETCH(QString, commands);
    const DeviceSession device(QString::fromLatin1(QTest::currentDataTag()));
    Menu menu;
    PopulateMoreFinishingMenu(menu, currentDevice());
    QStringList found;
    for (const MenuItem &item : menu.items) {
        found << textOf({item.command, 0}).left(4); // "Fst1 0"
        QVERIFY2(item.text.endsWith(u'…'), qPrintable(item.text));
    }
    QCOMPARE(found.join(u' '), commands);
}

void TestFinishingDialogs::everyChoiceHasItsWindow_data()
{
    QTest::addColumn<RunDialog>("run");
    QTest::addColumn<QString>("lines");

    const auto row = [](const char *title, RunDialog run, const char *lines) {
        QTest::newRow(title) << run << QString::fromUtf8(lines);
    };
    row("1 staple", RunModal1StapleFinishingDialog, "No staple|1 staple");
    row("2 staples", RunModal2StaplesFinishingDialog, "No staple|2 staples");
    row("Hole punch", RunModalHolePunchFinishingDialog,
        "No hole punch|2-hole punch|3-hole punch|4-hole punch");
    row("Fold", RunModalFoldFinishingDialog, "No fold|C-fold|Z-fold");
    row("Advanced fold", RunModalAdvancedFoldFinishingDialog,
        "No fold|Bi-fold|Booklet fold and staple|C-fold|Z-fold|Z-fold half sheet");
    row("Z-fold", RunModalZFoldFinishingDialog, "No fold|Z-fold|Z-fold half sheet");
    row("Tape binding", RunModalBindFinishingDialog, "No binding|Left edge|Right edge|Top edge");
}

// The row's name is the window's title.
void TestFinishingDialogs::everyChoiceHasItsWindow()
{
    QFETCH(RunDialog, run);
    QFETCH(QString, lines);
    const DeviceSession device("full");
    PaperOutputSettings context;
    DialogResult result = DialogResult::OK;
    const DialogDriver driver({
        [&] {
            QCOMPARE(frontWindow()->windowTitle(), QTest::currentDataTag());
            QCOMPARE(items("finishingChoice"), lines);
            QStringList sentences = {shown("finishingLimits")};
            for (int row = 1; row <= lines.count(u'|') + 1; ++row) {
                expectDone(inspector::choose(control("finishingChoice"),
                                             {inspector::ItemName::By::Row, 0, {}, row}));
                sentences << shown("finishingHint");
            }
            QVERIFY(!sentences.contains(QStringLiteral("STRING NOT FOUND")));
            QCOMPARE(sentences.removeDuplicates(), 0);
        },
        openHelp(),
        press("cancelButton"),
    });
    QCOMPARE(run(device.bundle, &context, &result, nullptr), noErr);
    QCOMPARE(result, DialogResult::Cancel);
    QVERIFY(context.finishing == Finishing());
}

void TestFinishingDialogs::okSetsTheChosenHoles()
{
    const DeviceSession device("full");
    PaperOutputSettings context;
    context.finishing.fold = kFoldC;
    DialogResult result = DialogResult::Cancel;
    const DialogDriver driver({
        expect("finishingChoice", "index", "1"),
        choose("finishingChoice", kPunchThreeHoles),
        press("okButton"),
    });
    QCOMPARE(RunModalHolePunchFinishingDialog(device.bundle, &context, &result), noErr);
    QCOMPARE(result, DialogResult::OK);
    QCOMPARE(context.finishing.punch, kPunchThreeHoles);
    QCOMPARE(context.finishing.options, kFinishingPunch);
    QCOMPARE(context.finishing.fold, kFoldNone);
}

void TestFinishingDialogs::whatOkReplacesIsSaidFirst()
{
    const DeviceSession device("full");
    PaperOutputSettings context;
    const auto note = [&] {
        QString text;
        DialogResult result = DialogResult::OK;
        const DialogDriver driver({
            [&text] { text = shown("finishingNote"); },
            press("cancelButton"),
        });
        RunModal1StapleFinishingDialog(device.bundle, &context, &result);
        return text;
    };
    QCOMPARE(note(), QString());
    setStaple(context.finishing, kStapleDual);
    QVERIFY(note().contains(QStringLiteral("2 staples")));
    setStaple(context.finishing, kStapleSingle);
    context.booklet = kBookletOn;
    QVERIFY(note().contains(QStringLiteral("booklet")));
}

void TestFinishingDialogs::offsetDialogStoresWithOkOnly()
{
    const DeviceSession device({});
    PaperOutputSettings context;
    context.finishing.offset = kOffsetSets;
    const Finishing before = context.finishing;
    for (const char *button : {"cancelButton", "okButton"}) {
        DialogResult result = DialogResult::Cancel;
        const DialogDriver driver({
            [] {
                QCOMPARE(items("offset").count(u'|'), 3);
                QVERIFY(!control("subsets")->isEnabled());
                QVERIFY(!control("pagesPerSubset")->isEnabled());
            },
            choose("offset", kOffsetBoth),
            expect("subsets", "checked", "true"),
            type("pagesPerSubset", "12"),
            check("subsets", false), // and sets again
            expect("offset", "value", "3"),
            expect("pagesPerSubset", "value", "0"),
            expect("pagesPerSubset", "enabled", "false"),
            check("subsets", true), // a slip of the hand
            expect("offset", "value", "5"),
            expect("pagesPerSubset", "enabled", "true"),
            choose("offset", kOffsetSets),
            expect("subsets", "enabled", "false"),
            expect("pagesPerSubset", "enabled", "false"),
            choose("offset", kOffsetSubsets),
            type("pagesPerSubset", "8"), // taken by OK
            openHelp(),
            press(button),
        });
        QVERIFY(context.finishing == before);
        QCOMPARE(RunModalOffsetFinishingDialog(device.bundle, &context, &result), noErr);
    }
    QCOMPARE(context.finishing.offset, kOffsetSubsets);
    QCOMPARE(context.finishing.offsetSubsetEnabled, 1);
    QCOMPARE(context.finishing.pagesPerSubset, 8);
}

void TestFinishingDialogs::anOffsetThatIsNotOfferedIsKept()
{
    const DeviceSession device({});
    PaperOutputSettings context;
    context.finishing.offset = 1;
    DialogResult result = DialogResult::Cancel;
    const DialogDriver driver({expect("offset", "text", "Printer default"), press("okButton")});
    QCOMPARE(RunModalOffsetFinishingDialog(device.bundle, &context, &result), noErr);
    QCOMPARE(result, DialogResult::OK);
    QCOMPARE(context.finishing.offset, 1);
}

void TestFinishingDialogs::customFinishingNeedsAText()
{
    const DeviceSession device({});
    PaperOutputSettings context;
    DialogResult result = DialogResult::Cancel;
    const QString longest(255, u'x');
    const DialogDriver driver({
        expect("okButton", "enabled", "false"),
        type("customFinishing", "Sew"),
        expect("okButton", "enabled", "true"),
        type("customFinishing", ""),
        expect("okButton", "enabled", "false"),
        [&] { QVERIFY(inspector::type(control("customFinishing"), longest + u'y')); },
        openHelp(),
        press("okButton"),
    });
    QCOMPARE(RunModalCustomFinishingDialog(device.bundle, &context, &result), noErr);
    QCOMPARE(result, DialogResult::OK);
    QCOMPARE(context.finishing.custom, longest);
}

void TestFinishingDialogs::separatorsFollowTheirOption()
{
    const DeviceSession device("full");
    std::int32_t separators = kSeparatorsNone;
    Stock stock;
    DialogResult result = DialogResult::Cancel;
    const DialogDriver driver({
        [] {
            QCOMPARE(items("separatorOption"), "No separators|Blank separators|Printed separators");
        },
        expect("separatorSource", "enabled", "false"),
        expect("separatorColor", "enabled", "false"),
        choose("separatorOption", kSeparatorsBlank),
        choose("separatorSource", 2),
        choose("separatorColor", 5),
        openHelp(),
        press("okButton"),
    });
    QCOMPARE(RunModalSeparatorsDialog(device.bundle, &separators, &stock, &result), noErr);
    QCOMPARE(result, DialogResult::OK);
    QCOMPARE(separators, kSeparatorsBlank);
    QCOMPARE(stock.source(), 2);
    QCOMPARE(stock.color(), kStockColorWhite); // the chosen one is the picture's alone
}

void TestFinishingDialogs::revertLeavesNoSeparators()
{
    const DeviceSession device("full");
    std::int32_t separators = kSeparatorsBlank;
    Stock stock;
    stock.setSource(3);
    DialogResult result = DialogResult::Cancel;
    const DialogDriver driver({
        expect("separatorSource", "text", "Tray 3"),
        press("revertButton"),
        expect("separatorSource", "index", "1"),
        expect("separatorSource", "enabled", "false"),
        expect("separatorColor", "enabled", "false"),
        press("okButton"),
    });
    QCOMPARE(RunModalSeparatorsDialog(device.bundle, &separators, &stock, &result), noErr);
    QCOMPARE(separators, kSeparatorsNone);
    QCOMPARE(stock.source(), 3); // stored with separators only
}

void TestFinishingDialogs::whatThePpdLacksIsSaidAndKept()
{
    const DeviceSession device("mid"); // three trays
    std::int32_t separators = kNoPpdChoice;
    Stock stock;
    stock.setSource(6);
    DialogResult result = DialogResult::Cancel;
    const DialogDriver driver({expect("separatorOption", "text", "Not offered here"),
                               expect("separatorSource", "text", "Not offered here"),
                               press("okButton")});
    QCOMPARE(RunModalSeparatorsDialog(device.bundle, &separators, &stock, &result), noErr);
    QCOMPARE(separators, kNoPpdChoice);
    QCOMPARE(stock.source(), 6);
}

void TestFinishingDialogs::aDeviceWithoutSeparatorsSaysSo()
{
    const DeviceSession device("bare");
    std::int32_t separators = kSeparatorsBlank;
    Stock stock;
    DialogResult result = DialogResult::Cancel;
    const DialogDriver driver({
        expect("separatorHint", "text",
               "This device cannot put separators between transparencies."),
        expect("separatorOption", "enabled", "false"),
        expect("separatorSource", "enabled", "false"),
        expect("separatorColor", "enabled", "false"),
        press("okButton"),
    });
    QCOMPARE(RunModalSeparatorsDialog(device.bundle, &separators, &stock, &result), noErr);
    QCOMPARE(separators, kSeparatorsNone);
    QCOMPARE(stock.source(), kUnset);
}

void TestFinishingDialogs::badArgumentsAreRefused()
{
    const DeviceSession device({});
    PaperOutputSettings context;
    Stock stock;
    std::int32_t separators = kSeparatorsNone;
    DialogResult result = DialogResult::OK;
    for (const RunDialog run : {RunModalOffsetFinishingDialog, RunModalZFoldFinishingDialog,
                                RunModalCustomFinishingDialog}) {
        QCOMPARE(run(nullptr, &context, &result, nullptr), paramErr);
        QCOMPARE(run(device.bundle, nullptr, &result, nullptr), paramErr);
        QCOMPARE(run(device.bundle, &context, nullptr, nullptr), paramErr);
    }
    QCOMPARE(RunModalSeparatorsDialog(device.bundle, nullptr, &stock, &result), paramErr);
    QCOMPARE(RunModalSeparatorsDialog(device.bundle, &separators, nullptr, &result), paramErr);
    QCOMPARE(RunModalSeparatorsDialog(device.bundle, &separators, &stock, nullptr), paramErr);
}

QTEST_MAIN(TestFinishingDialogs)
#include "test_finishing_dialogs.moc"
