#include "driven_dialog.h"
#include "standard_error.h"
#include "test_panels.h"

#include "bundle.h"
#include "notice.h"
#include "panel_table.h"
#include "pde_session.h"
#include "plugin_factory.h"
#include "popup_button.h"
#include "sample_ppds.h"
#include "shell_panel.h"
#include "table.h"

#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QToolButton>

using namespace kelvo;

namespace {

const QString kDevice = samplePpd("full");

Bundle *bundle = nullptr;
TestPanels *panels = nullptr;
JobTypeState jobType;
int faxSetUps = 0;

QStringList takeCalls()
{
    return std::exchange(panels->calls, {});
}

} // namespace

class TestShell : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void loaderSkipsWhatDoesNotLoad();
    void dialogGoesThroughItsLife();
    void tabKeepsItsNumberWhereOthersAreMissing();
    void leftPanelWritesAndTheOthersRead();
    void tabsWrapByButtonAndCommand();
    void shownPanelHasTheLastWord();
    void focusFollowsTheTab();
    void summaryIsEmptyThoughPanelsWriteOne();
    void dialogMayEndBeforeItOpens();
    void printIsHeldBack_data();
    void printIsHeldBack();
    void faxSetUpOpensInsteadOfPrinting();
    void secondDialogBeginsWithTheFirstTab();
    void badArgumentsAreRefused();
};

void TestShell::initTestCase()
{
    Result<Bundle *> opened = Bundle::open(QStringLiteral(TEST_BUNDLE));
    QVERIFY2(opened, "the test bundle");
    bundle = opened.value();
    const auto function = reinterpret_cast<TestPanelsFunction>(bundle->findFunction("testPanels"));
    QVERIFY2(function, qPrintable(bundle->loadError()));
    panels = function();
}

void TestShell::init()
{
    *panels = {};
    jobType = {};
    faxSetUps = 0;
    lastTabIndex = 0;
}

void TestShell::cleanup()
{
    setJobTypeProvider({});
    QCOMPARE(panels->livingContexts, 0);
}

void TestShell::loaderSkipsWhatDoesNotLoad()
{
    panels->failing = QStringLiteral("ImageOptions");
    const char *const getters[] = {"GetNoSuchPanelInterface",     "GetPaperOutputPanelInterface",
                                   "GetNothingPanelInterface",    "GetImageOptionsPanelInterface",
                                   "GetIncompletePanelInterface", "GetRefusingPanelInterface",
                                   "GetAdvancedPanelInterface",   nullptr};
    std::vector<PanelRecord> loaded;
    const StandardError errors;

    LoadBuiltInPanels(bundle, loaded, getters);

    QCOMPARE(loaded.size(), 2U);
    QCOMPARE(loaded[0].title, QStringLiteral("The PaperOutput"));
    QCOMPARE(loaded[0].tabIndex, 2);
    QCOMPARE(loaded[1].title, QStringLiteral("The Advanced"));
    QCOMPARE(loaded[1].tabIndex, 7);
    const QStringList lines =
        QString::fromUtf8(errors.text()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 4); // nothing of what the module has never had
    const char *const named[] = {
        "GetNothingPanelInterface: it gave no interface (0)",
        "GetImageOptionsPanelInterface: its panel's Prologue failed (-9530)",
        "GetIncompletePanelInterface: its interface lacks an operation",
        "GetRefusingPanelInterface: it gave no interface (-50)"};
    for (int i = 0; i < 4; ++i)
        QVERIFY2(lines[i].contains(QLatin1String(named[i])), qPrintable(lines[i]));
    for (const PanelRecord &panel : loaded)
        panel.operations.Terminate(panel.context, noErr);
}

