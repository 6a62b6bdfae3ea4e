#include "test_panels.h"

#include "background_work.h"
#include "bundle.h"
#include "document_chooser.h"
#include "file_store.h"
#include "files.h"
#include "inspector.h"
#include "modal_dialog.h"
#include "notice.h"
#include "notification_service.h"
#include "popup_button.h"
#include "preset_menu.h"
#include "print_dialog.h"
#include "private_cups.h"
#include "sample_documents.h"
#include "sample_ppds.h"
#include "spin_field.h"
#include "table.h"
#include "unreliable_server.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>

#include <algorithm>

using namespace kelvo;

class TestPrintDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void theChosenDocumentIsOpened();
    void opensOnTheDevicesPanels();
    void thePrintButtonIsAskedFirst();
    void whatWasTypedLastIsPrinted();
    void wrongPagesAreNotPrinted();
    void conflictsAreShownAndFixed();
    void severalCautionsStandInARow();
    void whatTheBundleDrawsIsSeenOverPages();
    void givingUpIsCancelOrTheFailure();
    void aChangedPresetHasAStar();
    void namesThatNoPresetCanHave();

    void theWindowDoesNotWaitForAServer();
    void thePanelStaysWhenThePrinterChanges();
    void theListOfPrintersIsAskedAnew();
    void aPrinterInTroubleIsToldAndWaitedFor();
    void theDesktopTellsThatAJobIsOut();
    void withoutADesktopTheWindowTellsOfTheJob();
    void whatWasPrintedWithComesBack();
    void aDeadDesktopKeepsNobody();

    void theFirstKeyIsHeard();
    void returnPrintsUnlessAButtonHasTheFocus();
    void keysReachPanelsAndRegions();
    void everyStopIsReachedOnceAndHasAName();
    void everythingFits_data();
    void everythingFits();

private:
    DialogOptions options(const QString &device = QStringLiteral("full"));
    DialogOptions queueOptions();
    QByteArray written(const QString &name) const;

    Bundle *m_bundle = nullptr; // the program's own panels
    Bundle *m_testBundle = nullptr;
    TestPanels *m_panels = nullptr;
    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

QString shared(const QString &name)
{
    return QStringLiteral(KELVO_BUILD_DIR "/share/kelvo-print/") + name;
}

// A dialog that is up and idle.
struct Shown
{
    explicit Shown(DialogOptions options, bool driven = true)
        : dialog(std::move(options))
    {
        dialog.setDriven(driven);
        dialog.start();
        dialog.show();
    }

    bool waitUntilIdle()
    {
        return QTest::qWaitFor([this] { return dialog.isIdle(); }, 15000);
    }
    bool waitUntilEnded()
    {
        // A print that is refused ends nothing.
        const auto isOver = [this] {
            return dialog.finished() || !dialog.lastPrintProblem().isEmpty();
        };
        const bool isInTime = QTest::qWaitFor(isOver, 15000);
        if (!dialog.finished())
            qWarning("not ended: %s",
                     isInTime ? qPrintable(dialog.lastPrintProblem()) : "too slow");
        return dialog.finished().has_value();
    }
    template <typename T>
    T *find(const char *name)
    {
        return dialog.findChild<T *>(QString::fromLatin1(name));
    }
    QString text(const char *name) { return find<QLabel>(name)->text(); }
    bool isShown(const char *name) { return find<QWidget>(name)->isVisible(); }
    bool choose(const char *name, const QString &key)
    {
        inspector::ItemName item;
        item.by = inspector::ItemName::By::Key;
        item.text = key;
        return !inspector::choose(find<QWidget>(name), item);
    }
    QString choice(const char *option)
    {
        return dialog.sessionForReading().printSettings().ppdChoices.value(
            QString::fromLatin1(option));
    }

    PrintDialog dialog;
    QSignalSpy ended{&dialog, &PrintDialog::ended};
};

// Answers the notice that comes up next with its button `button`, and keeps its text.
struct NoticeAnswer : QTimer
{
    explicit NoticeAnswer(int button)
    {
        connect(this, &QTimer::timeout, this, [this, button] {
            const ShownNotice notice = frontNotice();
            if (!notice.isShown())
                return;
            text = notice.header + u'\n' + notice.message;
            stop();
            answerNotice(button);
        });
        start(5);
    }
    QString text;
};

QPalette darkPalette()
{
    QPalette dark(QColor(53, 53, 53), QColor(42, 42, 42));
    dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    return dark;
}

} // namespace

void TestPrintDialog::initTestCase()
{
    const auto bundle = Bundle::open(QStringLiteral(KELVO_BUILD_DIR "/lib/KelvoPDE.pde"));
    const auto testBundle = Bundle::open(QStringLiteral(TEST_BUNDLE));
    QVERIFY(bundle && testBundle);
    m_bundle = bundle.value();
    m_testBundle = testBundle.value();
    m_panels = reinterpret_cast<TestPanelsFunction>(m_testBundle->findFunction("testPanels"))();
}

void TestPrintDialog::init()
{
    *m_panels = {};
    m_folder = std::make_unique<QTemporaryDir>();
}

// A device without a queue that prints into a folder.
DialogOptions TestPrintDialog::options(const QString &device)
{
    DialogOptions options;
    options.session.printer.device = PpdFile::open(samplePpd(device)).value();
    options.session.bundle = m_testBundle;
    options.session.documents.sources = {
        DocumentSource{shared(QStringLiteral("demo/document.pdf")), {}}};
    options.plan.elsewhere = folderDestination(m_folder->filePath(QStringLiteral("job")));
    return options;
}

