#include "dialog_run.h"

#include "audience.h"
#include "background_work.h"
#include "folders.h"
#include "interruption.h"
#include "job_wait.h"
#include "leftovers.h"
#include "presets.h"
#include "print_dialog.h"
#include "program_end.h"
#include "script_runner.h"
#include "temporary_folder.h"
#include "terminal.h"

#include <QApplication>
#include <QFileInfo>
#include <QScopeGuard>

#include <memory>
#include <vector>

namespace kelvo {

namespace {

// The one that prints; null: none. Only the main thread, which Qt tells that its display has gone,
// looks at it while there is one.
const PrintDialog *openDialog = nullptr;

// What runs that were killed have left: in the temporary folder, and beside the
// files that a run writes.
void removeLeftoversOfKilledRuns(const CommandLine &line)
{
    removeLeftovers(temporaryPath(), kTemporaryFolderPrefix, LeftoverKind::Folder);
    QStringList folders = {userPreferencesFolder(), PresetStore::ownFolder(),
                           localApplicationSupportFolder() + QStringLiteral("/Kelvo")};
    if (line.toFolder)
        folders << *line.toFolder;
    for (const auto &file : {line.ticketOut, line.presetOut, line.toPdf}) {
        if (file)
            folders << QFileInfo(*file).path();
    }
    for (const QString &folder : std::as_const(folders))
        removeLeftovers(folder, kStagedFilePrefix, LeftoverKind::File);
}

void endOnInterruption(PrintDialog &dialog)
{
    onInterruption(&dialog, [&dialog] {
        // A job that is on its way ends first: the status says what became of it.
        QObject::connect(&dialog, &PrintDialog::ended, qApp, &QCoreApplication::quit);
        dialog.interrupt();
        if (dialog.finished())
            QCoreApplication::quit();
    });
}

} // namespace

void leaveWithoutDisplay(const QString &problem)
{
    const int status = fail(ExitStatus::Failed, problem);
    if (openDialog && openDialog->isPrinting())
        fail(ExitStatus::Failed, PrintFlow::unknownOutcome());
    leave(status);
}

namespace {

// Up to where the dialog has ended. `jobs` are those that went to queues.
struct DialogEnd
{
    int status;
    std::vector<SentJob> jobs = {};
    bool isInterrupted = false;
};

DialogEnd showDialog(const CommandLine &line, Inputs inputs)
{
    if (const auto failure = readInputs(line, inputs)) {
        if (failure->status == ExitStatus::Cancelled)
            return {toInt(failure->status)};
        if (!failure->isOfScript)
            return {fail(failure->status, failure->text)};
        printLine(stderr, failure->text);
        return {toInt(failure->status)};
    }

    ExitStatus status = ExitStatus::Failed;
    PrintDialog dialog(std::move(inputs.options));
    openDialog = &dialog;
    const auto closed = qScopeGuard([] { openDialog = nullptr; });
    dialog.setSecrets(std::move(inputs.secrets));
    endOnInterruption(dialog);
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
            dialog, std::move(inputs.script),
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
    // Taking a window apart that nobody has seen takes a tenth of such a run. Threads that are
    // still at work are told to stop by that, and a panel that was asking something is ended.
    if (audience() == Audience::Nobody && !line.wait && !QApplication::activeModalWidget()
        && waitForBackgroundWork(0))
        leave(endWith(toInt(status)));
    return {toInt(status), dialog.sentJobs(), dialog.isInterrupted()};
}

} // namespace

int runDialog(const CommandLine &line, Inputs inputs)
{
    const DialogEnd end = showDialog(line, std::move(inputs));
    if (!line.wait || end.jobs.empty() || end.status != toInt(ExitStatus::Printed))
        return end.status;
    return toInt(end.isInterrupted ? leaveJobs(end.jobs)
                                   : waitForJobs(end.jobs, line.timeoutSeconds * 1000));
}

} // namespace kelvo
