#include "device_session.h"
#include "dialog_driver.h"

#include "cover_options.h"
#include "covers_dialog.h"
#include "picture_view.h"
#include "preferences.h"
#include "stock_library.h"
#include "stock_menus.h"

using namespace kelvo;

namespace {

constexpr std::int32_t kTray1 = 1, kTray2 = 2, kBypass = 100;
constexpr std::int32_t kBlue = 2;

Cover coverFrom(std::int32_t source)
{
    Cover cover = newCover();
    cover.stock().setSource(source);
    return cover;
}

inspector::ItemName reference(std::int32_t value)
{
    return {inspector::ItemName::By::Reference, value, {}, 0};
}

// Of the stock menu.
DialogDriver::Step chooseColor(const char *button, std::int32_t color)
{
    return [button, color] {
        expectDone(inspector::chooseCommand(control(button), kCommandStockColor, reference(color)));
    };
}

} // namespace

class TestCoversDialog : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        front.reset();
        back.reset();
        outcome = DialogResult::Cancel;
    }

    void optionsOfferWhatIsEdited();
    void theSameCoversFollowTheFront();
    void choosingPaperUnsetsTheSource();
    void aCoverThatIsLeftOutIsAskedAbout();
    void printedCoversOfferNoSize();
    void revertRemovesBothCovers();
    void cancelChangesNothing();
    void aSourceThatTheDeviceLacksIsSaid();
    void aDeviceWithoutCoversSaysSo();
    void editingNeedsACover();

private:
    OSStatus run(DialogMode mode, const DeviceSession &device)
    {
        return RunModalCoversDialog(device.bundle, mode, &jobStock, &front, &back, &outcome);
    }

    Stock jobStock;
    std::optional<Cover> front, back;
    DialogResult outcome = DialogResult::Cancel;
};

void TestCoversDialog::optionsOfferWhatIsEdited()
{
    const DeviceSession device("full");
    const DialogDriver driver(
        {expect("coverOptions", "value", "1"), expect("frontStockButton", "enabled", "false"),
         expect("frontStockSummary", "text", ""), choose("coverOptions", kFrontCoverOnly),
         expect("frontStockButton", "enabled", "true"), expect("frontSource", "value", "0"),
         expect("backSource", "enabled", "false"), choose("frontSource", kBypass),
         choose("coverOptions", kFrontAndBackCovers), expect("frontSource", "value", "100"),
         expect("backSides", "enabled", "true"), choose("backSides", kCoverPrinted),
         press("okButton")});
    QCOMPARE(run(kDialogModeAdd, device), noErr);
    QCOMPARE(outcome, DialogResult::OK);
    QVERIFY(front && back);
    QCOMPARE(front->stock().source(), kBypass);
    QCOMPARE(back->stock().source(), kCoverSourceAutomatic);
    QCOMPARE(back->sidesImaged(), kCoverPrinted);
}

void TestCoversDialog::theSameCoversFollowTheFront()
{
    const DeviceSession device("full");
    front = coverFrom(kTray1);
    back = coverFrom(kTray2);
    const auto backBefore = back->identity();
    const DialogDriver driver(
        {expect("coverOptions", "value", "5"), choose("coverOptions", kSameCovers),
         expect("backSource", "value", "1"), expect("backStockButton", "enabled", "false"),
         expect("backSides", "enabled", "false"), choose("frontSides", kCoverPrinted),
         expect("backSides", "value", "4"), chooseColor("frontStockButton", kBlue),
         [] { QCOMPARE(shown("backStockSummary"), shown("frontStockSummary")); },
         choose("frontSource", kTray2), expect("backSource", "value", "2"), press("okButton")});
    QCOMPARE(run(kDialogModeEdit, device), noErr);
    QVERIFY(*front == *back);
    QCOMPARE(back->identity(), backBefore);
    QCOMPARE(back->sidesImaged(), kCoverPrinted);
    QCOMPARE(back->stock().color(), kBlue);
}

void TestCoversDialog::choosingPaperUnsetsTheSource()
{
    const DeviceSession device("full");
    front = coverFrom(kTray1);
    const DialogDriver driver(
        {expect("frontSource", "items", "8"), chooseColor("frontStockButton", kBlue),
         expect("frontSource", "text", "Not set"),
         [] {
             const QString hint = shown("frontSourceHint");
             QVERIFY2(hint.contains("leaves this cover out"), qPrintable(hint));
         },
         choose("frontSource", kTray2), expect("frontSource", "items", "8"),
         // the tray's paper, whatever was chosen before
         expect("frontStockSummary", "text", "- Tray 2"),
         [] {
             QCOMPARE(control("frontStockIcon")->accessibleName(), QString("- Tray 2"));
             const auto *icon = qobject_cast<PictureView *>(control("frontStockIcon"));
             QVERIFY(icon && !icon->pictures().join(u' ').contains("Blue"));
         },
         press("okButton")});
    QCOMPARE(run(kDialogModeEdit, device), noErr);
    QCOMPARE(front->stock().source(), kTray2);
}

