#include "device_session.h"
#include "dialog_driver.h"

#include "exceptions_dialog.h"
#include "inserts_dialog.h"
#include "lighten_darken.h"
#include "special_page_edits.h"
#include "special_pages_context.h"
#include "special_pages_notices.h"
#include "stock_menus.h"
#include "tab_shift.h"

#include <QLineEdit>

using namespace kelvo;

namespace {

using Step = DialogDriver::Step;

constexpr std::int32_t kBlue = 2;
constexpr std::int32_t kTwoSided = 2; // PlexMap

Step chooseStock(const char *button, OSType command, std::int32_t value)
{
    return [=] {
        expectDone(inspector::chooseCommand(
            control(button), command,
            inspector::ItemName{inspector::ItemName::By::Reference, value, {}, 0}));
    };
}

Step answer(const QString &header, const QString &part)
{
    return [=] {
        QCOMPARE(frontNotice().header, header);
        answerNoticeWith(qPrintable(part))();
    };
}

Step expectSelected(const char *field, const QString &text)
{
    return [=] {
        QCOMPARE(qobject_cast<QLineEdit *>(control(field))->selectedText(), text);
        QCOMPARE(frontWindow()->focusWidget(), control(field));
    };
}

Step expectWindow(const char *name)
{
    return [=] { QCOMPARE(frontWindow()->objectName(), QString::fromLatin1(name)); };
}

ExceptionPage exceptionOf(std::int32_t first, std::int32_t last)
{
    ExceptionPage page;
    page.setStartPage(first);
    page.setEndPage(last);
    return page;
}

QString ranges(const ExceptionPageList &list)
{
    QStringList ranges;
    for (std::int32_t i = 0; i < list.count(); ++i) {
        const ExceptionPage *page = list.pageAtIndex(i);
        ranges << QStringLiteral("%1-%2").arg(page->startPage()).arg(page->endPage());
    }
    return ranges.join(u' ');
}

} // namespace

class TestSpecialPageDialogs : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        panel.emplace();
        _specialPagesContext = &*panel;
        outcome = DialogResult::Cancel;
    }
    void cleanup() { _specialPagesContext = nullptr; }

    void insertsAreAdded();
    void pagesComeBackWithTheirPosition();
    void exceptionsAreMerged();
    void refusalsKeepWhatIsTyped_data();
    void refusalsKeepWhatIsTyped();
    void tabStockIsSetUpWhenItIsChosen();
    void cancelChangesNothing();
    void revertBringsTheDefaultsBack();
    void aDeviceWithoutChoicesSaysSo();
    void editingNeedsAPage();
    void onlyYesDeletes();

private:
    OSStatus runInserts(DialogMode mode, const DeviceSession &device)
    {
        return RunModalInsertsDialog(device.bundle, mode, &jobStock, &panel->settings.inserts,
                                     panel->settings.inserts.pageAtIndex(0), &outcome);
    }
    OSStatus runExceptions(DialogMode mode, const DeviceSession &device, std::int32_t edited = 0)
    {
        return RunModalExceptionsDialog(device.bundle, mode, &jobStock, device.settings(),
                                        &panel->settings.exceptions,
                                        panel->settings.exceptions.pageAtIndex(edited), &outcome);
    }
    void addException(const ExceptionPage &page)
    {
        const SpecialPage *const pages[] = {&page};
        panel->settings.exceptions.add(pages);
    }

    Stock jobStock;
    std::optional<_SpecialPagesContext> panel;
    DialogResult outcome = DialogResult::Cancel;
};

void TestSpecialPageDialogs::insertsAreAdded()
{
    const DeviceSession device("full");
    const DialogDriver driver({type("insertPages", "2,5"), type("insertQuantity", "3"),
                               chooseStock("insertStockButton", kCommandStockColor, kBlue),
                               press("okButton")});
    QCOMPARE(runInserts(kDialogModeAdd, device), noErr);
    QCOMPARE(outcome, DialogResult::OK);
    QCOMPARE(panel->settings.inserts.count(), 2);
    QCOMPARE(panel->settings.inserts.pageAtIndex(1)->startPage(), 5);
    QCOMPARE(panel->settings.inserts.pageAtIndex(1)->quantity(), 3);
    QCOMPARE(panel->settings.inserts.pageAtIndex(1)->stock().color(), kBlue);
    PerformUndo(&*panel);
    QCOMPARE(panel->settings.inserts.count(), 0);
}

