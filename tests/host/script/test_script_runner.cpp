#include "script_runner.h"

#include "event.h"
#include "input_limits.h"
#include "menu_button.h"
#include "modal_dialog.h"
#include "notice.h"
#include "popup_button.h"
#include "secrets.h"
#include "standard_error.h"
#include "table.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>
#include <QVBoxLayout>

using namespace kelvo;

namespace {

// A window with a few controls, and a print that does what the test says.
class FakeDialog : public ScriptTarget
{
public:
    FakeDialog()
    {
        auto *layout = new QVBoxLayout(&m_window);
        m_window.setObjectName(QStringLiteral("printDialog"));
        m_window.setWindowTitle(QStringLiteral("Print"));
        auto *icon = new QLabel;
        icon->setObjectName(QStringLiteral("bannerSheetIcon"));
        layout->addWidget(icon);
        popup = new PopupButton;
        popup->setObjectName(QStringLiteral("bannerSheet"));
        setControlID(popup, {kPanelSignature, 614});
        const OSType command = fourCharCode("Bnr1");
        const Menu menu{{{.text = "No banner", .key = "False", .reference = 0},
                         {.text = "Banner", .key = "True", .command = command, .reference = 1},
                         {.text = "Twin", .key = "Twin", .command = command, .reference = 1},
                         {.text = "Gone", .key = "Gone", .reference = 9, .enabled = false}},
                        nullptr};
        popup->setMenu(menu);
        layout->addWidget(popup);
        auto *menuButton = new MenuButton;
        menuButton->setObjectName(QStringLiteral("presetMenu"));
        menuButton->setMenu(menu);
        layout->addWidget(menuButton);
        menuButton->setFocus();
        field = new QLineEdit;
        field->setObjectName(QStringLiteral("passcode"));
        field->setEchoMode(QLineEdit::Password);
        setInputLimits(field, {1, 12, InputLimits::decimalDigits()});
        layout->addWidget(field);
        box = new QCheckBox(QStringLiteral("C&ollate"));
        box->setObjectName(QStringLiteral("collate"));
        box->setEnabled(false);
        layout->addWidget(box);
        auto *setup = new QPushButton(QStringLiteral("Set up…"));
        setup->setObjectName(QStringLiteral("setup"));
        QObject::connect(setup, &QPushButton::clicked, setup, [this] {
            auto *content = new QWidget;
            content->setWindowTitle(QStringLiteral("Secure print"));
            auto *inside = new QLineEdit(content);
            inside->setObjectName(QStringLiteral("confirmPasscode"));
            ModalDialog dialog(content, &m_window);
            modalResult = static_cast<int>(dialog.runModal());
        });
        layout->addWidget(setup);
        auto *print = new QPushButton(QStringLiteral("Print"));
        print->setObjectName(QStringLiteral("print"));
        QObject::connect(print, &QPushButton::clicked, print, [this] { pressPrint(); });
        layout->addWidget(print);
        m_window.show();
    }

    bool isIdle() const override
    {
        ++looks;
        return idle;
    }
    bool isDrawing(const QWidget *) const override { return isBare; }
    void drawPutOff() override
    {
        QTimer::singleShot(20, &m_window, [this] { isBare = false; });
    }
    QWidget *window() override { return &m_window; }
    Result<void> showPanel(const QString &) override { return {}; }
    Result<void> showTab(int tab) override
    {
        if (tab == 4)
            return {};
        return Error{Error::Code::NotFound, QStringLiteral("tab %1").arg(tab),
                     QStringLiteral("the tabs are 4")};
    }
    QString placeOf(const QWidget *) const override { return "it is in tab 4, Advanced"; }
    void sync(SyncDirection) override { }
    void pressPrint() override
    {
        ++printPresses;
        if (noticeAtPrint) {
            CFUserNotificationDisplayNotice(NoticeLevel::Caution,
                                            QStringLiteral("Passcode missing."),
                                            QStringLiteral("Type 1 to 12 digits."), {}, &m_window);
            return;
        }
        if (printProblem.isEmpty())
            m_finished = ExitStatus::Printed;
    }
    void pressCancel() override { m_finished = ExitStatus::Cancelled; }
    bool isPrinting() const override { return false; }
    std::optional<ExitStatus> finished() const override { return m_finished; }
    QString lastPrintProblem() const override
    {
        return printPresses > 0 ? printProblem : QString();
    }
    ExitStatus lastPrintStatus() const override { return ExitStatus::NotOffered; }
    const PrintSession &sessionForReading() override { return session; }
    QString jobInWords() override { return QStringLiteral("Passcode: 4711"); }
    std::optional<QString> secret(const QString &name) const override
    {
        return name == QLatin1String("pin") ? std::optional<QString>(QStringLiteral("4711"))
                                            : std::nullopt;
    }
    TicketFile withSecretsMasked(TicketFile file) const override
    {
        const auto found = file.printSettings.entries.find(QStringLiteral("Code"));
        if (found != file.printSettings.entries.end())
            found->second.value = kMask;
        return file;
    }
    QStringList secretValues() override { return {QStringLiteral("4711")}; }

