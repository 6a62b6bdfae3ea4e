#include "test_panels.h"

#include "bundle.h"
#include "file_store.h"
#include "inspector.h"
#include "modal_dialog.h"
#include "notice.h"
#include "notification_service.h"
#include "popup_button.h"
#include "presets.h"
#include "print_dialog.h"
#include "private_cups.h"
#include "spin_field.h"
#include "unreliable_server.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
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

    void opensOnEveryDevice_data();
    void opensOnEveryDevice();
    void printsWithoutPanels_data();
    void printsWithoutPanels();
    void thePrintButtonIsAskedFirst();
    void whatWasTypedLastIsPrinted();
    void laterSettingsBeatEarlierOnes();
    void aDeviceThatCannotDoItIsTold();
    void wrongPagesAreNotPrinted_data();
    void wrongPagesAreNotPrinted();
    void conflictsAreShownAndFixed();
    void conflictsAreNotPrinted();
    void severalCautionsStandInARow();
    void theTicketIsWrittenBeforeTheJob();
    void givingUpIsCancelOrTheFailure();
    void aChangedPresetHasAStar();
    void unknownEntriesStayWithTheirPreset();
    void namesThatNoPresetCanHave_data();
    void namesThatNoPresetCanHave();

    void theWindowDoesNotWaitForAServer();
    void aServerThatComesBackIsFound();
    void anUnknownPrinterIsToldWithTheNearest();
    void settingsThatCannotBeReadAreNotNone();
    void aRefusalHasOneStatusWhereverItIsFound();
    void settingsComeBackWithTheirPrinter();
    void aPrinterChosenAgainBeginsOnce();
    void thePanelStaysWhenThePrinterChanges();
    void aStoppedPrinterIsAskedAbout();
    void aPrinterThatTakesNoJobsIsWaitedFor();
    void theDesktopTellsThatAJobIsOut();
    void aDeadDesktopKeepsNobody();

    void theFirstKeyIsHeard();
    void returnPrintsOnlyFromThePrintButton();
    void keysReachPanelsAndRegions();
    void everyStopIsReachedOnceAndHasAName();
    void mnemonicsAreUnique();
    void everythingFits_data();
    void everythingFits();

private:
    DialogOptions options(const QString &device = QStringLiteral("kelvo-corvane-full.ppd"));
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

QString testPpd(const QString &name)
{
    return QStringLiteral(KELVO_TEST_DATA "/ppds/") + name;
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
    options.session.printer.device =
        PpdFile::open(device.startsWith(u'/') ? device : shared(QStringLiteral("ppds/")) + device)
            .value();
    options.session.bundle = m_testBundle;
    options.session.document = DocumentSource{shared(QStringLiteral("demo/document.pdf")), {}};
    options.plan.elsewhere = folderDestination(m_folder->filePath(QStringLiteral("job")));
    return options;
}