// The queue "Hall-3", or whichever is named; to be printed to.
DialogOptions TestPrintDialog::queueOptions()
{
    DialogOptions queue = options();
    queue.session.printer = {.name = QStringLiteral("Hall-3")};
    queue.plan.elsewhere.reset();
    return queue;
}

QByteArray TestPrintDialog::written(const QString &name) const
{
    return bytesOf(m_folder->filePath(QStringLiteral("job/") + name));
}

// ---- life

void TestPrintDialog::theChosenDocumentIsOpened()
{
    const QStringList printed{"a.pdf", "b.PS", "c.txt", "d.jpeg", "e.svg"};
    const QByteArray document = test::pdfWithPages({"", "", ""});
    for (const QString &name : printed + QStringList{"f.odt"})
        putFile(m_folder->filePath(name), document);
    const auto chooser = documentChooser(m_folder->path());
    chooser->show();
    const auto *files = chooser->findChild<QListView *>("listView");
    const auto shownNames = [files] {
        QStringList names;
        const QModelIndex folder = files->rootIndex();
        for (int row = 0; row < files->model()->rowCount(folder); ++row)
            names << files->model()->index(row, 0, folder).data().toString();
        return names;
    };
    QTRY_COMPARE(shownNames(), printed);
    chooser->selectNameFilter(chooser->nameFilters().last());
    QTRY_COMPARE(shownNames(), printed + QStringList{"f.odt"});

    auto *name = chooser->findChild<QLineEdit *>("fileNameEdit");
    QTest::keyClicks(name, "a.pdf");
    QTest::keyClick(name, Qt::Key_Return);
    QCOMPARE(chooser->result(), int(QDialog::Accepted));

    auto begin = options();
    begin.session.documents.sources.front().path = chooser->selectedFiles().value(0);
    Shown shown(begin);
    QVERIFY(shown.waitUntilIdle());
    QVERIFY2(shown.text("summary").startsWith("3 pages"), qPrintable(shown.text("summary")));
}

void TestPrintDialog::opensOnTheDevicesPanels()
{
    auto begin = options();
    begin.session.bundle = m_bundle;
    const auto ppd = begin.session.printer.device;
    Shown shown(begin);

    QVERIFY(shown.waitUntilIdle());

    QVERIFY(!shown.isShown("waitingHeader"));
    QVERIFY(findControl(&shown.dialog, {kShellSignature, 16}));
    QCOMPARE(shown.find<PopupButton>("printer")->currentText(), ppd->modelName());
    QCOMPARE(shown.find<PopupButton>("paper")->menu().items.size(), ppd->pageSizes().size());
    QVERIFY(shown.text("summary").startsWith("6 pages"));
    QVERIFY(shown.find<QPushButton>("print")->isEnabled());
    QVERIFY(!shown.isShown("conflictBar"));
    QVERIFY(shown.dialog.showPanel("Advanced"));
    QVERIFY(!shown.dialog.showPanel("Advancd"));
    QVERIFY(!shown.dialog.showTab(99));

    // Help is about the panel that is shown.
    const std::pair<QString, QString> panels[] = {{"SpecialPages", "The Special Pages panel"},
                                                  {"ImageOptions", "The Image Options panel"},
                                                  {"Advanced", "The Advanced panel"}};
    for (const auto &[panel, title] : panels) {
        QVERIFY(shown.dialog.showPanel(panel));
        shown.find<QPushButton>("help")->click();
        const QWidgetList windows = QApplication::topLevelWidgets();
        QVERIFY2(std::ranges::find(windows, title, &QWidget::windowTitle) != windows.end(),
                 qPrintable(title));
    }
}

void TestPrintDialog::thePrintButtonIsAskedFirst()
{
    Shown shown(options());
    QVERIFY(shown.waitUntilIdle());
    m_panels->takesPrint = true;
    shown.dialog.pressPrint();
    QVERIFY(!shown.dialog.isPrinting());
    QVERIFY(shown.dialog.lastPrintProblem().isEmpty());

    m_panels->takesPrint = false;
    m_panels->calls.clear();
    shown.dialog.pressPrint();
    // Once more while it is under way: it goes out once.
    QVERIFY(shown.dialog.isPrinting());
    shown.dialog.pressPrint();
    QVERIFY(shown.waitUntilEnded());
    QTest::qWait(50);

    QCOMPARE(shown.ended.size(), 1);
    QCOMPARE(m_panels->calls.mid(0, 3),
             (QStringList{"Second write", "Third write", "PDEShell write"}));
    QCOMPARE(m_panels->livingContexts, 0);
    QVERIFY(!shown.dialog.isVisible());
}

void TestPrintDialog::whatWasTypedLastIsPrinted()
{
    Shown shown(options());
    QVERIFY(shown.waitUntilIdle());
    auto *copies = shown.find<SpinField>("copies");
    copies->setFocus();
    QVERIFY(copies->typeText("7"));
    // The settings are looked at between the typing and the press.
    QVERIFY(shown.waitUntilIdle());
    shown.dialog.pressPrint();
    QVERIFY(shown.waitUntilEnded());

    QVERIFY2(written("options").contains("copies=7\n"), written("options").constData());
}