    PrintSession session;
    PopupButton *popup;
    QLineEdit *field;
    QCheckBox *box;
    // What a signal does, or a dialog that cannot be begun.
    void close(ExitStatus status) { m_finished = status; }

    bool idle = true;
    bool isBare = false;   // what it shows is still to be drawn
    mutable int looks = 0; // of the runner, whether it may go on
    int printPresses = 0;
    bool noticeAtPrint = false;
    QString printProblem;
    int modalResult = 0;

private:
    QWidget m_window;
    std::optional<ExitStatus> m_finished;
};

ExitStatus run(FakeDialog &dialog, const QByteArray &script, bool printAtEnd = false)
{
    auto lines = parseScript(script, QStringLiteral("t.kps"));
    if (!lines) {
        qWarning("%s", qPrintable(lines.error().text()));
        return ExitStatus::WrongUsage;
    }
    ScriptRunner runner(dialog, lines.value(), {QStringLiteral("t.kps"), printAtEnd, 300});
    ExitStatus status = ExitStatus::Failed;
    QEventLoop loop;
    bool ended = false;
    QObject::connect(&runner, &ScriptRunner::ended, &loop, [&](ExitStatus s) {
        status = s;
        ended = true;
        // What still stands in front would wait for a user for ever.
        while (frontNotice().isShown())
            answerNotice(1);
        if (QWidget *modal = frontWindow())
            modal->close();
        loop.quit();
    });
    QTimer::singleShot(20000, &loop, &QEventLoop::quit);
    runner.start();
    loop.exec();
    if (!ended)
        qWarning("the script did not end");
    QCoreApplication::processEvents();
    return status;
}

} // namespace

class TestScriptRunner : public QObject
{
    Q_OBJECT

private slots:
    void endsWithTheStatusThatTheLineDeserves_data();
    void endsWithTheStatusThatTheLineDeserves();
    void worksInsideAModalDialogWhileItsOpenerWaits();
    void typesASecretThatNothingRepeats();
    void masksByPlace_data();
    void masksByPlace();
    void saysWhatWouldHaveWorked_data();
    void saysWhatWouldHaveWorked();
    void printsAtTheEndWhenAsked();
    void leavesTheProcessorAloneWhileItWaits();
    void endsWithADialogThatOthersClose_data();
    void endsWithADialogThatOthersClose();
};

