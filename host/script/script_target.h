#pragma once

#include "exit_status.h"
#include "inspector.h"
#include "print_session.h"
#include "result.h"
#include "ticket_file.h"

#include <QString>
#include <QStringList>

#include <optional>

class QWidget;

namespace kelvo {

// What a script drives: the print dialog, which implements this. All calls come
// on the GUI thread, from the event loop.
class ScriptTarget
{
public:
    virtual ~ScriptTarget() = default;

    // Printers, PPD and document are there (or known not to come) and nothing is
    // under way: the next line may run. Also true while a modal dialog is open.
    // Asked whenever the event loop has nothing left to do: what ends by the time alone has a
    // timer, which wakes it.
    virtual bool isIdle() const = 0;
    // Whether something in `part` of the window, null for nothing, is not drawn as it will be.
    // Only lines that look at it wait for it.
    virtual bool isDrawing(const QWidget * /*part*/) const { return false; }
    // Begins to draw what was put off because nobody sees it.
    virtual void drawPutOff() { }
    virtual QWidget *window() = 0; // the dialog's own window

    // A panel by the middle of its getter's name: the host's ("SpecialPages",
    // "PDEShell") or one of the shell's tabs ("Advanced").
    virtual Result<void> showPanel(const QString &name) = 0;
    virtual Result<void> showTab(int tab) = 0; // of the shell, from 1
    // Which panel holds the control, as a clause ("it is in tab 4, Advanced"), for errors about
    // a control that is not in the visible panel; empty when unknown.
    virtual QString placeOf(const QWidget *control) const = 0;
    // Likewise for a control that is not in the front window: a panel or a dialog that has not
    // been shown yet may have it.
    virtual QString placeOfUnshown(const inspector::ControlName &) const { return {}; }

    virtual void sync(SyncDirection direction) = 0; // all panels
    virtual void pressPrint() = 0;                  // as the button; may open notices
    virtual void pressCancel() = 0;
    // Whether a print that was asked for is still on its way.
    virtual bool isPrinting() const = 0;
    // How the dialog ended; none while it is open.
    virtual std::optional<ExitStatus> finished() const = 0;
    // Why the last print did not go out, and what the program would end with;
    // empty when it did, or when a notice or dialog took the press.
    virtual QString lastPrintProblem() const = 0;
    virtual ExitStatus lastPrintStatus() const = 0;

    // The tickets as they stand, after the visible panel has written.
    virtual const PrintSession &sessionForReading() = 0;
    // `file` with the secrets in it masked by their places.
    virtual TicketFile withSecretsMasked(TicketFile file) const = 0;
    virtual QString jobInWords() = 0; // "What will be sent", secrets masked
    virtual std::optional<QString> secret(const QString &name) const = 0; // from --secret
    virtual QStringList secretValues() = 0; // what texts must not repeat
    // A line has set `control`, maybe to what it showed, of which no event tells.
    virtual void noteSet(QWidget *) { }
};

} // namespace kelvo