void TestPrintDialog::wrongPagesAreNotPrinted()
{
    Shown shown(options());
    QVERIFY(shown.waitUntilIdle());
    QVERIFY(shown.choose("pagesChoice", "range"));
    // What is missing is no mistake yet, and no pages to print either.
    for (const auto &[pages, says] : {std::pair{"", "Type the pages"}, {"7-", "Pages 1 to 6"}}) {
        QVERIFY(!inspector::type(shown.find<QWidget>("pages"), pages));
        QVERIFY(shown.waitUntilIdle());
        QCOMPARE(shown.isShown("pagesProblem"), *pages != 0);
        QVERIFY2(shown.text("summary").contains(says, Qt::CaseInsensitive),
                 qPrintable(shown.text("summary")));
        shown.find<QWidget>("copies")->setFocus();

        shown.dialog.pressPrint();

        QVERIFY(!shown.dialog.isPrinting());
        QVERIFY(shown.dialog.lastPrintProblem().startsWith("Pages:"));
        QCOMPARE(shown.dialog.lastPrintStatus(), ExitStatus::WrongUsage);
        QCOMPARE(shown.find<QLineEdit>("pages")->text(), pages);
        QCOMPARE(shown.dialog.focusWidget(), shown.find<QWidget>("pages"));
    }
    QVERIFY(!inspector::type(shown.find<QWidget>("pages"), "2-3"));
    QVERIFY(shown.waitUntilIdle());
    QVERIFY(!shown.isShown("pagesProblem"));
    QVERIFY(shown.text("summary").startsWith("2 pages"));
}

void TestPrintDialog::conflictsAreShownAndFixed()
{
    auto begin = options();
    begin.session.job.options = {{"StapleLocation", "SinglePortrait"},
                                 {"MediaType", "Transparency"}};
    {
        Shown shown(begin);
        QVERIFY(shown.waitUntilIdle());
        QVERIFY(shown.find<QLabel>("conflictText")->accessibleName().contains("Transparency"));
        NoticeAnswer details(1);
        shown.find<QPushButton>("conflictDetails")->click();
        QVERIFY2(details.text.contains("Set “Stapling” to “No staple”"), qPrintable(details.text));
        m_panels->calls.clear();

        shown.find<QPushButton>("fix")->click();

        QVERIFY(!shown.isShown("conflictBar"));
        QCOMPARE(shown.choice("StapleLocation"), "None");
        // All panels write before it is looked at, and read what was mended.
        QCOMPARE(m_panels->calls.mid(0, 6),
                 (QStringList{"Second write", "Third write", "PDEShell write", "Second read",
                              "Third read", "PDEShell read"}));
    }
    Shown shown(begin, false);
    QVERIFY(shown.waitUntilIdle());
    NoticeAnswer cancel(2);
    shown.dialog.pressPrint();
    QVERIFY(cancel.text.contains("Transparency") && !shown.dialog.isPrinting());
    NoticeAnswer fix(1);
    shown.dialog.pressPrint();
    QVERIFY(shown.waitUntilEnded());
}

void TestPrintDialog::severalCautionsStandInARow()
{
    auto begin = options("bare");
    begin.session.job.options = {{"media", "A5"}};
    begin.session.job.ticketIn = TicketFile();
    begin.session.job.ticketIn->printSettings.ppdChoices = {{"KVPunch", "2HolePunch"}};
    Shown shown(begin);
    QVERIFY(shown.waitUntilIdle());
    QVERIFY2(shown.text("conflictText").startsWith("Pages 1–6 are larger"),
             qPrintable(shown.text("conflictText")));
    QVERIFY(shown.text("cautionText2").contains("2HolePunch"));
    QVERIFY(shown.dialog.jobInWords().startsWith("Cautions:\n  Pages 1–6 are larger"));

    shown.find<QPushButton>("hideMissing")->click();
    QVERIFY(shown.isShown("conflictText") && !shown.isShown("cautionText2"));
    QVERIFY(shown.choose("pagesChoice", "range"));
    QVERIFY(!inspector::type(shown.find<QWidget>("pages"), "2,4-6"));
    QVERIFY(shown.waitUntilIdle());
    QVERIFY(shown.text("conflictText").startsWith("Pages 2 and 4–6 are larger"));
    NoticeAnswer details(1);
    shown.find<QPushButton>("conflictDetails")->click();
    QVERIFY(details.text.contains("Pages 2 and 4–6") && details.text.contains("2HolePunch"));
}

// As after a panel's dialog that changed what it keeps for the user, and no ticket.
void TestPrintDialog::whatTheBundleDrawsIsSeenOverPages()
{
    m_panels->overlayStore = m_folder->filePath("store");
    m_panels->overlayPdf = test::pdfWithPages({test::filled("0 0 1")});
    Shown shown(options());
    QVERIFY(shown.waitUntilIdle());
    const auto colour = [&shown] {
        const QImage image = shown.find<QWidget>("previewSheet")->grab().toImage();
        return image.pixelColor(image.rect().center());
    };
    QTRY_VERIFY(!shown.dialog.isDrawing(&shown.dialog));
    QVERIFY(colour() != QColor(Qt::blue));

    const auto changeStore = [&](const QByteArray &name) {
        return replaceFile(m_panels->overlayStore, name)
            && sendEvent(
                   {.kind = EventKind::ControlHit, .source = shown.find<QLineEdit>("SecondField")})
            == eventNotHandledErr;
    };
    QVERIFY(changeStore("Found"));
    QTRY_COMPARE(colour(), QColor(Qt::blue));
    QVERIFY(changeStore("Lost"));
    QTRY_VERIFY(shown.text("previewPage").endsWith("“Lost” cannot be shown"));
    QVERIFY(colour() != QColor(Qt::blue));
}

