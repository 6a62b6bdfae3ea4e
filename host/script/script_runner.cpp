#include "script_runner.h"

#include "audience.h"
#include "file_store.h"
#include "inspector.h"
#include "mnemonics.h"
#include "modal_dialog.h"
#include "nearest_name.h"
#include "notice.h"
#include "secret_mask.h"
#include "secrets.h"
#include "terminal.h"
#include "texts.h"
#include "ticket_path.h"
#include "values.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QBuffer>
#include <QDialog>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include <cstdio>

namespace kelvo {

namespace {

using inspector::Failure;

// How long a line waits for a file chooser to close and for the rows of a list, and a picture for a
// page of the document, which can be endless.
constexpr int contentWaitMs = 5000;

struct LineProblem
{
    ExitStatus status;
    QString text;
};
using LineDone = std::optional<LineProblem>;

LineProblem wrong(const QString &text)
{
    return {ExitStatus::WrongUsage, text};
}

LineDone lineProblem(const inspector::Done &done)
{
    if (!done)
        return {};
    return LineProblem{done->failure == Failure::NotOffered ? ExitStatus::NotOffered
                                                            : ExitStatus::WrongUsage,
                       done->text};
}

// Qt's own dialogs, such as those for files and colors, know no commands.
void cancelDialog(QWidget *modal)
{
    auto *dialog = qobject_cast<QDialog *>(modal);
    if (sendCommand(modal, kCommandCancel) == eventNotHandledErr && dialog)
        dialog->reject();
}

// "1 Delete, 2 Cancel": what `answer` takes.
QString answersOf(const ShownNotice &notice)
{
    QStringList answers;
    for (const QString &button : notice.buttons)
        answers << QStringLiteral("%1 %2").arg(answers.size() + 1).arg(withoutMnemonic(button));
    return answers.join(QStringLiteral(", "));
}

// Two notices that say the same are one.
QString identityOf(const ShownNotice &notice)
{
    return notice.header + u'\n' + notice.message;
}

QString wordsOf(const ShownNotice &notice)
{
    const QString words = notice.message.isEmpty()
        ? notice.header
        : translate("Script", "%1: %2", "a notice's header and message")
              .arg(notice.header, notice.message);
    return words.simplified();
}

// A wait that has an end. When it comes, the event loop wakes up.
class Patience
{
public:
    Patience() { m_timer.setSingleShot(true); }

    // A second call does nothing.
    void begin(int ms)
    {
        if (!std::exchange(m_isBegun, true))
            m_timer.start(ms);
    }
    void end()
    {
        m_isBegun = false;
        m_timer.stop();
    }
    bool isBegun() const { return m_isBegun; }
    bool isOver() const { return m_isBegun && !m_timer.isActive(); }

private:
    QTimer m_timer;
    bool m_isBegun = false;
};

} // namespace

struct ScriptRunner::Private
{
    Private(ScriptTarget &drivenTarget, std::vector<ScriptLine> linesToRun, Options runOptions,
            ScriptRunner *runner)
        : target(drivenTarget)
        , lines(std::move(linesToRun))
        , options(std::move(runOptions))
        , q(runner)
    {
    }

    ScriptTarget &target;
    std::vector<ScriptLine> lines;
    Options options;
    ScriptRunner *q;
    QTimer tick;
    bool isWaiting = false; // lookAgain() goes on
    Patience contentWait;
    Patience popupWait;
    bool hasClosedPopup = false;         // and the run ends with that
    std::vector<std::size_t> performing; // lines, each in a loop that the one before it runs
    QPointer<QWidget> answeredChooser;   // closes once the event loop runs
    std::size_t next = 0;
    QString metNotice;       // header and message of the notice that a line has met
    int printedBy = 0;       // line of the print that is on its way, 0 for none
    bool printAsked = false; // some line asked for it, or --print
    bool closedByLine = false;
    bool hasEnded = false;