void TestScriptRunner::endsWithTheStatusThatTheLineDeserves_data()
{
    const Table<QByteArray, int, bool, QString> table{"script", "status", "noticeAtPrint",
                                                      "printProblem"};

    const auto row = [&](const char *name, const char *script, ExitStatus status,
                         bool notice = false, const char *problem = "") {
        table(name, script, static_cast<int>(status), notice, problem);
    };
    row("nothing printed is fine", "tab 4\nchoose @bannerSheet key True\nexpect KPDE 614 value 1",
        ExitStatus::Printed);
    row("printed", "choose KPDE 614 0\nprint", ExitStatus::Printed);
    row("cancelled as the script says", "cancel", ExitStatus::Printed);
    row("nothing can follow a print", "print\ntab 4", ExitStatus::WrongUsage);
    row("the button prints as the line does", "click @print", ExitStatus::Printed);
    row("its refusal ends the run", "click @print\ntab 4", ExitStatus::NotOffered, false,
        "A conflict.");
    row("also at the end", "tab 4\nclick @print", ExitStatus::NotOffered, false, "A conflict.");
    row("no such tab", "tab 5", ExitStatus::WrongUsage);
    row("no such control", "click @aboutButon", ExitStatus::WrongUsage);
    row("item not offered", "choose @bannerSheet key Maybe", ExitStatus::NotOffered);
    row("value of two rows", "choose @bannerSheet 1", ExitStatus::WrongUsage);
    row("disabled control", "check @collate on", ExitStatus::NotOffered);
    row("control of another kind", "check @bannerSheet on", ExitStatus::WrongUsage);
    row("command that nobody takes", "command 'zzzz'", ExitStatus::NotOffered);
    row("keys pick from a list",
        "key \"Shift+Tab\"\nkey \"Alt+Down\"\nkey \"Down\"\nkey \"Return\"\n"
        "expect KPDE 614 value 1",
        ExitStatus::Printed);
    row("keys close a menu", "key \"Space\"\nkey \"Escape\"\nclick @print", ExitStatus::Printed);
    row("key that nobody takes", "key \"Ctrl+P\"", ExitStatus::NotOffered);
    row("key of a disabled button", "key \"Alt+O\"", ExitStatus::NotOffered);
    row("command that closes its dialog", "click @setup\ncommand 'not!'", ExitStatus::Printed);
    row("expectation not met", "expect @bannerSheet value 7", ExitStatus::WrongUsage);
    row("expectation of a disabled control", "expect @collate enabled false", ExitStatus::Printed);
    row("ticket without the key",
        "expect-ticket com.kelvo.print.X absent\nexpect-choice Jog absent", ExitStatus::Printed);
    row("ticket should have the key", "expect-ticket com.kelvo.print.X 1", ExitStatus::WrongUsage);
    row("no notice to answer", "answer 1", ExitStatus::WrongUsage);
    row("notice met and answered", "print\nexpect-notice \"1 to 12 digits\"\nanswer 1",
        ExitStatus::Printed, true);
    row("notice of another text", "print\nexpect-notice \"paper\"", ExitStatus::WrongUsage, true);
    row("notice without such a button", "print\nexpect-notice \"digits\"\nanswer 2",
        ExitStatus::WrongUsage, true);
    row("notice not met", "print\ntab 4", ExitStatus::Failed, true);
    row("notice at the end", "print", ExitStatus::Failed, true);
    row("print that did not go out", "print", ExitStatus::NotOffered, false,
        "settings in conflict");
    row("modal dialog left open", "click @setup", ExitStatus::WrongUsage);
    row("panels that read behind a modal dialog", "click @setup\nsync read\nclick @okButton",
        ExitStatus::WrongUsage);
    row("another tab behind a modal dialog", "click @setup\ntab 4\nclick @okButton",
        ExitStatus::WrongUsage);
    row("the window's name", "expect-window @printDialog\nexpect-window \"Print\"",
        ExitStatus::Printed);
    row("no secret of that name", "type @passcode secret pi", ExitStatus::WrongUsage);
    row("picture into a folder that is not there", "screenshot \"no/such/folder.png\"",
        ExitStatus::Failed);
}

void TestScriptRunner::endsWithTheStatusThatTheLineDeserves()
{
    QFETCH(QByteArray, script);
    QFETCH(bool, noticeAtPrint);
    QFETCH(QString, printProblem);
    FakeDialog dialog;
    dialog.noticeAtPrint = noticeAtPrint;
    dialog.printProblem = printProblem;

    QTEST(static_cast<int>(run(dialog, script)), "status");
}