void TestPrintDialog::givingUpIsCancelOrTheFailure()
{
    {
        Shown shown(options());
        shown.dialog.close(); // while the document is still being opened
        QCOMPARE(shown.dialog.finished(), ExitStatus::Cancelled);
    }
    auto nowhere = options();
    nowhere.plan.elsewhere.reset();
    Shown shown(nowhere, false);
    QVERIFY(shown.waitUntilIdle());
    NoticeAnswer notice(1);
    shown.dialog.pressPrint();
    QVERIFY(notice.text.contains("--to"));
    QVERIFY(shown.dialog.isVisible());
    QTest::keyClick(&shown.dialog, Qt::Key_Escape);
    QCOMPARE(shown.dialog.finished(), ExitStatus::NoDestination);
    QCOMPARE(shown.ended.size(), 1);
}

void TestPrintDialog::aChangedPresetHasAStar()
{
    Shown shown(options());
    QVERIFY(shown.waitUntilIdle());
    auto *preset = shown.find<PopupButton>("preset");
    QCOMPARE(preset->currentText(), "Default settings");
    QVERIFY(!inspector::set(shown.find<QWidget>("copies"), 4));
    QVERIFY(shown.waitUntilIdle());
    QCOMPARE(preset->currentText(), "Default settings*");

    // Save as: a dialog with a name.
    QTimer::singleShot(50, [] {
        QWidget *front = frontWindow();
        auto *name = front->findChild<QLineEdit *>("presetName");
        auto *keeps = front->findChild<QAbstractButton *>("keepPasscodes");
        if (!name || !keeps || keeps->isChecked())
            return;
        inspector::type(name, QStringLiteral("Four & more"));
        inspector::click(front->findChild<QWidget *>("ok"));
    });
    inspector::chooseCommand(shown.find<QWidget>("presetMenu"), fourCharCode("PsSA"), {});
    QCOMPARE(preset->currentText(), "Four & more");
    QVERIFY(preset->choose(1));
    QCOMPARE(shown.find<SpinField>("copies")->value(), 1);
    QVERIFY(shown.choose("preset", "Four & more"));
    QCOMPARE(shown.find<SpinField>("copies")->value(), 4);
    NoticeAnswer remove(1);
    inspector::chooseCommand(shown.find<QWidget>("presetMenu"), fourCharCode("PsDl"), {});
    QVERIFY(PresetStore().presets().empty());
    QCOMPARE(preset->currentText(), "Default settings*");
    QCOMPARE(shown.find<SpinField>("copies")->value(), 4); // nothing was lost here
}

void TestPrintDialog::namesThatNoPresetCanHave()
{
    for (const char *name : {"Default settings", " default  settings", "Default settings*"})
        QVERIFY2(presetNameProblem(name).contains("how the printer comes"), name);
    QVERIFY(presetNameProblem(" ").contains("Type a name"));
    QCOMPARE(presetNameProblem("Default settings 2"), QString());
}

// ---- print servers

void TestPrintDialog::theWindowDoesNotWaitForAServer()
{
    const UnreliableServer silent(UnreliableServer::Trouble::NeverAnswers);
    qputenv("CUPS_SERVER", silent.address().toUtf8());
    auto begin = queueOptions();
    begin.session.printer.timeoutMs = 1000;
    QElapsedTimer clock;
    clock.start();
    {
        Shown shown(begin);
        QVERIFY(QTest::qWaitForWindowExposed(&shown.dialog));
        QVERIFY2(clock.elapsed() < 900, qPrintable(QString::number(clock.elapsed())));
        QVERIFY(shown.isShown("waitingHeader"));
        QVERIFY(!shown.find<QPushButton>("print")->isEnabled());
        QVERIFY(!shown.find<QWidget>("copies")->isEnabled());
        shown.find<QPushButton>("cancel")->click();
        QCOMPARE(shown.dialog.finished(), ExitStatus::Cancelled);
    }
    Shown shown(begin);
    QVERIFY(shown.waitUntilIdle());
    QVERIFY(shown.isShown("retry"));
    QVERIFY2(shown.text("waitingText").contains(silent.address()),
             qPrintable(shown.text("waitingText")));
    shown.dialog.pressPrint();
    QCOMPARE(shown.dialog.lastPrintStatus(), ExitStatus::NoDestination);
    QVERIFY(!shown.dialog.lastPrintProblem().isEmpty());
    for (const auto &refused : {shown.dialog.showPanel("SpecialPages"), shown.dialog.showTab(1)})
        QVERIFY(!refused && refused.error().code == Error::Code::Unreachable);

    shown.find<QPushButton>("retry")->click();
    QVERIFY(!shown.isShown("retry"));
    QVERIFY(shown.waitUntilIdle());
    QVERIFY(shown.isShown("retry"));
}

