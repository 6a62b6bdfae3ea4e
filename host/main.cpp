#include "application_files.h"
#include "application_look.h"
#include "audience.h"
#include "background_work.h"
#include "command_line.h"
#include "control_list.h"
#include "display.h"
#include "document_chooser.h"
#include "document_opening.h"
#include "document_origin.h"
#include "exit_status.h"
#include "file_names.h"
#include "file_store.h"
#include "folders.h"
#include "help_window.h"
#include "leftovers.h"
#include "output_targets.h"
#include "pictures.h"
#include "print_dialog.h"
#include "printers.h"
#include "script_parser.h"
#include "script_runner.h"
#include "secrets.h"
#include "size_limits.h"
#include "string_table.h"
#include "temporary_folder.h"
#include "terminal.h"
#include "texts.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QScopeGuard>
#include <QSocketNotifier>
#include <QStringDecoder>
#include <QTimer>

#include <cerrno>
#include <chrono>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <future>
#include <memory>
#include <variant>

#include <fontconfig/fontconfig.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace kelvo;

namespace {

constexpr int endWaitMs = 1000; // for threads that were told to stop
// For a display that takes connections and then says nothing, as one at the other end of a broken
// line does.
constexpr std::chrono::seconds displayWait(30);

// The document, the printers, their PPD, the preview and two for painting. Qt paints large
// areas on threads of its own, and waits for ever for one that could not be started.
constexpr int threadsAtOnce = 6;

// So long after a signal the program ends as the user would have it, and tells what
// became of a job; then it hangs, and is ended.
constexpr unsigned int signalSeconds = 10;

int toInt(ExitStatus status)
{
    return static_cast<int>(status);
}

int fail(ExitStatus status, const QString &text)
{
    printLine(stderr, QStringLiteral("kelvo-print: ") + text);
    return toInt(status);
}

// ---- before the application object is made

// Dates, numbers and paper sizes are those of the language where the user lives, as far as
// anybody speaks it there.
QLocale localeOf(const QString &language)
{
    const QLocale locale(language);
    const QLocale atHome(locale.language(), QLocale::system().territory());
    const bool namesPlace = language.contains(u'_') || language.contains(u'-');
    return namesPlace || atHome.language() != locale.language() ? locale : atHome;
}

// Whoever asks for the C locale wants what programs say in English: LANGUAGE does not count
// there, as for every program.
bool isLocaleC()
{
    for (const char *name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QByteArray value = qgetenv(name);
        if (!value.isEmpty())
            return value == "C" || value == "POSIX" || value.startsWith("C.");
    }
    return true;
}

// The language of all texts: the one asked for, else the desktop's.
Result<void> chooseLanguage(const std::optional<QString> &asked)
{
    const QString folder = findSharedFile(QStringLiteral("strings"));
    if (asked)
        QLocale::setDefault(localeOf(*asked));
    else if (isLocaleC())
        QLocale::setDefault(QLocale::c());
    const QLocale locale;
    loadTexts(folder, locale.uiLanguages());
    QLocale::setDefault(withDigitsOfTexts(locale));
    if (!asked
        || (locale.language() != QLocale::C
            && QLocale(textLanguage()).language() == locale.language()))
        return {};
    QLocale::setDefault(QLocale::system());
    loadTexts(folder, QLocale().uiLanguages());
    QStringList languages = languagesIn(folder) << QStringLiteral("en");
    languages.sort();
    return Error{Error::Code::Refused, QStringLiteral("--language"),
                 translate("Main", "there are no texts in the language “%1”; name one of these: %2")
                     .arg(*asked, languages.join(QStringLiteral(", ")))};
}

// A private run-time folder where the session has none: Qt would warn and make
// one of its own that stays.
std::unique_ptr<TemporaryFolder> provideRuntimeFolder()
{
    if (!qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        return nullptr;
    auto folder = std::make_unique<TemporaryFolder>();
    if (folder->isValid())
        qputenv("XDG_RUNTIME_DIR", folder->path().toLocal8Bit());
    return folder;
}

// What was said on standard output has arrived. Where it has not, a script that
// reads it must not take the silence for an answer.
int endWith(int status)
{
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return status;
    fail(ExitStatus::Failed,
         translate("Main", "standard output cannot be written; what was done before stays done"));
    return status == 0 ? toInt(ExitStatus::Failed) : status;
}

// Without ending threads and destroying what they use; nothing of the user's is left to do.
[[noreturn]] void leave(int status)
{
    removeTemporaryFolders();
    std::fflush(nullptr);
    std::_Exit(status);
}

int endAfterBackgroundWork(int status)
{
    status = endWith(status);
    if (!waitForBackgroundWork(endWaitMs))
        leave(status); // a thread hangs in a server's answer
    return status;
}

// The one that prints; null: none. Only the main thread, which Qt tells that its display has gone,
// looks at it while there is one.
const PrintDialog *openDialog = nullptr;

[[noreturn]] void leaveWithoutDisplay(const QString &problem)
{
    const int status = fail(ExitStatus::Failed, problem);
    if (openDialog && openDialog->isPrinting())
        fail(ExitStatus::Failed, PrintFlow::unknownOutcome());
    leave(status);
}

// What is wrong with a file that `option` names and that could not be read at all.
QString inputProblem(const QString &option, const Error &error, const QString &advice)
{
    if (error.code == Error::Code::NotFound)
        return joined(
            {translate("Main", "%1: there is no file %2").arg(option, error.where), advice});
    if (error.code == Error::Code::NotReadable)
        return translate("Main", "%1: %2 cannot be read (%3); name a file that you may read")
            .arg(option, error.where, error.detail);
    return Error{error.code, option, error.text()}.text();
}

// What is wrong with a ticket, after its name: "(line 1: …)".
QString ticketProblem(const QString &path, const Error &error)
{
    using Code = Error::Code;
    if (error.code != Code::OtherKind && error.code != Code::Damaged
        && error.code != Code::WrongType)
        return inputProblem(QStringLiteral("--ticket-in"), error,
                            translate("Main", "check its name, or write one with --ticket-out"));
    const QString reason =
        error.place.isEmpty() ? error.detail : Error{error.code, error.place, error.detail}.text();
    return translate("Main",
                     "--ticket-in: %1 is not a ticket file (%2); name one that --ticket-out or "
                     "--preset-out wrote")
        .arg(path, reason);
}

// ---- signals

int signalPipe[2] = {-1, -1};

extern "C" void noteSignal(int)
{
    const int before = errno;
    ::alarm(signalSeconds);
    const char byte = 0;
    // A full pipe holds a signal already.
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &byte, 1);
    errno = before;
}

// Before the first temporary folder is made: a signal that ended the program at
// once would leave it. The first one ends as Cancel does, as soon as there is
// somebody to cancel; a second one ends at once. `flags`: SA_RESTART or 0.
void noteSignals(int flags)
{
    std::signal(SIGALRM, SIG_DFL); // whatever the caller left
    struct sigaction action = {};
    action.sa_handler = noteSignal;
    action.sa_flags = flags | SA_RESETHAND;
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction before = {};
        sigaction(number, nullptr, &before);
        if (before.sa_handler != SIG_IGN) // as nohup and shells in the background leave it
            sigaction(number, &action, nullptr);
    }
}