    void step();
    void lookAgain();
    bool mustWaitForDialog() const;
    bool mustWaitForContent() const;
    bool isLookedAtUnfinished(const ScriptLine &line) const;
    void run(const ScriptLine &line);
    LineDone perform(const ScriptLine &line);
    LineDone withControl(const ScriptLine &line);
    LineDone noted(const QPointer<QWidget> &control, const inspector::Done &done);
    LineDone expect(const ScriptLine &line, QWidget *control);
    LineDone expectTicket(const ScriptLine &line);
    LineDone screenshot(const QString &file);
    bool isKeyForPopup() const;
    bool isPopupOfUser() const;
    bool isOpenerUnderWay() const;
    void timePopup();
    void closePopups();
    void failForPopup();
    bool isNoticeMet() const;
    bool checkNotice();
    bool checkPrint();
    void finish();
    bool hasScript() const { return !options.file.isEmpty(); }
    LineProblem unasked(const QString &question) const;
    void fail(int line, const LineProblem &problem);
    void end(ExitStatus status);
    QWidget *openDialog() const; // the modal dialog or notice in front; null for none
    QWidget *front() const;
    QWidget *withKeyboard() const;
    QString masked(const QString &text) const { return maskedText(text, target.secretValues()); }
};

ScriptRunner::ScriptRunner(ScriptTarget &target, std::vector<ScriptLine> lines, Options options,
                           QObject *parent)
    : QObject(parent)
    , d(new Private(target, std::move(lines), std::move(options), this))
{
    // Ticks come from whatever event loop runs: also from that of a modal dialog
    // which an earlier line has opened and is still waiting for.
    d->tick.setSingleShot(true);
    connect(&d->tick, &QTimer::timeout, this, [this] { d->step(); });
    // Whatever a line waits for comes through the event loop: by an event, a timer, or an answer
    // from a thread. So nobody has to tell, nothing can be forgotten, and the processor is left
    // alone while there is nothing new.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            [this] { d->lookAgain(); });
}

ScriptRunner::~ScriptRunner() = default;

void ScriptRunner::start()
{
    d->tick.start(0);
}

QWidget *ScriptRunner::Private::openDialog() const
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    QWidget *dialog = frontWindow();
    return dialog == target.window() ? nullptr : dialog;
}

QWidget *ScriptRunner::Private::front() const
{
    QWidget *dialog = openDialog();
    return dialog ? dialog : target.window();
}

// The front window, but for the help: it stands before a window and takes nothing from it,
// and has the keyboard until it is closed or something is done in the window.
QWidget *ScriptRunner::Private::withKeyboard() const
{
    QWidget *window = front();
    QWidget *active = lastActivated();
    const bool isBefore = active && active->isVisible() && active->parentWidget() == window;
    return isBefore ? active : window;
}

// A line is run by a timer, as by any event: in here it could open a dialog, or delete what the
// event loop is about to use.
void ScriptRunner::Private::lookAgain()
{
    timePopup();
    if (contentWait.isBegun())
        target.drawPutOff(); // another one, where the wait has brought one
    if (!isWaiting || mustWaitForDialog()
        || (contentWait.isBegun() && isNoticeMet() && mustWaitForContent()))
        return;
    isWaiting = false;
    tick.start(0);
}

bool ScriptRunner::Private::mustWaitForDialog() const
{
    if (hasClosedPopup)
        return isOpenerUnderWay() && !popupWait.isOver();
    const std::optional<ExitStatus> closed = target.finished();
    if (closed && *closed != ExitStatus::Printed && !closedByLine)
        return false;
    if (QApplication::activePopupWidget() && !isKeyForPopup())
        return isPopupOfUser() && !popupWait.isOver();
    // A closed dialog may have been in the middle of something, and stay so. The button of an
    // open menu stays down.
    return !closed && !isKeyForPopup()
        && (!target.isIdle() || (target.isPrinting() && !frontNotice().isShown()));
}

// For what the next line needs.
bool ScriptRunner::Private::mustWaitForContent() const
{
    if (next == lines.size() || target.finished() || contentWait.isOver())
        return false;
    const bool isClosing = answeredChooser && answeredChooser->isVisible();
    return isClosing || inspector::isAwaited(front()) || isLookedAtUnfinished(lines[next]);
}