void TestPrintDialog::thePanelStaysWhenThePrinterChanges()
{
    PrivateCups cups;
    QCOMPARE(cups.start(), QString());
    QCOMPARE(cups.addQueue("Full", samplePpd("full")), QString());
    QCOMPARE(cups.addQueue("Bare", samplePpd("bare")), QString());
    QCOMPARE(cups.addQueue("Raw", {}), QString());
    auto begin = queueOptions();
    begin.session.bundle = m_bundle;
    begin.session.printer.name = "Full";
    Shown shown(begin);
    QVERIFY(shown.waitUntilIdle());
    const auto place = [&shown] {
        const auto *tabs = findControl<PopupButton>(&shown.dialog, {kShellSignature, 16});
        const auto *panels = shown.find<QTabBar>("panelSwitch");
        return QStringLiteral("%1, %2").arg(panels->tabText(panels->currentIndex()),
                                            tabs->currentText());
    };
    QVERIFY(shown.dialog.showTab(2));
    QVERIFY(shown.dialog.showPanel("SpecialPages"));
    const QString before = place();
    QCOMPARE(before, "Special Pages, Image Options");

    // Also by way of a printer that has no panels.
    for (const char *printer : {"Bare", "Raw", "Full"}) {
        QVERIFY(shown.choose("printer", printer));
        QVERIFY(shown.waitUntilIdle());
        if (shown.isShown("panelSwitch"))
            QCOMPARE(place(), before);
    }
    QVERIFY(shown.find<QWidget>("specialPagesList")->isVisible());
}

void TestPrintDialog::theListOfPrintersIsAskedAnew()
{
    PrivateCups cups;
    QList<PrivateCups::Queue> queues{{.name = "Hall-3", .ppd = samplePpd("full")}};
    for (int i = 0; i < 12; ++i)
        queues.append({.name = QStringLiteral("Office-%1").arg(i)});
    cups.setQueues(queues);
    QCOMPARE(cups.start(), QString());
    Shown shown(queueOptions());
    QVERIFY(shown.waitUntilIdle());
    QCOMPARE(cups.administer({"-r", "Toner on order", "Office-3"}, "cupsdisable"), QString());
    for (const char *key : {"Down", "e", "-", "3"})
        QVERIFY(!inspector::pressKey(&shown.dialog, key));
    const auto row = [&shown] {
        return shown.find<QListView>("printerList")->currentIndex().data(Qt::AccessibleTextRole);
    };
    QTRY_VERIFY(row().toString().contains("Office-3, stopped: Toner on order"));
    QVERIFY(!inspector::pressKey(&shown.dialog, "Return"));
    QVERIFY(shown.waitUntilIdle());
    QCOMPARE(shown.find<PopupButton>("printer")->currentText(), "Office-3 (stopped)");
    QVERIFY(shown.find<QWidget>("printer")->hasFocus());
}

void TestPrintDialog::aPrinterInTroubleIsToldAndWaitedFor()
{
    PrivateCups cups;
    QCOMPARE(cups.start(), QString());
    QCOMPARE(cups.addQueue("Hall-3", samplePpd("full")), QString());
    QCOMPARE(cups.administer({"-r", "Closed for inventory", "Hall-3"}, "cupsreject"), QString());
    Shown shown(queueOptions(), false);
    const auto isTold = [&shown](const QString &what) {
        return shown.isShown("conflictBar") && shown.text("conflictText").contains(what);
    };
    const auto *print = shown.find<QPushButton>("print");
    QTRY_VERIFY_WITH_TIMEOUT(isTold("inventory") && !print->isEnabled(), 15000);
    QCOMPARE(cups.administer({"Hall-3"}, "cupsaccept"), QString());
    QTRY_VERIFY_WITH_TIMEOUT(print->isEnabled() && !shown.isShown("conflictBar"), 15000);

    // Between two looks.
    QCOMPARE(cups.administer({"-r", "Closed again", "Hall-3"}, "cupsreject"), QString());
    NoticeAnswer ok(1);
    shown.dialog.pressPrint();
    QTRY_VERIFY_WITH_TIMEOUT(ok.text.contains("Closed again"), 15000);
    QTRY_VERIFY_WITH_TIMEOUT(isTold("Closed again") && !print->isEnabled(), 1000);

    QCOMPARE(cups.administer({"Hall-3"}, "cupsaccept"), QString());
    QCOMPARE(cups.administer({"-r", "Toner & drum on order", "Hall-3"}, "cupsdisable"), QString());
    QTRY_VERIFY_WITH_TIMEOUT(isTold("Toner & drum on order") && print->isEnabled(), 15000);
    // The tool tip too shows what was written, and no markup.
    QTextDocument toolTip;
    toolTip.setHtml(shown.find<QWidget>("printer")->toolTip());
    QVERIFY(toolTip.toPlainText().contains("Toner & drum on order"));
    NoticeAnswer cancel(2);
    shown.dialog.pressPrint();
    QVERIFY2(cancel.text.contains("Toner & drum on order"), qPrintable(cancel.text));
    QVERIFY(!shown.dialog.isPrinting());
    NoticeAnswer anyway(1);
    shown.dialog.pressPrint();
    QVERIFY(shown.waitUntilEnded());
}

