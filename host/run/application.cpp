#include "application.h"

#include "application_files.h"
#include "application_look.h"
#include "audience.h"
#include "background_work.h"
#include "control_list.h"
#include "dialog_run.h"
#include "display.h"
#include "document_chooser.h"
#include "document_origin.h"
#include "help_window.h"
#include "inputs.h"
#include "interruption.h"
#include "pictures.h"
#include "program_end.h"
#include "terminal.h"
#include "texts.h"

#include <QApplication>
#include <QDir>

#include <chrono>
#include <clocale>
#include <future>
#include <optional>

namespace kelvo {

namespace {

// For a display that takes connections and then says nothing, as one at the other end of a broken
// line does.
constexpr std::chrono::seconds displayWait(30);

// The paths of the documents that the user chooses; none: the dialog was cancelled.
QStringList chooseDocuments()
{
    // Whoever calls from a terminal means the folder that it is in.
    const bool isTerminal = standardInput() == StandardInput::Terminal;
    const auto chooser = documentChooser(isTerminal ? QDir::currentPath() : QString());
    onInterruption(chooser.get(), [&chooser] { chooser->reject(); });
    return chooser->exec() == QDialog::Accepted ? chooser->selectedFiles() : QStringList();
}

} // namespace

int runApplication(char *programName, CommandLine line, EarlyWork early)
{
    passMessages(leaveWithoutDisplay);
    std::promise<void> display;
    if (isDisplayUsed() && !startBackgroundWork([opened = display.get_future().share()] {
            if (opened.wait_for(displayWait) == std::future_status::timeout)
                leaveWithoutDisplay(noDisplayText());
        }))
        return fail(ExitStatus::Failed, noThreadReason());
    BegunAhead ahead = beginAhead(line, std::move(early.helpers));
    std::optional<DisplayOpening> opening(std::in_place);
    // Qt reads its own options out of what it is given: it gets none of ours.
    int ownCount = 1;
    char *own[] = {programName, nullptr};
    QApplication application(ownCount, own);
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

    if (documentOrigin(line, standardInput()) == DocumentOrigin::Chooser) {
        line.files = chooseDocuments();
        if (line.files.isEmpty())
            return toInt(ExitStatus::Cancelled);
    }
    if (line.noWindow)
        setAudience(line.script ? Audience::Script : Audience::Nobody);
    Inputs inputs = beginInputs(line, std::move(ahead));
    SessionBeginning &session = inputs.options.session;
    if (auto bundle = openPanelBundle()) {
        session.bundle = bundle.value();
        // The host's own pages lie there too; the panels register theirs on their devices only.
        addHelpFolder(session.bundle->resourcesPath() + QStringLiteral("/help"));
    } else {
        session.bundleProblem =
            translate("Main", "The device panels are missing (%1).").arg(bundle.error().text());
    }

    if (!early.areThreadsToBeHad.get())
        return fail(ExitStatus::Failed, noThreadReason());
    if (line.listControls) {
        PrintDialog dialog(inputs.options);
        const auto list = controlList(&dialog, session.bundle);
        if (!list)
            return fail(ExitStatus::Failed, list.error().text());
        printLines(stdout, list.value());
        return 0;
    }
    return runDialog(line, std::move(inputs));
}

} // namespace kelvo