// `end` ends what `window` is there for.
void onSignals(QObject *window, const std::function<void()> &end)
{
    if (signalPipe[0] < 0)
        return;
    noteSignals(SA_RESTART);
    auto *notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, window);
    QObject::connect(notifier, &QSocketNotifier::activated, window, [end] {
        char byte;
        [[maybe_unused]] const ssize_t count = ::read(signalPipe[0], &byte, 1);
        end();
    });
}

void endOnSignals(PrintDialog &dialog)
{
    onSignals(&dialog, [&dialog] {
        // A job that is on its way ends first: the status says what became of it.
        QObject::connect(&dialog, &PrintDialog::ended, qApp, &QCoreApplication::quit);
        dialog.interrupt();
        if (dialog.finished())
            QCoreApplication::quit();
    });
}

// ---- what the command line names

// A secret's file: the user's alone, one text, its last line break left out.
Result<QString> readSecret(const QString &path)
{
    const auto status = fileStatus(path);
    if (!status)
        return Error{Error::Code::NotFound, path, QString::fromLocal8Bit(std::strerror(errno))};
    if ((status->st_mode & (S_IRWXG | S_IRWXO)) != 0)
        return Error{Error::Code::Refused, path,
                     translate("Main", "others may read this secret; set its mode to 0600")};
    const auto bytes = readFile(path, limits::secretBytes);
    if (!bytes)
        return bytes.error();
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder(bytes.value());
    if (decoder.hasError())
        return Error{Error::Code::Damaged, path,
                     translate("Main", "this is not UTF-8; write the secret as UTF-8 text")};
    if (text.endsWith(u'\n'))
        text.chop(1);
    if (text.endsWith(u'\r'))
        text.chop(1);
    if (text.isEmpty())
        return Error{Error::Code::Damaged, path, translate("Main", "the secret is empty")};
    return text;
}