void TestPrintDialog::theDesktopTellsThatAJobIsOut()
{
    PrivateCups cups;
    QCOMPARE(cups.start(), QString());
    QCOMPARE(cups.addQueue("Hall-3", samplePpd("full")), QString());
    NotificationService desktop;
    QCOMPARE(desktop.start(), QString());
    auto begin = queueOptions();
    begin.session.documents.title = "Profit & loss";
    {
        Shown shown(begin, false);
        QVERIFY(shown.waitUntilIdle());
        shown.dialog.pressPrint();
        QVERIFY(shown.waitUntilEnded());
        QCOMPARE(shown.dialog.finished(), ExitStatus::Printed);
    }
    const QString last = "Hall-3-1: printed|Profit &amp; loss";
    QTRY_VERIFY_WITH_TIMEOUT(desktop.shown().contains(last), 15000);
    QCOMPARE(desktop.shown().first(), "Hall-3-1 sent|Profit &amp; loss|Cancel Job");
    // Its button is heard when the window is long gone.
    const qsizetype before = desktop.shown().size();
    auto held = begin;
    held.session.job.options = {{"job-hold-until", "indefinite"}};
    {
        Shown shown(held, false);
        QVERIFY(shown.waitUntilIdle());
        shown.dialog.pressPrint();
        QVERIFY(shown.waitUntilEnded());
    }
    QTRY_VERIFY_WITH_TIMEOUT(desktop.shown().last().startsWith("Hall-3-2: held until"), 15000);
    desktop.press("cancel");
    QTRY_COMPARE_WITH_TIMEOUT(desktop.shown().last(),
                              QString("Hall-3-2: cancelled|Profit &amp; loss"), 15000);
    QCOMPARE(desktop.shown().size(), before + 3);
    // Whoever drives it reads its output.
    Shown driven(begin);
    QVERIFY(driven.waitUntilIdle());
    driven.dialog.pressPrint();
    QVERIFY(driven.waitUntilEnded());
    QTest::qWait(500);
    QCOMPARE(desktop.shown().size(), before + 3);
}

void TestPrintDialog::withoutADesktopTheWindowTellsOfTheJob()
{
    PrivateCups cups;
    QCOMPARE(cups.start(), QString());
    QCOMPARE(cups.addQueue("Hall-3", samplePpd("full")), QString());
    auto held = queueOptions();
    held.session.job.options = {{"job-hold-until", "indefinite"}};
    Shown shown(held, false);
    QVERIFY(shown.waitUntilIdle());
    const auto *button = shown.find<QPushButton>("cancelJob");
    QVERIFY(!button->isVisible());
    shown.dialog.pressPrint();
    QTRY_VERIFY_WITH_TIMEOUT(shown.text("summary").startsWith("Hall-3-1: held until"), 15000);
    // Whoever has gone to the button is given time.
    shown.find<QPushButton>("cancelJob")->setFocus();
    QTest::qWait(2000);
    QVERIFY(button->isVisible() && !shown.dialog.finished());
    shown.find<QPushButton>("cancelJob")->click();
    QTRY_COMPARE_WITH_TIMEOUT(shown.text("summary"), QString("Hall-3-1: cancelled"), 15000);
    QVERIFY(!button->isVisible());
    QVERIFY(shown.waitUntilEnded());
    QCOMPARE(shown.dialog.finished(), ExitStatus::Printed);
}

void TestPrintDialog::whatWasPrintedWithComesBack()
{
    PrivateCups cups;
    QCOMPARE(cups.start(), QString());
    QCOMPARE(cups.addQueue("Hall-3", samplePpd("full")), QString());
    auto first = queueOptions();
    first.session.job.options = {{"StapleLocation", "SinglePortrait"}, {"media", "A3"}};
    first.lastUsed = LastUsed();
    const auto end = [](Shown &shown, const char *button) {
        if (button)
            shown.find<QPushButton>(button)->click();
        else
            shown.dialog.pressPrint();
        const bool hasEnded = shown.waitUntilEnded();
        return hasEnded && waitForBackgroundWork(5000);
    };
    {
        Shown shown(first, false);
        QVERIFY(shown.waitUntilIdle());
        QVERIFY(end(shown, "cancel"));
        QCOMPARE(readLastUsed(), LastUsed());
    }
    {
        Shown shown(first, false);
        QVERIFY(shown.waitUntilIdle());
        QVERIFY(end(shown, nullptr));
    }
    auto next = queueOptions();
    next.lastUsed = readLastUsed();
    QCOMPARE(next.lastUsed->printer, "Hall-3");
    next.session.job.lastUsed = next.lastUsed->settings;
    next.beginsWithLastUsed = true;
    Shown shown(next, false);
    QVERIFY(shown.waitUntilIdle());
    QCOMPARE(shown.choice("StapleLocation"), "SinglePortrait");
    QCOMPARE(shown.choice("PageSize"), "A4"); // the paper is the next document's
    QCOMPARE(shown.find<PopupButton>("preset")->shownText(), "Last used settings");
    const auto pick = [&shown](const QString &text) {
        inspector::ItemName item;
        item.by = inspector::ItemName::By::Text;
        item.text = text;
        return !inspector::choose(shown.find<QWidget>("preset"), item);
    };
    // One choice away: the defaults, which it begins with from then on.
    QVERIFY(pick("Default settings"));
    QCOMPARE(shown.choice("StapleLocation"), "");
    QVERIFY(pick("Last used settings"));
    QCOMPARE(shown.choice("StapleLocation"), "SinglePortrait");
    QVERIFY(pick("Default settings"));
    QVERIFY(end(shown, nullptr));
    QCOMPARE(readLastUsed().beginning, LastUsed::Beginning::Defaults);
}