void TestSpecialPageDialogs::pagesComeBackWithTheirPosition()
{
    const DeviceSession device("full");
    const DialogDriver driver(
        {type("insertPages", "2,5"), choose("insertPosition", kInsertBeforePage1),
         expect("insertPages", "text", ""), expect("insertPages", "enabled", "false"),
         choose("insertPosition", kInsertAfterPages), expect("insertPages", "text", "2,5"),
         choose("insertPosition", kInsertBeforePage1), press("okButton")});
    QCOMPARE(runInserts(kDialogModeAdd, device), noErr);
    QCOMPARE(panel->settings.inserts.count(), 1);
    QCOMPARE(panel->settings.inserts.pageAtIndex(0)->startPage(), 0);
}

void TestSpecialPageDialogs::exceptionsAreMerged()
{
    const DeviceSession device("full");
    addException(exceptionOf(1, 3));
    addException(exceptionOf(8, 10));
    const DialogDriver driver({expect("exceptionPages", "text", "8-10"),
                               type("exceptionPages", "2-4"), choose("exceptionSides", kTwoSided),
                               expect("exceptionLightness", "visible", "false"),
                               [] { expectDone(inspector::set(control("exceptionTabs"), 2)); },
                               choose("exceptionLightness", kLightest), press("okButton")});
    QCOMPARE(runExceptions(kDialogModeEdit, device, 1), noErr);
    QCOMPARE(outcome, DialogResult::OK);
    QCOMPARE(ranges(panel->settings.exceptions), QString("1-1 2-4"));
    QCOMPARE(panel->settings.exceptions.pageAtIndex(1)->plex(), kTwoSided);
    QCOMPARE(panel->settings.exceptions.pageAtIndex(1)->lightenDarken(), kLightest);
}

void TestSpecialPageDialogs::refusalsKeepWhatIsTyped_data()
{
    QTest::addColumn<bool>("isInsert");
    QTest::addColumn<QString>("pages");
    QTest::addColumn<QString>("header");
    QTest::addColumn<QString>("part");

    QTest::newRow("too high") << true << "100000"
                              << "The page number is too high"
                              << "5 digits";
    QTest::newRow("malformed") << true << "3--"
                               << "The pages cannot be read"
                               << "commas";
    QTest::newRow("backwards") << false << "7-3"
                               << "A page range is the wrong way round"
                               << "rather than";
    QTest::newRow("too low") << false << "0-3"
                             << "There is no page 0"
                             << "from 1";
    QTest::newRow("too many") << true << "0-"
                              << "There are too many inserts"
                              << "99,999";
}

void TestSpecialPageDialogs::refusalsKeepWhatIsTyped()
{
    QFETCH(bool, isInsert);
    QFETCH(QString, pages);
    QFETCH(QString, header);
    QFETCH(QString, part);

    const DeviceSession device("full");
    const char *field = isInsert ? "insertPages" : "exceptionPages";
    const QByteArray typed = pages.toUtf8();
    const DialogDriver driver({type(field, typed.constData()), press("okButton"),
                               answer(header, part), expectSelected(field, pages),
                               press("cancelButton")});
    QCOMPARE(isInsert ? runInserts(kDialogModeAdd, device) : runExceptions(kDialogModeAdd, device),
             noErr);
    QCOMPARE(panel->settings.inserts.count() + panel->settings.exceptions.count(), 0);
    QVERIFY(!panel->undo);
}