// What runs that were killed have left: in the temporary folder, and beside the
// files that a run writes.
void removeLeftoversOfKilledRuns(const CommandLine &line)
{
    removeLeftovers(temporaryPath(), kTemporaryFolderPrefix, LeftoverKind::Folder);
    QStringList folders = {userPreferencesFolder(), PresetStore::ownFolder(),
                           localApplicationSupportFolder() + QStringLiteral("/Kelvo")};
    if (line.toFolder)
        folders << *line.toFolder;
    for (const auto &file : {line.ticketOut, line.presetOut}) {
        if (file)
            folders << QFileInfo(*file).path();
    }
    for (const QString &folder : std::as_const(folders))
        removeLeftovers(folder, kStagedFilePrefix, LeftoverKind::File);
}

struct Failure
{
    ExitStatus status;
    QString text;
    bool isOfScript = false; // "FILE:LINE: …", as a script's run tells its own
};

// The document, which must be named by now, or be piped in.
std::variant<DocumentSource, Failure> findDocument(const CommandLine &line)
{
    const DocumentOrigin origin = documentOrigin(line, standardInput());
    DocumentSource source{line.file, line.title.value_or(QString()), line.timeoutSeconds * 1000};
    if (origin == DocumentOrigin::Sample) {
        source.path = findSharedFile(QStringLiteral("demo/document.pdf"));
        if (source.path.isEmpty())
            return Failure{ExitStatus::Failed,
                           translate("Main", "--demo: the sample document is not installed")};
    } else if (origin == DocumentOrigin::Missing) {
        return Failure{ExitStatus::WrongUsage,
                       translate("Main",
                                 "there is no document: name a file, or pipe one in. "
                                 "`kelvo-print --help` says more.")};
    } else if (origin == DocumentOrigin::File && !fileStatus(line.file)) {
        return Failure{ExitStatus::Failed,
                       translate("Main",
                                 "%1: there is no such document; check its name, or the "
                                 "folder that it is looked for in (%2)")
                           .arg(line.file, QDir::currentPath())};
    }
    return source;
}

// A document that nobody looks at is printed as soon as the panels have spoken: it is opened
// before they are loaded. Null: as late as one that is shown.
std::shared_ptr<DocumentOpening> openAhead(const CommandLine &line)
{
    if (!line.noWindow || line.listControls)
        return nullptr;
    const auto document = findDocument(line);
    const auto *source = std::get_if<DocumentSource>(&document);
    if (!source)
        return nullptr; // readInputs() says so, in its turn
    auto opening = std::make_shared<DocumentOpening>(*source);
    opening->start(DocumentOpening::Purpose::Printed);
    return opening;
}