void TestPrintDialog::aDeadDesktopKeepsNobody()
{
    const UnreliableServer silent(UnreliableServer::Trouble::NeverAnswers);
    qputenv("DBUS_SESSION_BUS_ADDRESS",
            QStringLiteral("tcp:host=127.0.0.1,port=%1").arg(silent.port()).toUtf8());
    const auto restore = qScopeGuard([] { qunsetenv("DBUS_SESSION_BUS_ADDRESS"); });
    for (const bool isImpatient : {false, true}) {
        Shown shown(options(), false);
        QVERIFY(shown.waitUntilIdle());
        shown.dialog.pressPrint();
        QVERIFY(QTest::qWaitFor([&shown] { return shown.text("summary").contains("Written to"); },
                                15000));
        QVERIFY(!shown.dialog.finished()); // the line can be read
        if (isImpatient)
            shown.find<QPushButton>("cancel")->click();
        else
            QVERIFY(shown.waitUntilEnded());
        QCOMPARE(shown.dialog.finished(), ExitStatus::Printed);
    }
}

// ---- keyboard and looks

void TestPrintDialog::theFirstKeyIsHeard()
{
    Shown shown(options());
    QVERIFY(shown.waitUntilIdle());
    QCOMPARE(shown.dialog.focusWidget(), shown.find<QWidget>("printer"));
    QVERIFY(!inspector::pressKey(&shown.dialog, "Alt+C"));
    QCOMPARE(shown.dialog.focusWidget(), shown.find<QWidget>("copies"));
    for (const char *key : {"Ctrl+A", "5", "Tab"})
        QVERIFY(!inspector::pressKey(&shown.dialog, key));
    QCOMPARE(shown.find<SpinField>("copies")->value(), 5);
    QVERIFY(!inspector::pressKey(&shown.dialog, "Ctrl+P"));
    QVERIFY(shown.dialog.isPrinting());
    QVERIFY(shown.waitUntilEnded());
}

void TestPrintDialog::returnPrintsUnlessAButtonHasTheFocus()
{
    for (const char *name : {"printer", "copies", "pages", "PDEShellField", "print"}) {
        Shown shown(options());
        QVERIFY(shown.waitUntilIdle());
        shown.dialog.activateWindow();
        QVERIFY(shown.choose("pagesChoice", "range"));
        QVERIFY(!inspector::type(shown.find<QWidget>("pages"), "2"));
        auto *control = shown.find<QWidget>(name);
        control->setFocus();
        QVERIFY(shown.find<QPushButton>("print")->isDefault());
        QTest::keyClick(control, Qt::Key_Return);
        QVERIFY2(shown.dialog.isPrinting(), name);
        // Twice is once.
        QTest::keyClick(shown.dialog.focusWidget(), Qt::Key_Return);
        QVERIFY(shown.waitUntilEnded());
        QCOMPARE(shown.dialog.finished(), ExitStatus::Printed);
    }
    Shown shown(options());
    QVERIFY(shown.waitUntilIdle());
    shown.dialog.activateWindow();
    auto *copies = shown.find<SpinField>("copies");
    copies->setFocus();
    copies->typeText("0");
    QTest::keyClick(copies, Qt::Key_Return); // it says 1 now, which may not be meant
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, "\r", true);
    QCoreApplication::sendEvent(copies, &held);
    QVERIFY(!shown.dialog.isPrinting());
    QCOMPARE(copies->text(), QStringLiteral("1"));

    auto *cancel = shown.find<QPushButton>("cancel");
    cancel->setFocus();
    QVERIFY(!shown.find<QPushButton>("print")->isDefault());
    QTest::keyClick(cancel, Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(shown.dialog.finished(), ExitStatus::Cancelled);
}

void TestPrintDialog::keysReachPanelsAndRegions()
{
    Shown shown(options());
    QVERIFY(shown.waitUntilIdle());
    shown.dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&shown.dialog));
    shown.find<QWidget>("PDEShellField")->setFocus();
    QTest::keyClick(&shown.dialog, Qt::Key_2, Qt::AltModifier);
    QVERIFY(shown.isShown("SecondField"));
    QVERIFY(!shown.isShown("PDEShellField"));
    // Not with whatever follows the panel that is gone.
    QCOMPARE(shown.dialog.focusWidget(), shown.find<QWidget>("SecondField"));
    QCOMPARE(shown.dialog.placeOf(shown.find<QWidget>("PDEShellField")), "it is in panel PDEShell");
    QVERIFY(shown.dialog.showPanel("PDEShell"));
    QVERIFY(shown.isShown("PDEShellField"));

    OSType heard = kNoCommand;
    const auto handler = installEventHandler(&shown.dialog, [&heard](const Event &event) {
        heard = event.command;
        return eventNotHandledErr;
    });
    QTest::keyClick(&shown.dialog, Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(heard, fourCharCode("KFup")); // the next tab
    QTest::keyClick(&shown.dialog, Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(heard, fourCharCode("KFdn"));
    QVERIFY(!inspector::command(&shown.dialog, fourCharCode("KFup"))); // whoever passes it on

    shown.find<QWidget>("printer")->setFocus();
    QStringList stops;
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(&shown.dialog, Qt::Key_F6);
        stops << QApplication::focusWidget()->objectName();
    }
    QVERIFY2(stops.contains("panelSwitch") && stops.contains("PDEShellField")
                 && stops.contains("printer"),
             qPrintable(stops.join(' ')));
}