// Whether `line` looks at something that is still being drawn.
bool ScriptRunner::Private::isLookedAtUnfinished(const ScriptLine &line) const
{
    switch (line.command) {
    case ScriptCommand::Screenshot:
        return target.isDrawing(front()) || inspector::isUnfinished(front());
    case ScriptCommand::Controls:
        return target.isDrawing(front());
    case ScriptCommand::Expect:
    case ScriptCommand::Show:
        return target.isDrawing(front())
            && target.isDrawing(inspector::find(front(), *line.control).control);
    default:
        return false;
    }
}

void ScriptRunner::Private::step()
{
    if (hasEnded)
        return;
    timePopup();
    if (mustWaitForDialog()) {
        isWaiting = true;
        return;
    }
    if (hasClosedPopup) {
        failForPopup();
        return;
    }
    const std::optional<ExitStatus> closed = target.finished();
    if (closed && *closed != ExitStatus::Printed && !closedByLine) {
        end(*closed); // by a signal, by the user, or because nothing could be begun
        return;
    }
    if (QApplication::activePopupWidget() && !isKeyForPopup()) {
        closePopups();
        return;
    }
    if (!checkNotice() || !checkPrint())
        return;
    if (next == lines.size()) {
        finish();
        return;
    }
    if (target.finished()) {
        fail(lines[next].number,
             wrong(translate("Script", "the dialog is closed; nothing can be done after that")));
        return;
    }
    if (mustWaitForContent()) {
        contentWait.begin(contentWaitMs);
        target.drawPutOff();
        isWaiting = true;
        return;
    }
    contentWait.end();
    answeredChooser.clear();
    run(lines[next++]);
}

void ScriptRunner::Private::run(const ScriptLine &line)
{
    // The next tick is set before the line runs: a line that opens a modal dialog
    // comes back only when that is closed, and the lines in between close it.
    tick.start(0);
    const bool wasOpen = !target.finished();
    performing.push_back(next);
    const LineDone problem = perform(line);
    performing.pop_back();
    if (wasOpen && target.finished())
        closedByLine = true;
    if (problem && !hasEnded)
        fail(line.number, *problem);
}

// Whether the next line is a key for the menu or list that the line before has opened, or whoever
// runs the script is to find it open.
bool ScriptRunner::Private::isKeyForPopup() const
{
    if (!QApplication::activePopupWidget() || next == 0
        || lines[next - 1].command != ScriptCommand::Key)
        return false;
    return next < lines.size() ? lines[next].command == ScriptCommand::Key
                               : options.leavesDialogsOpen;
}

// Whether a menu or list is open that no key has opened. One of a key is for keys: other lines
// cannot reach past it, and without a user it would stay open for ever.
bool ScriptRunner::Private::isPopupOfUser() const
{
    return QApplication::activePopupWidget() && !isKeyForPopup()
        && (next == 0 || lines[next - 1].command != ScriptCommand::Key);
}

void ScriptRunner::Private::timePopup()
{
    if (hasClosedPopup)
        return;
    if (isPopupOfUser())
        popupWait.begin(options.timeoutMs);
    else
        popupWait.end();
}

void ScriptRunner::Private::closePopups()
{
    while (QWidget *popup = QApplication::activePopupWidget()) {
        if (!popup->close())
            break;
    }
    hasClosedPopup = true;
    popupWait.end();
    popupWait.begin(options.timeoutMs);
    tick.start(0);
}

// The line that opened a menu is in the menu's own loop, and what it stands on must not go before
// it has come back.
bool ScriptRunner::Private::isOpenerUnderWay() const
{
    return !performing.empty() && performing.back() == next;
}

void ScriptRunner::Private::failForPopup()
{
    fail(lines.empty()   ? 0
             : next == 0 ? lines.front().number
                         : lines[next - 1].number,
         wrong(translate("Script",
                         "a menu or list is open; only “key” lines pick from it or close it, "
                         "“item” and “choose” pick while it is closed")));
}