// Reads everything that can be read before there is a window.
std::optional<Failure> readInputs(const CommandLine &line, DialogOptions &options,
                                  QMap<QString, QString> &secrets, std::vector<ScriptLine> &script)
{
    if (const auto checked = checkOutputTargets(line); !checked)
        return Failure{ExitStatus::WrongUsage, checked.error().text()};
    for (auto secret = line.secretFiles.cbegin(); secret != line.secretFiles.cend(); ++secret) {
        const auto text = readSecret(secret.value());
        if (!text)
            return Failure{
                ExitStatus::WrongUsage,
                inputProblem(QStringLiteral("--secret"), text.error(),
                             translate("Main", "check its name, or write the secret into it"))};
        protectSecrets();
        secrets.insert(secret.key(), text.value());
    }
    if (line.script) {
        auto lines = readScript(*line.script);
        if (!lines && lines.error().code == Error::Code::Damaged)
            return Failure{ExitStatus::WrongUsage, lines.error().text(), true};
        if (!lines)
            return Failure{
                lines.error().code == Error::Code::Cancelled ? ExitStatus::Cancelled
                                                             : ExitStatus::WrongUsage,
                inputProblem(QStringLiteral("--script"), lines.error(),
                             translate("Main", "check its name, or give - for standard input"))};
        script = std::move(lines).value();
    }
    if (line.ticketIn) {
        auto ticket = readTicketFile(*line.ticketIn);
        if (!ticket)
            return Failure{ExitStatus::InvalidTicket,
                           ticketProblem(*line.ticketIn, ticket.error())};
        options.session.job.ticketIn = std::move(ticket).value();
    }
    if (line.preset) {
        auto preset = PresetStore().read(*line.preset);
        if (!preset)
            return Failure{preset.error().code == Error::Code::NotFound ? ExitStatus::WrongUsage
                                                                        : ExitStatus::InvalidTicket,
                           preset.error().text()};
        options.session.job.preset = std::move(preset).value();
    }
    const QString devicePath = line.demo
        ? findSharedFile(QStringLiteral("ppds/kelvo-corvane-full.ppd"))
        : line.ppd.value_or(QString());
    if (line.demo && devicePath.isEmpty())
        return Failure{ExitStatus::Failed,
                       translate("Main", "--demo: the sample device is not installed")};
    if (!devicePath.isEmpty()) {
        auto device = PpdFile::open(devicePath);
        if (!device)
            return Failure{
                ExitStatus::NoDestination,
                inputProblem(line.demo ? QStringLiteral("--demo") : QStringLiteral("--ppd"),
                             device.error(),
                             translate("Main", "check its name, or name a queue with -d"))};
        options.session.printer.device = std::move(device).value();
    }
    auto document = findDocument(line);
    if (const auto *failure = std::get_if<Failure>(&document))
        return *failure;
    options.session.document = std::get<DocumentSource>(std::move(document));
    return std::nullopt;
}

int listQueues(int timeoutMs)
{
    const auto printers = listPrinters(timeoutMs);
    if (!printers)
        return fail(ExitStatus::NoDestination, printers.error().detail);
    for (const Printer &printer : printers.value()) {
        const QString state = !printer.acceptsJobs  ? QStringLiteral("rejecting")
            : printer.state == Printer::State::Idle ? QStringLiteral("idle")
            : printer.state == Printer::State::Busy ? QStringLiteral("printing")
                                                    : QStringLiteral("stopped");
        // No column is empty: a shell's `read` would take the next one for it.
        const QString none = QStringLiteral("-");
        const auto orNone = [&none](const QString &text) {
            return text.trimmed().isEmpty() ? none : text.simplified();
        };
        printLine(stdout,
                  QStringList{printer.name, state,
                              printer.isDefault ? QStringLiteral("default") : none,
                              orNone(printer.makeAndModel), orNone(printer.location)});
    }
    return 0;
}