void TestPrintDialog::everyStopIsReachedOnceAndHasAName()
{
    auto begin = options();
    begin.session.job.options = {{"StapleLocation", "SinglePortrait"},
                                 {"MediaType", "Transparency"}};
    begin.session.job.pages = "1-2";
    begin.session.job.copies = 2;
    Shown shown(begin);
    QVERIFY(shown.waitUntilIdle());
    shown.dialog.activateWindow();
    shown.find<QWidget>("printer")->setFocus();
    QStringList stops;
    do {
        QWidget *stop = QApplication::focusWidget();
        QVERIFY(stop->isVisible());
        const auto *button = qobject_cast<QAbstractButton *>(stop);
        QVERIFY2(!stop->accessibleName().isEmpty() || (button && !button->text().isEmpty()),
                 qPrintable(stop->objectName()));
        stops << stop->objectName();
        QTest::keyClick(stop, Qt::Key_Tab);
    } while (QApplication::focusWidget() != shown.find<QWidget>("printer") && stops.size() < 60);

    stops.removeIf([](const QString &name) { return name.startsWith("preview"); });
    QCOMPARE(stops, (QStringList{"printer",    "preset",          "presetMenu",
                                 "copies",     "collate",         "pagesChoice",
                                 "pages",      "paper",           "orientation",
                                 "pageLayout", "panelSwitch",     "PDEShellField",
                                 "fix",        "conflictDetails", "columnToggle",
                                 "jobTiming",  "whatWillBeSent",  "help",
                                 "savePdf",    "cancel",          "print"}));
}

void TestPrintDialog::everythingFits_data()
{
    const Table<QSize, double, bool> row{"size", "font", "dark"};

    row("usual", QSize(900, 660), 1.0, false);
    row("dark", QSize(900, 660), 1.0, true);
    row("laptop", QSize(1366, 768), 1.0, false);
    row("860 wide", QSize(880, 640), 1.0, false);
    row("narrow", QSize(840, 660), 1.0, false);
    row("small", QSize(800, 600), 1.0, false);
    row("netbook", QSize(1024, 600), 1.0, false);
    row("low", QSize(900, 480), 1.0, false);
    row("smallest", QSize(1, 1), 1.0, false);
    row("large font", QSize(1900, 1400), 2.0, false);
}

// Set KELVO_PICTURES to a folder to see the windows.
void TestPrintDialog::everythingFits()
{
    QFETCH(QSize, size);
    QFETCH(double, font);
    QFETCH(bool, dark);
    const QFont usualFont = QApplication::font();
    const QPalette usualPalette = QApplication::palette();
    QFont large = usualFont;
    large.setPointSizeF(usualFont.pointSizeF() * font);
    QApplication::setFont(large);
    if (dark)
        QApplication::setPalette(darkPalette());
    const auto restore = qScopeGuard([&] {
        QApplication::setFont(usualFont);
        QApplication::setPalette(usualPalette);
    });
    auto begin = options();
    // A conflict and a caution.
    begin.session.job.options = {
        {"StapleLocation", "SinglePortrait"}, {"MediaType", "Transparency"}, {"media", "A5"}};
    Shown shown(begin);
    shown.dialog.resize(size);
    QVERIFY(shown.waitUntilIdle());
    QTest::qWait(200); // the preview is drawn on another thread
    if (const QString folder = qEnvironmentVariable("KELVO_PICTURES"); !folder.isEmpty())
        shown.dialog.grab().save(folder + u'/' + QString::fromLatin1(QTest::currentDataTag())
                                 + ".png");

    QVERIFY(shown.isShown("printer") && shown.isShown("fix") && shown.isShown("cautionText2"));
    auto *scroll = shown.find<QScrollArea>("panels");
    QVERIFY(!scroll->verticalScrollBar()->isVisible());
    QVERIFY(!scroll->horizontalScrollBar()->isVisible());
    const QRect inside = shown.dialog.rect();
    for (QWidget *widget : shown.dialog.findChildren<QWidget *>()) {
        if (!widget->isVisible() || scroll->isAncestorOf(widget))
            continue;
        const QRect at(widget->mapTo(&shown.dialog, QPoint()), widget->size());
        QVERIFY2(inside.contains(at), qPrintable(widget->objectName()));
        if (const auto *button = qobject_cast<QPushButton *>(widget); button)
            QVERIFY2(
                widget->width()
                    >= button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width(),
                qPrintable(widget->objectName()));
        if (const auto *label = qobject_cast<QLabel *>(widget); label && label->buddy())
            QVERIFY2(widget->width() >= widget->sizeHint().width(), qPrintable(label->text()));
    }
    QVERIFY(shown.isShown("print"));
    QVERIFY(shown.isShown("copies") && shown.isShown("paper"));
    auto *pages = shown.find<QLineEdit>("pages");
    QVERIFY(pages->width() >= pages->fontMetrics().horizontalAdvance("1-3, 7") + 8);
    shown.find<QWidget>("columnToggle")->setFocus();
    QTest::keyClick(&shown.dialog, Qt::Key_F9);
    QVERIFY(!shown.isShown("printer"));
}

QTEST_MAIN(TestPrintDialog)
#include "test_print_dialog.moc"