// Whether no notice is in front but the one that a line has met.
bool ScriptRunner::Private::isNoticeMet() const
{
    const ShownNotice notice = frontNotice();
    return !notice.isShown() || identityOf(notice) == metNotice;
}

// A notice must be met by the line after the one that brought it up.
bool ScriptRunner::Private::checkNotice()
{
    const ShownNotice notice = frontNotice();
    if (!notice.isShown()) {
        metNotice.clear();
        return true;
    }
    if (isNoticeMet())
        return true;
    const int at = next == 0 ? 0 : lines[next - 1].number;
    if (next < lines.size() && (effectsOf(lines[next].command) & ScriptEffect::MeetsNotice)) {
        metNotice = identityOf(notice);
        return true;
    }
    fail(at,
         hasScript() ? LineProblem{ExitStatus::Failed,
                                   translate("Script",
                                             "a notice came up: %1 (answers: %2); expect or "
                                             "answer it in the next line")
                                       .arg(masked(wordsOf(notice)), answersOf(notice))}
                     : unasked(masked(wordsOf(notice))));
    return false;
}

// Nobody is there to answer. What a panel asks at Print, the settings lack, and those of a
// run without a script come from a ticket or a preset.
LineProblem ScriptRunner::Private::unasked(const QString &question) const
{
    return {printAsked ? ExitStatus::InvalidTicket : ExitStatus::Failed,
            translate("Script",
                      "nothing was sent. %1 Set it in the window (leave out --no-window), or "
                      "with --script FILE, which takes what is secret from --secret "
                      "NAME=FILE.")
                .arg(question)};
}

// What became of the print that a line asked for: `print`, but also a click on
// the button, keys, or a control that prints by itself.
bool ScriptRunner::Private::checkPrint()
{
    if (frontNotice().isShown())
        return true;
    const int pressed = std::exchange(printedBy, 0);
    const int line = pressed != 0 || next == 0 ? pressed : lines[next - 1].number;
    if (target.finished())
        return true;
    const QString problem = target.lastPrintProblem();
    if (problem.isEmpty())
        return true; // a notice or a set-up dialog took the press, and lines dealt with it
    fail(line, {target.lastPrintStatus(), masked(problem)});
    return false;
}

void ScriptRunner::Private::finish()
{
    if (options.leavesDialogsOpen) {
        end(ExitStatus::Printed);
        return;
    }
    if (const QWidget *modal = openDialog(); modal && !target.finished()) {
        fail(lines.empty() ? 0 : lines.back().number,
             hasScript()
                 ? wrong(translate("Script", "the script ends while the dialog “%1” is open")
                             .arg(modal->windowTitle()))
                 : unasked(translate("Script", "The dialog “%1” asks for more.")
                               .arg(modal->windowTitle())));
        return;
    }
    if (target.finished()) {
        // A line closed it, and cancelling is what that line was for.
        const bool isCancelled = *target.finished() == ExitStatus::Cancelled;
        end(isCancelled ? ExitStatus::Printed : *target.finished());
        return;
    }
    if (options.printAtEnd && !printAsked) {
        printAsked = true;
        printedBy = lines.empty() ? 1 : lines.back().number;
        tick.start(0);
        target.pressPrint();
        return;
    }
    printLine(stderr,
              translate("Script",
                        "%1: the script has ended without printing; nothing was sent. "
                        "Add `print`, or --print to the command line, to print.")
                  .arg(options.file));
    end(ExitStatus::Printed);
}

void ScriptRunner::Private::fail(int line, const LineProblem &problem)
{
    // Without a script it is the program itself that prints.
    const QString place = !hasScript() ? QStringLiteral("kelvo-print")
        : lines.empty()                ? options.file
                                       : QStringLiteral("%1:%2").arg(options.file).arg(line);
    printLine(stderr, QStringLiteral("%1: %2").arg(place, problem.text));
    end(problem.status);
}