// What of the command line a dialog begins with; readInputs() adds what is in files.
DialogOptions dialogOptions(const CommandLine &line)
{
    DialogOptions options;
    PrinterSearch::Wanted &printer = options.session.printer;
    printer.name = line.destination.value_or(QString());
    printer.timeoutMs = line.timeoutSeconds * 1000;
    if (!line.listControls && !line.demo && !line.ppd) {
        printer.directory = std::make_shared<PrinterDirectory>();
        printer.directory->refresh(printer.timeoutMs);
        if (line.destination)
            printer.directory->fetchPpd(printer.name, printer.timeoutMs);
    }
    options.session.job.options = line.options;
    options.session.job.copies = line.copies;
    options.session.job.pages = line.pages;
    options.preset = line.preset.value_or(QString());
    if (line.toFolder)
        options.plan.elsewhere = folderDestination(*line.toFolder);
    options.plan.ticketOut = line.ticketOut;
    options.plan.presetOut = line.presetOut;
    return options;
}

int runDialog(const CommandLine &line, DialogOptions options)
{
    QMap<QString, QString> secrets;
    std::vector<ScriptLine> script;
    if (const auto failure = readInputs(line, options, secrets, script)) {
        if (failure->status == ExitStatus::Cancelled)
            return toInt(failure->status);
        if (!failure->isOfScript)
            return fail(failure->status, failure->text);
        printLine(stderr, failure->text);
        return toInt(failure->status);
    }

    ExitStatus status = ExitStatus::Failed;
    PrintDialog dialog(std::move(options));
    openDialog = &dialog;
    const auto closed = qScopeGuard([] { openDialog = nullptr; });
    dialog.setSecrets(std::move(secrets));
    endOnSignals(dialog);
    QObject::connect(&dialog, &PrintDialog::begun, qApp, [line] {
        startBackgroundWork([line] { removeLeftoversOfKilledRuns(line); });
    });
    std::unique_ptr<ScriptRunner> runner;
    QObject::connect(&dialog, &PrintDialog::ended, qApp, [&status, &runner](ExitStatus end) {
        status = end;
        // With a script its runner says when it is over: lines may be left.
        if (!runner)
            QCoreApplication::quit();
    });

    if (line.script || line.noWindow) {
        dialog.setDriven(true);
        QString name = line.script.value_or(QString());
        if (name == QLatin1String("-"))
            name = standardInputName;
        const bool printsAtEnd = line.print || !line.script;
        runner = std::make_unique<ScriptRunner>(
            dialog, std::move(script),
            ScriptRunner::Options{name, printsAtEnd, line.timeoutSeconds * 1000});
        // The runner knows better than the dialog how its run ended.
        QObject::connect(
            runner.get(), &ScriptRunner::ended, qApp, [&status, &dialog](ExitStatus end) {
                if (!dialog.finished()) {
                    // What a failed script has left unfinished is no
                    // ticket to keep.
                    const auto written =
                        end == ExitStatus::Printed ? dialog.writeSettingsOut() : Result<void>();
                    if (!written)
                        end = ExitStatus(fail(ExitStatus::Failed, written.error().text()));
                    dialog.interrupt();
                }
                status = end;
                QCoreApplication::quit();
            });
    }
    dialog.start();
    if (!dialog.finished()) {
        if (runner)
            runner->start();
        QApplication::exec();
    }
    return toInt(status);
}

// The path of the document that the user chooses; empty: none.
QString chooseDocument()
{
    // Whoever calls from a terminal means the folder that it is in.
    const bool isTerminal = standardInput() == StandardInput::Terminal;
    const auto chooser = documentChooser(isTerminal ? QDir::currentPath() : QString());
    onSignals(chooser.get(), [&chooser] { chooser->reject(); });
    return chooser->exec() == QDialog::Accepted ? chooser->selectedFiles().value(0) : QString();
}