void TestShell::dialogGoesThroughItsLife()
{
    DrivenDialog dialog(KelvoPDEPluginFactory, kDevice);
    QVERIFY(dialog.begin());

    QCOMPARE(dialog.maxH, 540U);
    QCOMPARE(dialog.maxV, 491U);
    QCOMPARE(
        takeCalls(),
        QStringList(
            {"PaperOutput prologue",   "ImageOptions prologue",   "BookletWatermark prologue",
             "Advanced prologue", // all of them first
             "PaperOutput initialize", "ImageOptions initialize", "BookletWatermark initialize",
             "Advanced initialize", // then Sync
             "PaperOutput read",       "ImageOptions read",       "BookletWatermark read",
             "Advanced read", // then Open
             "PaperOutput open",       "ImageOptions open",       "BookletWatermark open",
             "Advanced open", // and the first tab is selected
             "PaperOutput read",       "ImageOptions read",       "BookletWatermark read",
             "Advanced read"}));
    for (int tab = 1; tab <= 4; ++tab) {
        auto *pane = dialog.find<QWidget>(kUserPaneSignature, tab);
        QVERIFY(pane);
        QCOMPARE(pane->isVisible(), tab == 1);
        QCOMPARE(pane->isEnabled(), tab == 1);
    }
    const auto *carried = dialog.find<PopupButton>(kShellSignature, 16);
    QCOMPARE(carried->menu().items.size(), 4U);
    QCOMPARE(carried->maximum(), 4);
    const std::optional<QVariant> property =
        controlProperty(dialog.print, fourCharCode("KPDE"), fourCharCode("MBND"));
    QVERIFY(property);
    QCOMPARE(property->value<void *>(), static_cast<void *>(bundle));

    QCOMPARE(dialog.close(), noErr);
    sendCommand(&dialog.window, kCommandNextTab);
    QCOMPARE(takeCalls(),
             QStringList({"PaperOutput close", "ImageOptions close", "BookletWatermark close",
                          "Advanced close"}));
    QCOMPARE(dialog.open(), noErr);
    QCOMPARE(takeCalls().mid(0, 5),
             QStringList({"PaperOutput open", "ImageOptions open", "BookletWatermark open",
                          "Advanced open", "PaperOutput write"}));

    dialog.terminate();
    QCOMPARE(takeCalls(),
             QStringList({"PaperOutput terminate", "ImageOptions terminate",
                          "BookletWatermark terminate", "Advanced terminate"}));
    QVERIFY(!dialog.find<QWidget>(kShellSignature, 10));
    QVERIFY(!dialog.find<QWidget>(kUserPaneSignature, 1));
    QCOMPARE(PDESync(&dialog.session, kSyncRead), kPMInvalidParameter);
}

void TestShell::tabKeepsItsNumberWhereOthersAreMissing()
{
    panels->failing = QStringLiteral("PaperOutput");
    const StandardError errors;
    DrivenDialog dialog(KelvoPDEPluginFactory, kDevice);
    QVERIFY(dialog.begin());

    auto *selector = dialog.find<PopupButton>(kShellSignature, 16);
    QCOMPARE(selector->menu().items.size(), 3U);
    QCOMPARE(selector->menu().items[2].reference, 4);
    QCOMPARE(selector->chosenReference(), 2);
    QCOMPARE(gCurrentPanel, 2);

    QVERIFY(selector->choose(3));
    QCOMPARE(lastTabIndex, 4);
    sendCommand(&dialog.window, kCommandNextTab);
    QCOMPARE(lastTabIndex, 2);
    // Without the panel that knows the job type, nothing is held back.
    setJobTypeProvider({.state = [](PMPDEContext) { return JobTypeState{6, false, false}; }});
    QCOMPARE(sendEvent({EventKind::ControlHit, dialog.print, {}}), eventNotHandledErr);
}

void TestShell::leftPanelWritesAndTheOthersRead()
{
    DrivenDialog dialog(KelvoPDEPluginFactory, kDevice);
    QVERIFY(dialog.begin());
    takeCalls();

    auto *selector = dialog.find<PopupButton>(kShellSignature, 16);
    QVERIFY(selector->choose(3));

    QCOMPARE(takeCalls(),
             QStringList({"PaperOutput write", "ImageOptions read", "BookletWatermark read",
                          "Advanced read"}));
    QVERIFY(!dialog.find<QWidget>(kUserPaneSignature, 1)->isVisible());
    QVERIFY(dialog.find<QWidget>(kUserPaneSignature, 3)->isVisible());
    QVERIFY(dialog.find<QWidget>(kUserPaneSignature, 3)->isEnabled());

    // The tab that is shown already is not left and entered again.
    QVERIFY(selector->choose(3));
    QCOMPARE(takeCalls(), QStringList());
}