void TestScriptRunner::worksInsideAModalDialogWhileItsOpenerWaits()
{
    FakeDialog dialog;

    const ExitStatus status =
        run(dialog,
            "click @setup\nexpect-window \"Secure print\"\n"
            "type @confirmPasscode \"12\"\nexpect @confirmPasscode text \"12\"\n"
            "cancel\nexpect-window \"Print\"");

    QCOMPARE(static_cast<int>(status), 0);
    QCOMPARE(dialog.modalResult, static_cast<int>(DialogResult::Cancel));
}

void TestScriptRunner::typesASecretThatNothingRepeats()
{
    FakeDialog dialog;
    QTemporaryFile out;
    QVERIFY(out.open());
    std::fflush(stdout);
    const int kept = dup(1);
    dup2(out.handle(), 1);

    const ExitStatus status =
        run(dialog,
            "type @passcode secret pin\nexpect @passcode text \"••••\"\nshow @passcode\nsummary");

    std::fflush(stdout);
    dup2(kept, 1);
    close(kept);
    QCOMPARE(static_cast<int>(status), 0);
    QCOMPARE(dialog.field->text(), QStringLiteral("4711"));
    out.seek(0);
    const QByteArray said = out.readAll();
    QVERIFY(said.contains("Passcode: "));
    QVERIFY(!said.contains("4711"));
}

// A passcode of one digit is also a line, a value and a part of every number.
void TestScriptRunner::masksByPlace_data()
{
    const Table<QByteArray, QString> row{"script", "said"};
    row("a field, in the message about it", "type @passcode \"1\"\nexpect @passcode text \"1\"",
        "t.kps:2: text of @passcode is “••••”; of a secret only “••••” or “” is told\n");
    row("an empty field", "expect @passcode text \"••••\"",
        "t.kps:1: text of @passcode is “”; of a secret only "
        "“••••” or “” is told\n");
    row("an entry, and what was expected of it", "expect-ticket Code \"12\"",
        "t.kps:1: Code is “••••”, not what this line says; a secret is not told\n");
    row("another entry", "expect-ticket Size 12", "t.kps:1: Size is “4711”, not “12”\n");
    row("a value and its line", QByteArray(4710, '\n') + QByteArray("expect KPDE 614 value 4711"),
        "t.kps:4711: value of KPDE 614 is “0”, not “4711”\n");
    row("the words of a problem", "print", "t.kps:1: ••••: 1 of 4711x was not taken\n");
}

void TestScriptRunner::masksByPlace()
{
    QFETCH(QByteArray, script);
    FakeDialog dialog;
    dialog.printProblem = QStringLiteral("4711: 1 of 4711x was not taken");
    auto &entries = dialog.session.printSettings().entries;
    entries[QStringLiteral("Code")].value = QStringLiteral("1");
    entries[QStringLiteral("Size")].value = 4711;

    const StandardError written;
    run(dialog, script);
    QTEST(QString::fromUtf8(written.text()), "said");
}