int runApplication(int argc, char **argv, CommandLine line)
{
    if (::pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) == 0)
        noteSignals(0); // what waits for input ends with it
    const auto runtimeFolder = provideRuntimeFolder();
    if (line.noWindow || line.listControls)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Fonts take as long to be found as the application object takes to be made.
    // Whoever asks for them meanwhile would look for them a second time.
    const auto areThreadsToBeHad = std::make_shared<std::promise<bool>>();
    std::promise<void> display;
    if (!startBackgroundWork([areThreadsToBeHad, opened = display.get_future().share()] {
            const bool enough = canStartThreads(threadsAtOnce);
            FcInit();
            areThreadsToBeHad->set_value(enough);
            if (isDisplayUsed() && opened.wait_for(displayWait) == std::future_status::timeout)
                leaveWithoutDisplay(noDisplayText());
        }))
        return fail(ExitStatus::Failed, noThreadReason());
    auto document = openAhead(line);
    std::optional<DisplayOpening> opening(std::in_place);
    QApplication application(argc, argv);
    opening.reset();
    display.set_value();
    dressApplication();
    // The application object took over the locale; what we write must not follow it.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName(QStringLiteral("kelvo-print"));
    QApplication::setDesktopFileName(QStringLiteral("kelvo-print"));
    QApplication::setWindowIcon(iconOf(findSharedFile(QStringLiteral("icons/kelvo-print.svg"))));
    QApplication::setApplicationVersion(QStringLiteral(KELVO_VERSION));
    QApplication::setQuitOnLastWindowClosed(false);

    // Before the printers are looked for: whoever finds them answers the dialog, and only once.
    if (documentOrigin(line, standardInput()) == DocumentOrigin::Chooser) {
        line.file = chooseDocument();
        if (line.file.isEmpty())
            return toInt(ExitStatus::Cancelled);
    }
    if (line.noWindow)
        setAudience(line.script ? Audience::Script : Audience::Nobody);
    DialogOptions options = dialogOptions(line);
    SessionBeginning &session = options.session;
    session.opening = std::move(document);
    if (auto bundle = openPanelBundle()) {
        session.bundle = bundle.value();
        // The host's own pages lie there too; the panels register theirs on their devices only.
        addHelpFolder(session.bundle->resourcesPath() + QStringLiteral("/help"));
    } else {
        session.bundleProblem =
            translate("Main", "The device panels are missing (%1).").arg(bundle.error().text());
    }

    if (!areThreadsToBeHad->get_future().get())
        return fail(ExitStatus::Failed, noThreadReason());
    if (line.listControls) {
        PrintDialog dialog(options);
        const auto list = controlList(&dialog, session.bundle);
        if (!list)
            return fail(ExitStatus::Failed, list.error().text());
        printLines(stdout, list.value());
        return 0;
    }
    return runDialog(line, std::move(options));
}

// A caller may have closed them. What is opened first would get their numbers: a pipe of
// our own was read as the document, for ever.
void provideStandardStreams()
{
    for (const int fd : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(fd, F_GETFD) < 0)
            static_cast<void>(::open("/dev/null", O_RDWR)); // takes the lowest free number
    }
}

} // namespace

int main(int argc, char **argv)
{
    provideStandardStreams();
    passMessages(leaveWithoutDisplay);
    // A file that may not grow is an error of its write, which says so.
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN); // so is a reader that went away
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(fileNameFrom(argv[i]));
    const auto spoken = chooseLanguage(languageAsked(arguments));
    if (!spoken)
        return fail(ExitStatus::WrongUsage, spoken.error().text());
    const auto parsed = parseCommandLine(arguments);
    if (!parsed) {
        fail(ExitStatus::WrongUsage, parsed.error().text());
        printLine(stderr, translate("Main", "Try: kelvo-print --help"));
        return toInt(ExitStatus::WrongUsage);
    }
    const CommandLine &line = parsed.value();
    if (line.help) {
        printLines(stdout, usageText());
        return endWith(0);
    }
    if (line.helpScripts) {
        printLines(stdout, scriptCommandsText());
        return endWith(0);
    }
    if (line.version) {
        printLine(stdout, QStringLiteral("kelvo-print " KELVO_VERSION));
        return endWith(0);
    }
    if (line.listPrinters) {
        const QCoreApplication application(argc, argv);
        return endAfterBackgroundWork(listQueues(line.timeoutSeconds * 1000));
    }

    // Qt reads its own options out of what it is given: it gets none of ours.
    int ownCount = 1;
    char *own[] = {argv[0], nullptr};
    return endAfterBackgroundWork(runApplication(ownCount, own, line));
}