QByteArray TestPrintDialog::written(const QString &name) const
{
    QFile file(m_folder->filePath(QStringLiteral("job/") + name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// ---- life

void TestPrintDialog::opensOnEveryDevice_data()
{
    QTest::addColumn<QString>("device");
    for (const char *device : {"full", "mid", "bare"})
        QTest::newRow(device) << QStringLiteral("kelvo-corvane-%1.ppd").arg(device);
}

void TestPrintDialog::opensOnEveryDevice()
{
    QFETCH(QString, device);
    auto begin = options(device);
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
    QVERIFY(shown.dialog.showPanel("SpecialPages"));
    shown.find<QPushButton>("help")->click();
    const QWidgetList windows = QApplication::topLevelWidgets();
    QVERIFY(std::ranges::find(windows, "The Special Pages panel", &QWidget::windowTitle)
            != windows.end());
}

void TestPrintDialog::printsWithoutPanels_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<bool>("hasBundle");
    QTest::addColumn<QString>("says");

    QTest::newRow("another maker") << testPpd("other-maker.ppd") << true << "not made for this";
    QTest::newRow("a maker that begins alike")
        << testPpd("kelvo-lookalike.ppd") << true << "not made for this";
    QTest::newRow("no bundle") << "kelvo-corvane-full.ppd" << false << "It is not installed.";
}

void TestPrintDialog::printsWithoutPanels()
{
    QFETCH(QString, device);
    QFETCH(bool, hasBundle);
    QFETCH(QString, says);
    auto begin = options(device);
    begin.session.bundle = hasBundle ? m_bundle : nullptr;
    begin.session.bundleProblem = QStringLiteral("It is not installed.");
    begin.session.job.copies = 2;
    Shown shown(begin);
    QVERIFY(shown.waitUntilIdle());
    QVERIFY(shown.isShown("waitingHeader"));
    QVERIFY(shown.text("waitingHeader").contains(begin.session.printer.device->modelName()));
    QVERIFY2(shown.text("waitingText").contains(says), qPrintable(shown.text("waitingText")));
    QVERIFY(!shown.isShown("retry"));

    shown.dialog.pressPrint();

    QVERIFY(shown.waitUntilEnded());
    QCOMPARE(*shown.dialog.finished(), ExitStatus::Printed);
    QVERIFY(written("document.pdf").startsWith("%PDF"));
    QVERIFY(written("options").contains("copies=2\n"));
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

void TestPrintDialog::laterSettingsBeatEarlierOnes()
{
    const auto ticket = [](const QString &note, const QString &duplex, const QString &punch) {
        TicketFile file;
        file.printSettings.entries["com.kelvo.test.Note"] = {note, "test"};
        for (const auto &[option, choice] : {std::pair{"Duplex", duplex}, {"KVPunch", punch}}) {
            if (!choice.isEmpty())
                file.printSettings.ppdChoices[option] = choice;
        }
        return file;
    };
    auto begin = options();
    begin.session.job.preset = ticket("preset", "DuplexTumble", "2HolePunch");
    begin.session.job.ticketIn = ticket("ticket", "DuplexNoTumble", {});
    begin.session.job.ticketIn->unknown = {{"Other", "kept"}};
    begin.session.job.options = {{"Duplex", "None"}, {"media", "A5"}};
    begin.plan.ticketOut = m_folder->filePath("out.plist");
    Shown shown(begin);
    QVERIFY(shown.waitUntilIdle());

    QCOMPARE(shown.choice("Duplex"), "None");
    QCOMPARE(shown.choice("KVPunch"), "2HolePunch");
    QCOMPARE(shown.choice("PageSize"), "A5");
    // The panels read the ticket, and wrote it as it was.
    QCOMPARE(shown.find<QLineEdit>("PDEShellField")->text(), "ticket");
    // A script comes last, and what it did is in the ticket that goes out.
    QVERIFY(shown.choose("paper", "A4"));
    QVERIFY(shown.dialog.writeSettingsOut());
    const auto out = readTicketFile(m_folder->filePath("out.plist"));
    QVERIFY(out);
    QCOMPARE(out.value().printSettings.ppdChoices["PageSize"], "A4");
    QCOMPARE(out.value().printSettings.entries.at(kPMJobNameKey).value, "document.pdf");
    QCOMPARE(out.value().unknown["Other"], "kept");
}

void TestPrintDialog::aDeviceThatCannotDoItIsTold()
{
    auto begin = options("kelvo-corvane-bare.ppd");
    begin.session.job.options = {{"KVPunch", "2HolePunch"}};
    Shown shown(begin);
    QCOMPARE(shown.dialog.finished(), ExitStatus::NotOffered);
}

void TestPrintDialog::wrongPagesAreNotPrinted_data()
{
    QTest::addColumn<QString>("pages");
    QTest::addColumn<QString>("says");

    QTest::newRow("after the last") << "7-"
                                    << "pages 1 to 6";
    QTest::newRow("no range") << "two"
                              << "written like this";
    QTest::newRow("nothing typed") << ""
                                   << "Type the pages";
}

void TestPrintDialog::wrongPagesAreNotPrinted()
{
    QFETCH(QString, pages);
    QFETCH(QString, says);
    Shown shown(options());
    QVERIFY(shown.waitUntilIdle());
    QVERIFY(shown.choose("pagesChoice", "range"));
    QVERIFY(!inspector::type(shown.find<QWidget>("pages"), pages));
    QVERIFY(shown.waitUntilIdle());
    QCOMPARE(shown.isShown("pagesProblem"), !pages.isEmpty()); // what is missing is no mistake yet
    QVERIFY2(shown.text("summary").contains(says), qPrintable(shown.text("summary")));

    shown.dialog.pressPrint();

    QVERIFY(!shown.dialog.isPrinting());
    QVERIFY(shown.dialog.lastPrintProblem().startsWith("Pages:"));
    QVERIFY2(shown.dialog.lastPrintProblem().contains(says),
             qPrintable(shown.dialog.lastPrintProblem()));
    QCOMPARE(shown.dialog.lastPrintStatus(), ExitStatus::WrongUsage);
    QCOMPARE(shown.find<QLineEdit>("pages")->text(), pages);

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
    Shown shown(begin);
    QVERIFY(shown.waitUntilIdle());
    QVERIFY(shown.isShown("conflictBar"));
    QVERIFY(shown.find<QLabel>("conflictText")->accessibleName().contains("Transparency"));
    NoticeAnswer details(1);
    shown.find<QPushButton>("conflictDetails")->click();
    QVERIFY2(details.text.contains("Set Stapling to No Staple"), qPrintable(details.text));
    m_panels->calls.clear();

    shown.find<QPushButton>("fix")->click();

    QVERIFY(!shown.isShown("conflictBar"));
    QCOMPARE(shown.choice("StapleLocation"), "None");
    QCOMPARE(shown.choice("MediaType"), "Transparency");
    // All panels write before it is looked at, and read what was mended.
    QCOMPARE(m_panels->calls.mid(0, 6),
             (QStringList{"Second write", "Third write", "PDEShell write", "Second read",
                          "Third read", "PDEShell read"}));
}

void TestPrintDialog::conflictsAreNotPrinted()
{
    auto begin = options();
    begin.session.job.options = {{"StapleLocation", "SinglePortrait"},
                                 {"MediaType", "Transparency"}};
    {
        Shown driven(begin);
        QVERIFY(driven.waitUntilIdle());
        driven.dialog.pressPrint();
        QVERIFY(!driven.dialog.isPrinting());
        QCOMPARE(driven.dialog.lastPrintStatus(), ExitStatus::NotOffered);
        QVERIFY(driven.dialog.lastPrintProblem().contains("cannot be used together"));
    }
    Shown shown(begin, false);
    QVERIFY(shown.waitUntilIdle());
    NoticeAnswer cancel(2);
    shown.dialog.pressPrint();
    QVERIFY(cancel.text.contains("Transparency"));
    QVERIFY(!shown.dialog.isPrinting());
    NoticeAnswer fix(1);
    shown.dialog.pressPrint();
    QVERIFY(shown.waitUntilEnded());
    QCOMPARE(*shown.dialog.finished(), ExitStatus::Printed);
    QVERIFY(!written("options").contains("SinglePortrait"));
}

void TestPrintDialog::severalCautionsStandInARow()
{
    auto begin = options("kelvo-corvane-bare.ppd");
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

void TestPrintDialog::theTicketIsWrittenBeforeTheJob()
{
    auto begin = options();
    QFile inTheWay(m_folder->filePath("no"));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    begin.plan.ticketOut = m_folder->filePath("no/out.plist");
    Shown shown(begin);
    QVERIFY(shown.waitUntilIdle());
    shown.dialog.pressPrint();
    QVERIFY(!shown.dialog.isPrinting());
    QVERIFY2(shown.dialog.lastPrintProblem().contains("out.plist"),
             qPrintable(shown.dialog.lastPrintProblem()));

    QVERIFY(inTheWay.remove());
    QVERIFY(QDir().mkdir(m_folder->filePath("no")));
    shown.dialog.pressPrint();
    QVERIFY(shown.waitUntilEnded());
    const auto out = readTicketFile(m_folder->filePath("no/out.plist"));
    QVERIFY(out);
    QCOMPARE(out.value().printSettings.entries.at("com.kelvo.test.Note").value, "default");
}

void TestPrintDialog::givingUpIsCancelOrTheFailure()
{
    {
        Shown shown(options());
        QVERIFY(shown.waitUntilIdle());
        QTest::keyClick(&shown.dialog, Qt::Key_Escape);
        QCOMPARE(shown.dialog.finished(), ExitStatus::Cancelled);
    }
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
    shown.dialog.pressCancel();
    QCOMPARE(shown.dialog.finished(), ExitStatus::NoDestination);
    QCOMPARE(shown.ended.size(), 1);
}

void TestPrintDialog::aChangedPresetHasAStar()
{
    {
        Shown first(options());
        QVERIFY(first.waitUntilIdle());
        auto *preset = first.find<PopupButton>("preset");
        QCOMPARE(preset->currentText(), "Default Settings");
        QVERIFY(!inspector::set(first.find<QWidget>("copies"), 4));
        QVERIFY(first.waitUntilIdle());
        QCOMPARE(preset->currentText(), "Default Settings*");

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
        inspector::chooseCommand(first.find<QWidget>("presetMenu"), fourCharCode("PsSA"), {});
        QCOMPARE(preset->currentText(), "Four & more");
    }
    Shown second(options());
    QVERIFY(second.waitUntilIdle());
    QVERIFY(second.choose("preset", "Four & more"));
    QCOMPARE(second.find<SpinField>("copies")->value(), 4);
    NoticeAnswer remove(1);
    inspector::chooseCommand(second.find<QWidget>("presetMenu"), fourCharCode("PsDl"), {});
    QVERIFY(PresetStore().presets().empty());
    QCOMPARE(second.find<PopupButton>("preset")->currentText(), "Default Settings*");
    QCOMPARE(second.find<SpinField>("copies")->value(), 4); // nothing was lost here
}

void TestPrintDialog::unknownEntriesStayWithTheirPreset()
{
    PresetStore store;
    const auto unknownOf = [&store](const char *name) {
        return store.read(QString::fromLatin1(name)).value().unknown;
    };
    for (const char *name : {"One", "Two"}) {
        TicketFile file;
        file.unknown = {{name, "kept"}, {"com.kelvo.print.TicketNonce", QByteArray("0123")}};
        QVERIFY(store.save(QString::fromLatin1(name), file, {}, false));
    }
    auto begin = options();
    begin.session.job.preset = store.read("One").value();
    begin.preset = "One";
    Shown shown(begin);
    QVERIFY(shown.waitUntilIdle());
    const auto save = [&shown] {
        QVERIFY(!inspector::set(shown.find<QWidget>("copies"), 3));
        QVERIFY(shown.waitUntilIdle());
        QVERIFY(
            !inspector::chooseCommand(shown.find<QWidget>("presetMenu"), fourCharCode("PsSv"), {}));
    };

    save();
    QCOMPARE(unknownOf("One"), (Dictionary{{"One", "kept"}}));
    QVERIFY(shown.choose("preset", "Two"));
    save();
    QCOMPARE(unknownOf("Two"), (Dictionary{{"Two", "kept"}}));

    // A new preset begins without what belongs to another.
    QVERIFY(shown.find<PopupButton>("preset")->choose(1));
    QTimer::singleShot(50, [] {
        inspector::type(frontWindow()->findChild<QWidget *>("presetName"), QStringLiteral("New"));
        inspector::click(frontWindow()->findChild<QWidget *>("ok"));
    });
    inspector::chooseCommand(shown.find<QWidget>("presetMenu"), fourCharCode("PsSA"), {});
    QCOMPARE(unknownOf("New"), Dictionary());
    for (const char *name : {"One", "Two", "New"})
        QVERIFY(store.remove(QString::fromLatin1(name)));
}

void TestPrintDialog::namesThatNoPresetCanHave_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("says");

    QTest::newRow("the first row") << "Default Settings"
                                   << "how the printer comes";
    QTest::newRow("nearly") << " default  settings"
                            << "how the printer comes";
    QTest::newRow("with its star") << "Default Settings*"
                                   << "how the printer comes";
    QTest::newRow("none") << " "
                          << "Type a name";
}

void TestPrintDialog::namesThatNoPresetCanHave()
{
    QFETCH(QString, name);
    QFETCH(QString, says);
    Shown shown(options());
    QVERIFY(shown.waitUntilIdle());
    NoticeAnswer notice(1);
    QTimer::singleShot(20, [name] {
        QWidget *front = frontWindow();
        auto *field = front->findChild<QLineEdit *>("presetName");
        inspector::type(field, name);
        sendCommand(front, kCommandOK);
        // The notice has been answered by now, and the dialog is still open.
        sendCommand(front, kCommandCancel);
    });
    inspector::chooseCommand(shown.find<QWidget>("presetMenu"), fourCharCode("PsSA"), {});

    QVERIFY2(notice.text.contains(says), qPrintable(notice.text));
    QVERIFY(PresetStore().presets().empty());
}

// ---- print servers

void TestPrintDialog::theWindowDoesNotWaitForAServer()
{
    const UnreliableServer silent(UnreliableServer::Trouble::NeverAnswers);
    qputenv("CUPS_SERVER", silent.address().toUtf8());
    auto begin = options();
    begin.session.printer.device.reset();
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
}

void TestPrintDialog::aServerThatComesBackIsFound()
{
    PrivateCups cups;
    QCOMPARE(cups.start(), QString());
    QCOMPARE(cups.addQueue("Hall-3", shared("ppds/kelvo-corvane-full.ppd")), QString());
    UnreliableServer silent(UnreliableServer::Trouble::NeverAnswers, cups.port());
    qputenv("CUPS_SERVER", silent.address().toUtf8());
    auto begin = options();
    begin.session.printer.device.reset();
    begin.session.printer.timeoutMs = 1000;
    Shown shown(begin);
    QVERIFY(shown.waitUntilIdle());
    silent.recover();

    shown.find<QPushButton>("retry")->click();

    QVERIFY(shown.waitUntilIdle());
    QVERIFY2(shown.find<QPushButton>("print")->isEnabled(), qPrintable(shown.text("waitingText")));
    QVERIFY(shown.find<QLineEdit>("PDEShellField"));
}

void TestPrintDialog::anUnknownPrinterIsToldWithTheNearest()
{
    PrivateCups cups;
    QCOMPARE(cups.start(), QString());
    QCOMPARE(cups.addQueue("Hall-3", shared("ppds/kelvo-corvane-full.ppd")), QString());
    auto begin = options();
    begin.session.printer.device.reset();
    begin.session.printer.name = "Hal-3";
    Shown shown(begin);
    QVERIFY(shown.waitUntilIdle());
    QVERIFY(shown.text("waitingHeader").contains("Hal-3"));
    QVERIFY(shown.text("waitingText").contains("Hall-3"));
    QVERIFY(!shown.find<QPushButton>("print")->isEnabled());
    for (const auto &refused : {shown.dialog.showPanel("SpecialPages"), shown.dialog.showTab(1)}) {
        QVERIFY(!refused && refused.error().code == Error::Code::Unreachable);
        QVERIFY(refused.error().text().contains("Hal-3"));
    }

    QVERIFY(shown.choose("printer", "Hall-3"));

    QVERIFY(shown.waitUntilIdle());
    QVERIFY(shown.find<QPushButton>("print")->isEnabled());
}

// A queue whose PPD is damaged would print without a single setting, and not a word.
void TestPrintDialog::settingsThatCannotBeReadAreNotNone()
{
    PrivateCups cups;
    const QString ppd = shared("ppds/kelvo-corvane-full.ppd");
    QCOMPARE(cups.start(), QString());
    QCOMPARE(cups.addQueue("Hall-3", ppd), QString());
    const QByteArray whole = readFile(ppd, 1'000'000).value();
    auto begin = options();
    begin.session.printer.device.reset();
    begin.session.printer.name = "Hall-3";
    for (const QByteArray &damaged : {QByteArray(), whole.left(20'000), QByteArray("*PPD")}) {
        QVERIFY(cups.damagePpd("Hall-3", damaged));
        Shown shown(begin);
        QVERIFY(shown.waitUntilIdle());
        QVERIFY2(shown.text("waitingHeader").contains("cannot be read"),
                 qPrintable(shown.text("waitingHeader")));
        QVERIFY(!shown.find<QPushButton>("print")->isEnabled());
        shown.dialog.pressPrint();
        QCOMPARE(shown.dialog.lastPrintStatus(), ExitStatus::NoDestination);
        QVERIFY(shown.isShown("retry"));

        QVERIFY(cups.damagePpd("Hall-3", whole));
        shown.find<QPushButton>("retry")->click();
        QVERIFY(shown.waitUntilIdle());
        QVERIFY(shown.find<QPushButton>("print")->isEnabled());
        QVERIFY(shown.find<QLineEdit>("PDEShellField"));
    }
}

// The PPD that the job was made for, and the one that the server has when it is sent.
void TestPrintDialog::aRefusalHasOneStatusWhereverItIsFound()
{
    PrivateCups cups;
    const QString reads = shared("ppds/kelvo-corvane-full.ppd");
    const QByteArray readsNot = readFile(testPpd("no-ticket.ppd"), 1'000'000).value();
    QCOMPARE(cups.start(), QString());
    QCOMPARE(cups.addQueue("Hall-3", reads), QString());
    QCOMPARE(cups.addQueue("Office", testPpd("no-ticket.ppd")), QString());
    auto begin = options();
    begin.session.printer.device.reset();
    begin.session.bundle = m_bundle;
    begin.plan.elsewhere.reset();
    begin.session.job.ticketIn = TicketFile();
    begin.session.job.ticketIn->printSettings.entries["com.kelvo.print.JobType"] = {
        Dictionary{{"JobType", 6}, {"SecurePrintPassword", "4815"}}, "com.kelvo.printingmanager"};
    struct Row
    {
        QString queue;
        QByteArray later; // the PPD on the server at Print; empty: as before
        ExitStatus status;
        QString says;
    };
    for (const Row &row : {Row{"Office", {}, ExitStatus::NotOffered, "*KelvoTicket"},
                           Row{"Hall-3", readsNot, ExitStatus::NotOffered, "*KelvoTicket"},
                           Row{"Hall-3", "*PPD", ExitStatus::NoDestination, "damaged"}}) {
        QVERIFY(cups.damagePpd("Hall-3", readFile(reads, 1'000'000).value()));
        begin.session.printer.name = row.queue;
        Shown shown(begin);
        QVERIFY(shown.waitUntilIdle());
        if (!row.later.isEmpty())
            QVERIFY(cups.damagePpd(row.queue, row.later));
        shown.dialog.pressPrint();
        QVERIFY(QTest::qWaitFor([&] { return !shown.dialog.isPrinting(); }, 15000));
        const QString problem = shown.dialog.lastPrintProblem();
        QVERIFY2(problem.contains(row.says), qPrintable(problem));
        QCOMPARE(shown.dialog.lastPrintStatus(), row.status);
    }
    QCOMPARE(cups.jobs(0).size(), 0U);
}

void TestPrintDialog::settingsComeBackWithTheirPrinter()
{
    PrivateCups cups;
    QCOMPARE(cups.start(), QString());
    QCOMPARE(cups.addQueue("Full", shared("ppds/kelvo-corvane-full.ppd")), QString());
    QCOMPARE(
        cups.addQueue("Bare", shared("ppds/kelvo-corvane-bare.ppd"), {"-o", "Duplex-default=None"}),
        QString());
    QCOMPARE(cups.addQueue("Other", testPpd("other-maker.ppd")), QString());
    QCOMPARE(cups.addQueue("Raw", {}), QString());
    auto begin = options();
    begin.session.printer.device.reset();
    begin.plan.elsewhere.reset();
    begin.session.printer.name = "Full";
    begin.session.job.options = {{"KVPunch", "2HolePunch"}};
    Shown shown(begin);
    QVERIFY(shown.waitUntilIdle());
    QCOMPARE(shown.choice("KVPunch"), "2HolePunch");
    shown.find<QLineEdit>("PDEShellField")->setText("mine");
    m_panels->calls.clear();

    QVERIFY(shown.choose("printer", "Bare"));
    QVERIFY(shown.waitUntilIdle());
    // Everything is terminated, the shell last, before it begins again.
    const qsizetype ended = m_panels->calls.indexOf("PDEShell terminate");
    QVERIFY(ended > 0 && m_panels->calls.indexOf("PDEShell prologue") > ended);
    QVERIFY(m_panels->calls.indexOf("Third terminate") < ended);
    QCOMPARE(shown.find<QLineEdit>("PDEShellField")->text(), "mine");
    QVERIFY(shown.isShown("conflictBar"));
    QVERIFY2(shown.find<QLabel>("conflictText")->accessibleName().contains("2"),
             qPrintable(shown.find<QLabel>("conflictText")->accessibleName()));
    shown.find<QPushButton>("hideMissing")->click();
    QVERIFY(!shown.isShown("conflictBar"));

    for (const char *printer : {"Other", "Raw", "Full"}) {
        QVERIFY(shown.choose("printer", printer));
        QVERIFY(shown.waitUntilIdle());
        QVERIFY(shown.find<QPushButton>("print")->isEnabled());
    }
    QCOMPARE(shown.choice("KVPunch"), "2HolePunch");
    QCOMPARE(shown.find<QLineEdit>("PDEShellField")->text(), "mine");

    shown.dialog.pressPrint();
    QVERIFY(shown.waitUntilEnded());
    QCOMPARE(shown.dialog.finished(), ExitStatus::Printed);
    QCOMPARE(cups.jobs(1).size(), 1U);
}

void TestPrintDialog::aPrinterChosenAgainBeginsOnce()
{
    PrivateCups cups;
    QCOMPARE(cups.start(), QString());
    QCOMPARE(cups.addQueue("Full", shared("ppds/kelvo-corvane-full.ppd")), QString());
    QCOMPARE(cups.addQueue("Bare", shared("ppds/kelvo-corvane-bare.ppd")), QString());
    auto begin = options();
    begin.session.printer.device.reset();
    begin.session.printer.name = "Full";
    Shown shown(begin);
    QVERIFY(shown.waitUntilIdle());
    m_panels->calls.clear();

    // Faster than the server answers.
    for (const char *printer : {"Bare", "Full", "Full", "Bare", "Full"})
        QVERIFY(shown.choose("printer", printer));
    QVERIFY(shown.waitUntilIdle());
    QTest::qWait(500); // for an answer too many

    QVERIFY(shown.find<QPushButton>("print")->isEnabled());
    QCOMPARE(m_panels->calls.count("PDEShell prologue"), 1);
    QCOMPARE(m_panels->calls.count("PDEShell terminate"), 1);
}

void TestPrintDialog::thePanelStaysWhenThePrinterChanges()
{
    PrivateCups cups;
    QCOMPARE(cups.start(), QString());
    QCOMPARE(cups.addQueue("Full", shared("ppds/kelvo-corvane-full.ppd")), QString());
    QCOMPARE(cups.addQueue("Bare", shared("ppds/kelvo-corvane-bare.ppd")), QString());
    QCOMPARE(cups.addQueue("Raw", {}), QString());
    auto begin = options();
    begin.session.bundle = m_bundle;
    begin.session.printer.device.reset();
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

void TestPrintDialog::aStoppedPrinterIsAskedAbout()
{
    PrivateCups cups;
    QCOMPARE(cups.start(), QString());
    QCOMPARE(cups.addQueue("Hall-3", shared("ppds/kelvo-corvane-full.ppd")), QString());
    QCOMPARE(cups.administer({"-r", "Toner & drum on order", "Hall-3"}, "cupsdisable"), QString());
    auto begin = options();
    begin.session.printer.device.reset();
    begin.plan.elsewhere.reset();
    begin.session.printer.name = "Hall-3";
    Shown shown(begin, false);
    QTRY_VERIFY_WITH_TIMEOUT(shown.isShown("conflictBar")
                                 && shown.text("conflictText").contains("Toner & drum on order"),
                             15000);
    // The tool tip too shows what was written, and no markup.
    QTextDocument toolTip;
    toolTip.setHtml(shown.find<QWidget>("printer")->toolTip());
    QVERIFY(toolTip.toPlainText().contains("Toner & drum on order"));

    NoticeAnswer cancel(2);
    shown.dialog.pressPrint();
    QVERIFY2(cancel.text.contains("Toner & drum on order"), qPrintable(cancel.text));
    QVERIFY(!shown.dialog.isPrinting());
    QVERIFY(shown.dialog.isVisible());
    NoticeAnswer anyway(1);
    shown.dialog.pressPrint();
    QVERIFY(shown.waitUntilEnded());
    QCOMPARE(shown.dialog.finished(), ExitStatus::Printed);
}

void TestPrintDialog::aPrinterThatTakesNoJobsIsWaitedFor()
{
    PrivateCups cups;
    QCOMPARE(cups.start(), QString());
    QCOMPARE(cups.addQueue("Hall-3", shared("ppds/kelvo-corvane-full.ppd")), QString());
    QCOMPARE(cups.administer({"-r", "Closed for inventory", "Hall-3"}, "cupsreject"), QString());
    auto begin = options();
    begin.session.printer.device.reset();
    begin.plan.elsewhere.reset();
    begin.session.printer.name = "Hall-3";
    {
        Shown driven(begin);
        QVERIFY(driven.waitUntilIdle());
        driven.dialog.pressPrint();
        QCOMPARE(driven.dialog.lastPrintStatus(), ExitStatus::Failed);
        QVERIFY(driven.dialog.lastPrintProblem().contains("Closed for inventory"));
    }
    {
        // A job that goes elsewhere needs no printer.
        auto elsewhere = begin;
        elsewhere.plan.elsewhere = folderDestination(m_folder->filePath("job"));
        Shown driven(elsewhere);
        QVERIFY(driven.waitUntilIdle());
        QVERIFY(!driven.isShown("conflictBar"));
        QVERIFY(driven.find<QPushButton>("print")->isEnabled());
    }
    Shown shown(begin, false);
    QTRY_VERIFY_WITH_TIMEOUT(
        shown.isShown("conflictBar") && !shown.find<QPushButton>("print")->isEnabled(), 15000);
    QCOMPARE(cups.administer({"Hall-3"}, "cupsaccept"), QString());
    QTRY_VERIFY_WITH_TIMEOUT(shown.find<QPushButton>("print")->isEnabled(), 15000);
    QVERIFY(!shown.isShown("conflictBar"));

    // Between two looks: the server's word comes first, but not to the user.
    QCOMPARE(cups.administer({"-r", "Closed again", "Hall-3"}, "cupsreject"), QString());
    NoticeAnswer ok(1);
    shown.dialog.pressPrint();
    QTRY_VERIFY_WITH_TIMEOUT(!ok.text.isEmpty(), 15000);
    QVERIFY2(ok.text.contains("“Hall-3” takes no jobs: Closed again. Choose another printer, or "
                              "wait until it takes jobs again. (Hall-3: the print server at "),
             qPrintable(ok.text));
    QTRY_VERIFY_WITH_TIMEOUT(shown.isShown("conflictBar"), 1000);
    QVERIFY(!shown.find<QPushButton>("print")->isEnabled());
}

void TestPrintDialog::theDesktopTellsThatAJobIsOut()
{
    PrivateCups cups;
    QCOMPARE(cups.start(), QString());
    QCOMPARE(cups.addQueue("Hall-3", shared("ppds/kelvo-corvane-full.ppd")), QString());
    NotificationService desktop;
    QCOMPARE(desktop.start(), QString());
    auto begin = options();
    begin.session.printer.device.reset();
    begin.plan.elsewhere.reset();
    begin.session.printer.name = "Hall-3";
    begin.session.document->title = "Profit & loss";
    {
        Shown shown(begin, false);
        QVERIFY(shown.waitUntilIdle());
        shown.dialog.pressPrint();
        QVERIFY(shown.waitUntilEnded());
        QCOMPARE(shown.dialog.finished(), ExitStatus::Printed);
        QCOMPARE(desktop.shown(), QStringList("Hall-3-1 sent|Profit &amp; loss"));
    }
    // Whoever drives it reads its output.
    Shown driven(begin);
    QVERIFY(driven.waitUntilIdle());
    driven.dialog.pressPrint();
    QVERIFY(driven.waitUntilEnded());
    QTest::qWait(50);
    QCOMPARE(desktop.shown().size(), 1);
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

void TestPrintDialog::returnPrintsOnlyFromThePrintButton()
{
    Shown shown(options());
    QVERIFY(shown.waitUntilIdle());
    shown.dialog.activateWindow();
    for (const char *name : {"copies", "preset", "whatWillBeSent", "help", "PDEShellField"}) {
        auto *control = shown.find<QWidget>(name);
        control->setFocus();
        QTest::keyClick(control, Qt::Key_Return);
        QVERIFY2(!shown.dialog.isPrinting() && !frontNotice().isShown(), name);
        QVERIFY2(frontWindow() == &shown.dialog, name);
    }
    auto *print = shown.find<QPushButton>("print");
    print->setFocus();
    QTest::keyClick(print, Qt::Key_Return);
    QVERIFY(shown.dialog.isPrinting());
    QVERIFY(shown.waitUntilEnded());
}

void TestPrintDialog::keysReachPanelsAndRegions()
{
    Shown shown(options());
    QVERIFY(shown.waitUntilIdle());
    shown.dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&shown.dialog));
    QTest::keyClick(&shown.dialog, Qt::Key_2, Qt::AltModifier);
    QVERIFY(shown.isShown("SecondField"));
    QVERIFY(!shown.isShown("PDEShellField"));
    QCOMPARE(shown.dialog.placeOf(shown.find<QWidget>("PDEShellField")), "panel PDEShell");
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
    QCOMPARE(stops,
             (QStringList{"printer", "preset", "presetMenu", "copies", "collate", "pagesChoice",
                          "pages", "paper", "orientation", "panelSwitch", "PDEShellField", "fix",
                          "conflictDetails", "columnToggle", "whatWillBeSent", "help", "cancel",
                          "print"}));
}

void TestPrintDialog::mnemonicsAreUnique()
{
    Shown shown(options());
    QVERIFY(shown.waitUntilIdle());
    QMap<QString, QString> owners;
    for (const QWidget *widget : shown.dialog.findChildren<QWidget *>()) {
        QString text;
        if (const auto *label = qobject_cast<const QLabel *>(widget); label && label->buddy())
            text = label->text();
        else if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            text = button->text();
        const QString key = QKeySequence::mnemonic(text).toString();
        if (key.isEmpty())
            continue;
        QVERIFY2(!owners.contains(key), qPrintable(text + " and " + owners.value(key)));
        owners[key] = text;
    }
    QVERIFY(owners.size() >= 12);
}

void TestPrintDialog::everythingFits_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("font");
    QTest::addColumn<bool>("dark");
    QTest::addColumn<bool>("showsColumn");
    QTest::addColumn<bool>("scrolls");

    QTest::newRow("usual") << QSize(900, 660) << 1.0 << false << true << false;
    QTest::newRow("dark") << QSize(900, 660) << 1.0 << true << true << false;
    QTest::newRow("laptop") << QSize(1366, 768) << 1.0 << false << true << false;
    QTest::newRow("860 wide") << QSize(880, 640) << 1.0 << false << true << false;
    QTest::newRow("narrow") << QSize(840, 660) << 1.0 << false << true << false;
    QTest::newRow("small") << QSize(800, 600) << 1.0 << false << true << false;
    QTest::newRow("netbook") << QSize(1024, 600) << 1.0 << false << true << false;
    QTest::newRow("low") << QSize(900, 480) << 1.0 << false << true << false;
    QTest::newRow("smallest") << QSize(1, 1) << 1.0 << false << true << false;
    QTest::newRow("large font") << QSize(1900, 1400) << 2.0 << false << true << false;
}

// Set KELVO_PICTURES to a folder to see the windows.
void TestPrintDialog::everythingFits()
{
    QFETCH(QSize, size);
    QFETCH(double, font);
    QFETCH(bool, dark);
    QFETCH(bool, showsColumn);
    QFETCH(bool, scrolls);
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

    QCOMPARE(shown.isShown("printer"), showsColumn);
    QVERIFY(shown.isShown("fix") && shown.isShown("cautionText2"));
    auto *scroll = shown.find<QScrollArea>("panels");
    QCOMPARE(scroll->verticalScrollBar()->isVisible(), scrolls);
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
    QCOMPARE(shown.isShown("printer"), !showsColumn);
}

QTEST_MAIN(TestPrintDialog)
#include "test_print_dialog.moc"