void TestShell::tabsWrapByButtonAndCommand()
{
    DrivenDialog dialog(KelvoPDEPluginFactory, kDevice);
    QVERIFY(dialog.begin());
    const auto *selector = dialog.find<PopupButton>(kShellSignature, 16);

    QCOMPARE(sendCommand(&dialog.window, kCommandPreviousTab), eventNotHandledErr);
    QCOMPARE(gCurrentPanel, 4);
    QCOMPARE(selector->value(), 4);
    QCOMPARE(sendCommand(&dialog.window, kCommandNextTab), eventNotHandledErr);
    QCOMPARE(gCurrentPanel, 1);

    auto *next = dialog.find<QToolButton>(kShellSignature, 1967);
    auto *previous = dialog.find<QToolButton>(kShellSignature, 1966);
    previous->click();
    QCOMPARE(gCurrentPanel, 4);
    next->click();
    next->click();
    QCOMPARE(gCurrentPanel, 2);
    QCOMPARE(selector->value(), 2);
    QCOMPARE(sendCommand(&dialog.window, fourCharCode("none")), eventNotHandledErr);
    QCOMPARE(sendEvent({EventKind::ControlHit, next, {kShellSignature, 1967}}), noErr);
}

void TestShell::shownPanelHasTheLastWord()
{
    DrivenDialog dialog(KelvoPDEPluginFactory, kDevice);
    QVERIFY(dialog.begin());
    sendCommand(&dialog.window, kCommandNextTab);
    takeCalls();

    QCOMPARE(dialog.sync(kSyncWrite), noErr);
    QCOMPARE(takeCalls(),
             QStringList({"PaperOutput write", "BookletWatermark write", "Advanced write",
                          "ImageOptions write"}));
    QVERIFY(PMTicketGetCFDictionary(dialog.session.printSettingsTicket(),
                                    QStringLiteral("com.kelvo.print.KPIFOptions")));

    QCOMPARE(PDESync(nullptr, kSyncRead), noErr);
    QCOMPARE(takeCalls(),
             QStringList({"PaperOutput read", "BookletWatermark read", "Advanced read",
                          "ImageOptions read"}));
}

void TestShell::focusFollowsTheTab()
{
    DrivenDialog dialog(KelvoPDEPluginFactory, kDevice);
    QVERIFY(dialog.begin());
    dialog.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog.window));
    auto *first = dialog.window.findChild<QLineEdit *>(QStringLiteral("PaperOutputField"));
    auto *second = dialog.window.findChild<QLineEdit *>(QStringLiteral("ImageOptionsField"));
    first->setFocus();

    sendCommand(&dialog.window, kCommandNextTab);
    QCOMPARE(dialog.window.focusWidget(), second);

    // Who is elsewhere stays there.
    dialog.cancel->setFocus();
    sendCommand(&dialog.window, kCommandNextTab);
    QCOMPARE(dialog.window.focusWidget(), dialog.cancel);
}

void TestShell::summaryIsEmptyThoughPanelsWriteOne()
{
    const SummaryArray leftOver(QStringList{QStringLiteral("left over")});
    for (const char *failing : {"", "Advanced"}) { // the one that empties it
        panels->failing = QLatin1String(failing);
        const StandardError errors;
        DrivenDialog dialog(KelvoPDEPluginFactory, kDevice);
        QVERIFY(dialog.begin());
        SummaryArray titles = leftOver, texts = leftOver;
        QCOMPARE(dialog.interface->table->GetSummaryText(dialog.context, &titles, &texts), noErr);
        const bool isEmptied = !*failing;
        const QStringList left{"PaperOutput", "ImageOptions", "BookletWatermark"};
        QCOMPARE(titles, isEmptied ? SummaryArray() : SummaryArray(left));
        QCOMPARE(texts, isEmptied ? SummaryArray() : SummaryArray(QStringList(3, "- text")));
    }
}

void TestShell::dialogMayEndBeforeItOpens()
{
    DrivenDialog dialog(KelvoPDEPluginFactory, kDevice);
    QCOMPARE(dialog.prologue(), noErr);
    QCOMPARE(dialog.initialize(), noErr);
    QVERIFY(dialog.find<QWidget>(kUserPaneSignature, 1));

    dialog.terminate();

    QVERIFY(!dialog.find<QWidget>(kUserPaneSignature, 1));
}