void TestSpecialPageDialogs::tabStockIsSetUpWhenItIsChosen()
{
    const DeviceSession device("full");
    const auto chooseType = [](std::int32_t value) {
        return chooseStock("exceptionStockButton", kCommandStockType, value);
    };
    const DialogDriver driver(
        {type("exceptionPages", "3"), expect("tabShiftButton", "enabled", "false"),
         chooseType(kStockTypeHeavyTab), expectWindow("tabStockSetup"),
         choose("tabTemplate", kTabShiftMillimetres), press("okButton"),
         expect("tabShift", "text", "12.7 mm (A4 template)"), chooseType(kStockTypeStandard),
         expect("tabShift", "text", "Only for tab stock"), chooseType(kStockTypeTab),
         press("cancelButton"), expect("tabShift", "text", "None"), press("tabShiftButton"),
         choose("tabTemplate", kTabShiftMillimetres), press("okButton"), press("okButton")});
    QCOMPARE(runExceptions(kDialogModeAdd, device), noErr);
    const ExceptionPage *page = panel->settings.exceptions.pageAtIndex(0);
    QVERIFY(page);
    QCOMPARE(page->stock().type(), kStockTypeTab);
    QCOMPARE(page->imageShift()->x1, kTabTemplateShift);
}

void TestSpecialPageDialogs::cancelChangesNothing()
{
    const DeviceSession device("full");
    addException(exceptionOf(1, 3));
    const DialogDriver driver(
        {type("exceptionPages", "9"), choose("exceptionSides", kTwoSided), press("cancelButton")});
    QCOMPARE(runExceptions(kDialogModeEdit, device), noErr);
    QCOMPARE(outcome, DialogResult::Cancel);
    QCOMPARE(ranges(panel->settings.exceptions), QString("1-3"));
    QVERIFY(!panel->undo);
}

void TestSpecialPageDialogs::revertBringsTheDefaultsBack()
{
    const DeviceSession device("full");
    ExceptionPage page = exceptionOf(1, 3);
    page.setPlex(kTwoSided);
    page.setLightenDarken(kDarkest);
    page.stock().setColor(kBlue);
    addException(page);
    const DialogDriver driver({press("revertButton"), expect("exceptionPages", "text", ""),
                               expect("exceptionSides", "index", "1"),
                               expect("exceptionStockSummary", "text", "Use job setting"),
                               type("exceptionPages", "4"), press("okButton")});
    QCOMPARE(runExceptions(kDialogModeEdit, device), noErr);
    QCOMPARE(ranges(panel->settings.exceptions), QString("4-4"));
    ExceptionPage usual = exceptionEdit(nullptr).page;
    usual.setStartPage(4);
    usual.setEndPage(4);
    QCOMPARE(panel->settings.exceptions.pageAtIndex(0)->asTicket(), usual.asTicket());
}

void TestSpecialPageDialogs::aDeviceWithoutChoicesSaysSo()
{
    const DeviceSession device("bare");
    const DialogDriver driver(
        {expect("exceptionSides", "enabled", "false"),
         expect("exceptionSidesHint", "text", "This device does not offer it."),
         [] { expectDone(inspector::set(control("exceptionTabs"), 2)); },
         expect("exceptionLightness", "enabled", "true"),
         expect("exceptionLightnessHint", "text", "“Use job setting” means: Normal."),
         press("cancelButton")});
    QCOMPARE(runExceptions(kDialogModeAdd, device), noErr);
}

void TestSpecialPageDialogs::editingNeedsAPage()
{
    const DeviceSession device("full");
    QCOMPARE(runInserts(kDialogModeEdit, device), paramErr);
    QCOMPARE(runExceptions(kDialogModeEdit, device), paramErr);
}

void TestSpecialPageDialogs::onlyYesDeletes()
{
    const DeviceSession device("full");
    for (const int button : {1, 2}) {
        const DialogDriver driver({[=] { answerNotice(button); }});
        QCOMPARE(mayDeleteSpecialPages(device.bundle, "Delete All Special Pages"), button == 2);
    }
}

QTEST_MAIN(TestSpecialPageDialogs)
#include "test_special_page_dialogs.moc"
