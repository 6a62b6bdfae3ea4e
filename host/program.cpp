#include "program.h"

#include "background_work.h"
#include "command_line.h"
#include "dialog_program.h"
#include "display.h"
#include "early_work.h"
#include "file_names.h"
#include "language.h"
#include "printer_list.h"
#include "program_end.h"
#include "terminal.h"
#include "texts.h"

#include <QCoreApplication>

#include <clocale>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

using namespace kelvo;

namespace {

// A caller may have closed them. What is opened first would get their numbers: a pipe of
// our own was read as the document, for ever.
void provideStandardStreams()
{
    for (const int fd : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(fd, F_GETFD) < 0)
            static_cast<void>(::open("/dev/null", O_RDWR)); // takes the lowest free number
    }
}

[[noreturn]] void leaveWithProblem(const QString &problem)
{
    leave(fail(ExitStatus::Failed, problem));
}

int runDialog(char *programName, const CommandLine &line)
{
    auto early = beginEarlyWork(line);
    if (!early)
        return fail(ExitStatus::Failed, noThreadReason());
    const auto program = dialogProgram();
    if (!program)
        return fail(ExitStatus::Failed, program.error().text());
    return program.value()->run(programName, line, std::move(*early));
}

int printScriptCommands()
{
    const auto program = dialogProgram();
    if (!program)
        return fail(ExitStatus::Failed, program.error().text());
    printLines(stdout, program.value()->scriptCommands());
    return 0;
}

} // namespace

int kelvoProgram(int argc, char **argv)
{
    provideStandardStreams();
    passMessages(leaveWithProblem);
    // A file that may not grow is an error of its write, which says so.
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN); // so is a reader that went away
    // A caller may have ignored it. Then the kernel forgets how children have ended.
    std::signal(SIGCHLD, SIG_DFL);
    // Qt's application would do it, when there are threads already that look at it: libcups takes
    // its language from it. What we write must not follow it.
    std::setlocale(LC_ALL, "");
    std::setlocale(LC_NUMERIC, "C");
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
    if (line.helpScripts)
        return endWith(printScriptCommands());
    if (line.version) {
        printLine(stdout, QStringLiteral("kelvo-print " KELVO_VERSION));
        return endWith(0);
    }
    if (line.listPrinters) {
        const QCoreApplication application(argc, argv);
        return endAfterBackgroundWork(printQueues(line.timeoutSeconds * 1000));
    }
    return endAfterBackgroundWork(runDialog(argv[0], line));
}