void TestShell::printIsHeldBack_data()
{
    // notice: a part of its message; empty: the job goes out
    const Table<int, bool, bool, QString> row{"type", "passcode", "recipients", "notice"};

    row("normal", 1, false, false, "");
    row("secure without passcode", 6, false, false, "1 to 12 digits");
    row("secure with passcode", 6, true, false, "");
    row("fax without recipient", 5, false, false, "at least one recipient");
    row("fax with recipient", 5, false, true, "");
}

void TestShell::printIsHeldBack()
{
    QFETCH(int, type);
    QFETCH(bool, passcode);
    QFETCH(bool, recipients);
    QFETCH(QString, notice);
    DrivenDialog dialog(KelvoPDEPluginFactory, kDevice);
    QVERIFY(dialog.begin());
    jobType = {type, passcode, recipients};
    setJobTypeProvider({.state = [](PMPDEContext) { return jobType; }});
    QString shown;
    QTimer::singleShot(0, this, [&shown] {
        shown = frontNotice().message;
        answerNotice(1);
    });

    const OSStatus status = sendEvent({EventKind::ControlHit, dialog.print, {}});

    QCOMPARE(status, notice.isEmpty() ? eventNotHandledErr : noErr);
    QCoreApplication::processEvents();
    QCOMPARE(shown.isEmpty(), notice.isEmpty());
    QVERIFY2(shown.contains(notice), qPrintable(shown));
    QCOMPARE(sendEvent({EventKind::ControlHit, dialog.cancel, {}}), eventNotHandledErr);
}

void TestShell::faxSetUpOpensInsteadOfPrinting()
{
    DrivenDialog dialog(KelvoPDEPluginFactory, kDevice);
    QVERIFY(dialog.begin());
    setJobTypeProvider({
        .state =
            [](PMPDEContext) {
                return JobTypeState{5, false, false};
            },
        .runFaxSetup = [](PMPDEContext context) { faxSetUps += context ? 1 : 0; },
    });

    QCOMPARE(sendEvent({EventKind::ControlHit, dialog.print, {}}), noErr);

    QCOMPARE(faxSetUps, 1);
}

void TestShell::secondDialogBeginsWithTheFirstTab()
{
    {
        DrivenDialog first(KelvoPDEPluginFactory, kDevice);
        QVERIFY(first.begin());
        sendCommand(&first.window, kCommandPreviousTab);
    }
    QCOMPARE(lastTabIndex, 4);
    takeCalls();

    DrivenDialog second(KelvoPDEPluginFactory, kDevice);
    QVERIFY(second.begin());

    QCOMPARE(gCurrentPanel, 1);
    QCOMPARE(lastTabIndex, 1);
    // The tab of the dialog before counts as the one left.
    QCOMPARE(takeCalls().mid(16),
             QStringList({"Advanced write", "PaperOutput read", "ImageOptions read",
                          "BookletWatermark read"}));
}

void TestShell::badArgumentsAreRefused()
{
    const PanelOperations shell = shellOperations();
    PrintSession session;
    SummaryArray none;
    QCOMPARE(shell.Prologue(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr),
             kPMInvalidPDEContext);
    QCOMPARE(shell.Initialize(nullptr, nullptr, nullptr, nullptr, &session), kPMInvalidPDEContext);
    QCOMPARE(shell.Sync(nullptr, &session, kSyncRead), kPMInvalidParameter);
    QCOMPARE(shell.GetSummaryText(nullptr, &none, &none), kPMInvalidPDEContext);
    QCOMPARE(shell.Open(nullptr), kPMInvalidPDEContext);
    QCOMPARE(shell.Close(nullptr), kPMInvalidPDEContext);
    QCOMPARE(shell.Terminate(nullptr, noErr), kPMInvalidPDEContext);

    DrivenDialog dialog(KelvoPDEPluginFactory, kDevice);
    QCOMPARE(dialog.prologue(), noErr);
    QCOMPARE(shell.Initialize(dialog.context, nullptr, nullptr, dialog.pane, nullptr),
             kPMInvalidPDEContext);
    QCOMPARE(shell.Sync(dialog.context, nullptr, kSyncRead), kPMInvalidParameter);
    QCOMPARE(shell.Open(dialog.context), kPMInvalidPDEContext); // not initialized
}

QTEST_MAIN(TestShell)
#include "test_shell.moc"