void ScriptRunner::Private::end(ExitStatus status)
{
    hasEnded = true;
    isWaiting = false;
    tick.stop();
    emit q->ended(status);
}

LineDone ScriptRunner::Private::perform(const ScriptLine &line)
{
    const auto word = [&line](std::size_t at) {
        return at < line.arguments.size() ? line.arguments[at].text : QString();
    };
    const auto done = [](const Result<void> &result) -> LineDone {
        if (result)
            return {};
        const Error &error = result.error();
        const ExitStatus status = error.code == Error::Code::Unreachable ? ExitStatus::NoDestination
            : error.code == Error::Code::Refused                         ? ExitStatus::NotOffered
                                                                         : ExitStatus::WrongUsage;
        return LineProblem{status, error.text()};
    };
    const ScriptEffects effects = effectsOf(line.command);
    if ((effects & ScriptEffect::BehindDialogs) && openDialog())
        return wrong(translate("Script", "the dialog “%1” is open and must be closed first")
                         .arg(front()->windowTitle()));
    if ((effects & ScriptEffect::InFront) && withKeyboard() != front())
        activate(front());
    switch (line.command) {
    case ScriptCommand::Panel:
        return done(target.showPanel(word(0)));
    case ScriptCommand::Tab:
        return done(target.showTab(word(0).toInt()));
    case ScriptCommand::Key:
        return lineProblem(inspector::pressKey(withKeyboard(), word(0)));
    case ScriptCommand::File:
        answeredChooser = front();
        return lineProblem(inspector::answerFileChooser(front(), word(0)));
    case ScriptCommand::Command:
        return lineProblem(inspector::command(front(), *line.code));
    case ScriptCommand::Answer: {
        const ShownNotice notice = frontNotice();
        if (!notice.isShown())
            return wrong(translate("Script", "no notice is shown"));
        if (!answerNotice(word(0).toInt()))
            return wrong(translate("Script", "the notice has no button %1; it has %2")
                             .arg(word(0), answersOf(notice)));
        return {};
    }
    case ScriptCommand::Print:
        printAsked = true;
        printedBy = line.number;
        target.pressPrint();
        return {};
    case ScriptCommand::Cancel:
        if (QWidget *modal = openDialog())
            cancelDialog(modal);
        else {
            target.pressCancel();
        }
        return {};
    case ScriptCommand::Sync:
        target.sync(word(0) == QLatin1String("read") ? kSyncRead : kSyncWrite);
        return {};
    case ScriptCommand::ExpectTicket:
    case ScriptCommand::ExpectChoice:
        return expectTicket(line);
    case ScriptCommand::ExpectNotice: {
        const ShownNotice notice = frontNotice();
        if (!notice.isShown())
            return wrong(translate("Script", "no notice is shown"));
        if (!(notice.header + u'\n' + notice.message).contains(word(0)))
            return wrong(translate("Script", "the notice says: %1").arg(masked(wordsOf(notice))));
        return {};
    }
    case ScriptCommand::ExpectWindow: {
        const QWidget *window = front();
        const bool byName = !line.arguments[0].quoted && word(0).startsWith(u'@');
        const QString have = byName ? u'@' + window->objectName() : window->windowTitle();
        if (have != word(0))
            return wrong(translate("Script", "the front window is “%1” (@%2)")
                             .arg(window->windowTitle(), window->objectName()));
        return {};
    }
    case ScriptCommand::Controls:
        printJson(stdout,
                  QJsonDocument(
                      maskedControls(inspector::describeControls(front()), target.secretValues())
                          .toArray()));
        return {};
    case ScriptCommand::Summary:
        printLines(stdout, masked(target.jobInWords()));
        return {};
    case ScriptCommand::Screenshot:
        return screenshot(word(0));
    default:
        return withControl(line);
    }
}

LineDone ScriptRunner::Private::noted(const QPointer<QWidget> &control, const inspector::Done &done)
{
    if (!done && control)
        target.noteSet(control);
    return lineProblem(done);
}