// The answer 1 goes back, and nothing is lost.
void TestCoversDialog::aCoverThatIsLeftOutIsAskedAbout()
{
    const DeviceSession device("full");
    const DialogDriver driver(
        {choose("coverOptions", kFrontAndBackCovers), chooseColor("frontStockButton", kBlue),
         press("okButton"),
         [] { QCOMPARE(frontNotice().header, QString("The front cover will be left out")); },
         answerNoticeWith("until you choose a paper source"),
         expect("frontSource", "focus", "true"), expect("frontStockSummary", "text", "- Blue"),
         chooseColor("backStockButton", kBlue), press("okButton"),
         [] { QCOMPARE(frontNotice().header, QString("Both covers will be left out")); },
         answerNoticeWith("until you choose a paper source"), choose("frontSource", kTray1),
         press("okButton"),
         [] {
             QCOMPARE(frontNotice().header, QString("The back cover will be left out"));
             answerNotice(2);
         }});
    QCOMPARE(run(kDialogModeAdd, device), noErr);
    QCOMPARE(outcome, DialogResult::OK);
    QCOMPARE(front->stock().source(), kTray1);
    QCOMPARE(back->stock().source(), kUnset);
}

void TestCoversDialog::printedCoversOfferNoSize()
{
    const DeviceSession device("full");
    front = coverFrom(kTray1);
    front->stock().setSize(kStockSizeLetter);
    Stock named;
    named.setSize(4); // A4
    QCOMPARE(saveInStockLibrary("Card", named), LibraryProblem::None);
    const auto openAdvanced = [] {
        // Runs until the dialog is closed.
        expectDone(inspector::chooseCommand(control("frontStockButton"), kCommandStockAdvanced,
                                            std::nullopt));
    };
    const auto expectSizes = [](const char *state) {
        return [state] {
            expectDone(
                inspector::expectItem(control("frontStockButton"), kCommandStockSize,
                                      inspector::ItemName{inspector::ItemName::By::Row, 0, {}, 1},
                                      QString::fromLatin1(state)));
        };
    };
    const DialogDriver driver(
        {expectSizes("enabled"), choose("frontSides", kCoverPrinted), expectSizes("disabled"),
         choose("frontSides", kCoverBlank), expectSizes("enabled"), openAdvanced,
         expect("advancedStockSize", "visible", "true"), choose("stockLibrary", 0),
         press("okButton"), [] { QVERIFY(shown("frontStockSummary").contains("A4")); },
         choose("frontSides", kCoverPrinted), openAdvanced,
         expect("advancedStockSize", "visible", "false"), choose("stockLibrary", 0),
         [] { QVERIFY(!shown("advancedStockSummary").contains("A4")); }, press("okButton"),
         choose("frontSource", kTray1), press("okButton")});
    QCOMPARE(run(kDialogModeEdit, device), noErr);
    QCOMPARE(front->stock().size(), kUnset);
    WriteUserPreferences(kStockLibraryFile, {});
}

void TestCoversDialog::revertRemovesBothCovers()
{
    const DeviceSession device("full");
    front = coverFrom(kTray1);
    back = coverFrom(kTray1);
    const DialogDriver driver({expect("coverOptions", "value", "4"), press("revertButton"),
                               expect("coverOptions", "value", "1"),
                               expect("backStockSummary", "text", ""),
                               expect("backSides", "index", "1"), press("okButton")});
    QCOMPARE(run(kDialogModeEdit, device), noErr);
    QVERIFY(!front && !back);
}

void TestCoversDialog::cancelChangesNothing()
{
    const DeviceSession device("full");
    front = coverFrom(kTray1);
    const DialogDriver driver({choose("coverOptions", kFrontAndBackCovers),
                               choose("frontSource", kTray2), press("cancelButton")});
    QCOMPARE(run(kDialogModeEdit, device), noErr);
    QCOMPARE(outcome, DialogResult::Cancel);
    QCOMPARE(front->stock().source(), kTray1);
    QVERIFY(!back);
}

void TestCoversDialog::aSourceThatTheDeviceLacksIsSaid()
{
    const DeviceSession device("mid"); // three trays
    front = coverFrom(6);
    const DialogDriver driver(
        {expect("frontSource", "text", "Not offered here"), press("okButton"),
         [] { answerNotice(2); }}); // left out, as this device cannot fetch it
    QCOMPARE(run(kDialogModeEdit, device), noErr);
    QCOMPARE(front->stock().source(), 6);
}

void TestCoversDialog::aDeviceWithoutCoversSaysSo()
{
    const DeviceSession device("bare");
    const DialogDriver driver({choose("coverOptions", kFrontCoverOnly),
                               expect("frontSource", "enabled", "false"),
                               [] {
                                   const QString hint = shown("frontSourceHint");
                                   QVERIFY2(hint.contains("does not offer"), qPrintable(hint));
                               },
                               press("cancelButton")});
    QCOMPARE(run(kDialogModeAdd, device), noErr);
}

void TestCoversDialog::editingNeedsACover()
{
    const DeviceSession device("full");
    QCOMPARE(run(kDialogModeEdit, device), paramErr);
}

QTEST_MAIN(TestCoversDialog)
#include "test_covers_dialog.moc"