void TestScriptRunner::saysWhatWouldHaveWorked_data()
{
    const Table<QByteArray, QString> table{"line", "said"};
    const auto row = [&](const char *line, const char *said) { table(line, line, said); };
    row("item @bannerSheet 'Stp1'",
        "@bannerSheet has no item with the command 'Stp1'; it has 'Bnr1' \"Banner\" …");
    row("item @bannerSheet 'Bnr1'",
        "several items of @bannerSheet carry 'Bnr1'; name one of them by key, text or row: "
        "\"Banner\", \"Twin\"");
    row("item @bannerSheet 'Bnr1' 7",
        "@bannerSheet has no item 7; it has 1 \"Banner\", 1 \"Twin\"");
    row("choose @bannerSheet 1",
        "several items of @bannerSheet carry 1; name one of them by key, text or row: \"Banner\", "
        "\"Twin\"");
    row("choose @bannerSheet 7",
        "@bannerSheet has no item 7; it has 0 \"No banner\", 1 \"Banner\", 1 \"Twin\", 9 \"Gone\"");
    row("choose @bannerSheet text \"Bannr\"",
        "@bannerSheet has no item \"Bannr\", the nearest is Banner");
    row("click @presetMenu", "@presetMenu is a MenuButton and cannot be clicked; use item, choose");
    row("drag @presetMenu 0 0",
        "@presetMenu is a MenuButton and cannot be dragged; use item, choose");
    for (const char *menu : {"key \"Space\"", "key \"Space\"\nclick @print"})
        row(menu,
            "a menu or list is open; only “key” lines pick from it or close it, “item” and "
            "“choose” pick while it is closed");
    row("key \"Ctrl+P\"",
        "nothing in the window “Print” takes the key “Ctrl+P”; the focus is on @presetMenu; "
        "“click” and “type” name their control and need no focus");
    row("key \"Alt+O\"",
        "nothing in the window “Print” takes the key “Alt+O”; @collate is disabled; “click” "
        "and “type” name their control and need no focus");
    row("command 'zzzz'",
        "nothing in the window “Print” takes the command 'zzzz'; “controls” lists the commands "
        "of its buttons, and those of menus, which “item” picks");
    row("expect @passcode value 4711",
        "@passcode: it has no value; it has text, enabled, visible, focus");
    for (const char *name : {"@bannerShee", "@bannersheet", "@banerSheet"})
        row(qPrintable(QStringLiteral("choose %1 1").arg(QLatin1String(name))),
            qPrintable(QStringLiteral("%1 is not in the window, did you mean @bannerSheet?")
                           .arg(QLatin1String(name))));
    row("click @qqqqqqqqqqqqqqqqqqqq",
        "@qqqqqqqqqqqqqqqqqqqq is not in the window; “controls” lists what is");
}

void TestScriptRunner::saysWhatWouldHaveWorked()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, said);
    FakeDialog dialog;
    const StandardError written;
    run(dialog, line);
    QCOMPARE(QString::fromUtf8(written.text()), QStringLiteral("t.kps:1: %1\n").arg(said));
}

void TestScriptRunner::printsAtTheEndWhenAsked()
{
    FakeDialog dialog;

    QCOMPARE(static_cast<int>(run(dialog, "tab 4", true)), 0);
    QCOMPARE(static_cast<int>(*dialog.finished()), static_cast<int>(ExitStatus::Printed));

    FakeDialog cancelled;
    QCOMPARE(static_cast<int>(run(cancelled, "cancel", true)), 0);
    QCOMPARE(cancelled.printPresses, 0);
}

void TestScriptRunner::leavesTheProcessorAloneWhileItWaits()
{
    FakeDialog dialog;
    dialog.idle = false;
    dialog.isBare = true;
    QTimer::singleShot(400, dialog.window(), [&] { dialog.idle = true; });

    QCOMPARE(static_cast<int>(run(dialog, "expect KPDE 614 enabled true\ntab 4")), 0);
    QVERIFY(!dialog.isBare);

    // As often as something happens: the window is shown, the menu's button gets the focus.
    QVERIFY2(dialog.looks < 30, qPrintable(QString::number(dialog.looks)));
}

void TestScriptRunner::endsWithADialogThatOthersClose_data()
{
    const Table<int, bool, bool> table{"status", "idle", "printAtEnd"};

    const auto row = [&](const char *name, ExitStatus status, bool idle, bool printAtEnd) {
        table(name, static_cast<int>(status), idle, printAtEnd);
    };
    row("interrupted between lines", ExitStatus::Cancelled, true, false);
    row("interrupted while it waits", ExitStatus::Cancelled, false, false);
    row("interrupted before it prints", ExitStatus::Cancelled, false, true);
    row("settings refused", ExitStatus::NotOffered, false, false);
}

void TestScriptRunner::endsWithADialogThatOthersClose()
{
    QFETCH(int, status);
    QFETCH(bool, idle);
    QFETCH(bool, printAtEnd);
    FakeDialog dialog;
    dialog.idle = idle;
    QTimer::singleShot(0, dialog.window(), [&] { dialog.close(static_cast<ExitStatus>(status)); });

    QCOMPARE(static_cast<int>(run(dialog, printAtEnd ? "# prints" : "tab 4\ntab 4", printAtEnd)),
             status);
    QCOMPARE(dialog.printPresses, 0);
}

QTEST_MAIN(TestScriptRunner)
#include "test_script_runner.moc"