LineDone ScriptRunner::Private::withControl(const ScriptLine &line)
{
    QWidget *window = front();
    const inspector::Found found = inspector::find(window, *line.control);
    if (!found.control) {
        const QString name = line.control->text();
        const QString problem = window == target.window()
            ? translate("Script", "%1 is not in the window").arg(name)
            : translate("Script", "%1 is not in the dialog “%2”").arg(name, window->windowTitle());
        if (const QString place = target.placeOfUnshown(*line.control); !place.isEmpty())
            return LineProblem{ExitStatus::NotOffered, joined({problem, place})};
        const QString nearest = inspector::nearestControl(window, *line.control);
        return wrong(nearest.isEmpty()
                         ? translate("Script", "%1; “controls” lists what is").arg(problem)
                         : didYouMean(problem, name, {nearest}));
    }
    QWidget *control = found.control;
    const auto word = [&line](std::size_t at) { return line.arguments[at].text; };
    switch (line.command) {
    case ScriptCommand::Expect:
        return expect(line, control);
    case ScriptCommand::ExpectItem:
        return lineProblem(inspector::expectItem(control, *line.code, line.item, word(0)));
    case ScriptCommand::Show:
        printJson(
            stdout,
            QJsonDocument(
                maskedControls(inspector::describe(control), target.secretValues()).toObject()));
        return {};
    default:
        break;
    }

    if (!found.shown) {
        return LineProblem{ExitStatus::NotOffered,
                           joined({translate("Script", "%1 is not shown").arg(line.control->text()),
                                   target.placeOf(control)})};
    }
    switch (line.command) {
    case ScriptCommand::Choose:
        return lineProblem(inspector::choose(control, *line.item));
    case ScriptCommand::Item:
        return lineProblem(inspector::chooseCommand(control, *line.code, line.item));
    case ScriptCommand::Click:
        return lineProblem(inspector::click(control));
    case ScriptCommand::Check:
        return noted(control, inspector::check(control, word(0) == QLatin1String("on")));
    case ScriptCommand::Type: {
        if (line.arguments.size() < 2)
            return lineProblem(inspector::type(control, word(0)));
        const auto secret = target.secret(word(1));
        if (!secret)
            return wrong(
                translate("Script", "there is no secret “%1”; give --secret %1=FILE").arg(word(1)));
        return lineProblem(inspector::typeSecret(control, *secret));
    }
    case ScriptCommand::Set:
        return noted(control, inspector::set(control, word(0).toInt()));
    case ScriptCommand::Time: {
        const QTime withSeconds = QTime::fromString(word(0), QStringLiteral("H:mm:ss"));
        return lineProblem(inspector::setTime(
            control,
            withSeconds.isValid() ? withSeconds
                                  : QTime::fromString(word(0), QStringLiteral("H:mm"))));
    }
    case ScriptCommand::Select: {
        std::vector<int> rows;
        for (const QString &row : word(0).split(u','))
            rows.push_back(row.toInt());
        return lineProblem(inspector::select(control, rows));
    }
    case ScriptCommand::DoubleClick:
        return lineProblem(inspector::doubleClick(control, word(0).toInt()));
    case ScriptCommand::Drag:
        return lineProblem(inspector::drag(control, word(0).toDouble(), word(1).toDouble()));
    default:
        return wrong(translate("Script", "this command takes no control"));
    }
}

LineDone ScriptRunner::Private::expect(const ScriptLine &line, QWidget *control)
{
    QString name = line.arguments[0].text;
    if (name == QLatin1String("cell"))
        name += QStringLiteral(" %1 %2").arg(line.arguments[1].text, line.arguments[2].text);
    const Result<QString> have = inspector::property(control, name);
    if (!have)
        return wrong(QStringLiteral("%1: %2").arg(line.control->text(), have.error().detail));
    QString wanted = line.arguments.back().text;
    if (name == QLatin1String("value") && !line.arguments.back().quoted
        && wanted == QLatin1String("unset"))
        wanted = QString::number(std::numeric_limits<std::int32_t>::min());
    if (have.value() == wanted)
        return {};
    if (name == QLatin1String("items"))
        return wrong(translate("Script", "%1 has %2 items, not %3")
                         .arg(line.control->text(), have.value(), wanted));
    const bool isText = name == QLatin1String("text") || name.startsWith(QLatin1String("cell "));
    if (isText && inspector::isSecret(control) && !wanted.isEmpty())
        return wrong(translate("Script", "%1 of %2 is “%3”; of a secret only “%4” or “” is told")
                         .arg(name, line.control->text(), have.value(), kMask));
    return wrong(translate("Script", "%1 of %2 is “%3”, not “%4”")
                     .arg(name, line.control->text(), isText ? masked(have.value()) : have.value(),
                          isText ? masked(wanted) : wanted));
}

LineDone ScriptRunner::Private::expectTicket(const ScriptLine &line)
{
    const PrintSession &session = target.sessionForReading();
    const QString name = line.arguments[0].text;
    const ScriptWord &wanted = line.arguments[1];
    const bool isChoice = line.command == ScriptCommand::ExpectChoice;

    std::optional<QString> have;
    QStringList names;
    if (isChoice) {
        const PPDDictionary &choices = session.printSettings().ppdChoices;
        names = choices.keys();
        if (choices.contains(name))
            have = choices.value(name);
    } else {
        for (const Ticket *ticket : {&session.printSettings(), &session.pageFormat()})
            for (const auto &entry : ticket->entries)
                names << entry.first;
        if (const auto value = valueAtPath(session.printSettings(), session.pageFormat(), name))
            have = scriptText(*value);
    }

    const bool wantsAbsent = !wanted.quoted && wanted.text == QLatin1String("absent");
    if (!have) {
        return wantsAbsent
            ? LineDone()
            : wrong(didYouMean(translate("Script", "the ticket has no %1").arg(name), name, names));
    }
    if (!wantsAbsent && *have == wanted.text)
        return {};
    QString shown = *have, shownWanted = wanted.text;
    bool holdsSecret = false;
    if (!isChoice) {
        const TicketFile hidden = target.withSecretsMasked(ticketFileFrom(session));
        const QVariant value =
            valueAtPath(hidden.printSettings, hidden.pageFormat, name).value_or(QVariant(kMask));
        // Numbers, and what is JSON, stay what they are.
        const auto text = string(value);
        shown = text ? masked(*text) : scriptText(value);
        holdsSecret = shown != *have;
        if (text)
            shownWanted = masked(wanted.text);
    }
    constexpr qsizetype mostShown = 500; // characters; a list may have 100 MB
    if (shown.size() > mostShown)
        shown = translate("Script", "%1… (cut)").arg(shown.left(mostShown));
    if (wantsAbsent)
        return wrong(translate("Script", "%1 is there: “%2”").arg(name, shown));
    return wrong(
        holdsSecret
            ? translate("Script", "%1 is “%2”, not what this line says; a secret is not told")
                  .arg(name, shown)
            : translate("Script", "%1 is “%2”, not “%3”").arg(name, shown, shownWanted));
}

LineDone ScriptRunner::Private::screenshot(const QString &file)
{
    QWidget *window = front();
    // What is still to be laid out or painted belongs into the picture.
    QCoreApplication::sendPostedEvents();
    // A window on a screen has been painted before. The style keeps pictures of a control's parts,
    // and draws some others (a slider's ticks) in other colors while it makes them.
    if (audience() != Audience::People)
        window->grab();
    QByteArray png;
    QBuffer buffer(&png);
    // For the user alone, as everything that we write: it may show what a job says.
    const bool isMade = buffer.open(QIODevice::WriteOnly) && window->grab().save(&buffer, "PNG");
    const auto written =
        isMade ? replaceFile(file, png) : Error{Error::Code::NotWritable, file, {}};
    if (written)
        return {};
    return LineProblem{ExitStatus::Failed,
                       joined({translate("Script", "the picture “%1” cannot be written (%2)")
                                   .arg(file, written.error().detail),
                               writingAdvice(written.error().number)})};
}

} // namespace kelvo
