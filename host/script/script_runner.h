#pragma once

#include "script_parser.h"
#include "script_target.h"

#include <QObject>

#include <memory>

namespace kelvo {

// Runs a script on the dialog, one line at a time from the event loop when the
// target is idle, also while modal dialogs are open. Results (show, controls,
// summary) go to standard output, errors as "FILE:LINE: what was wrong" to
// standard error, secrets masked in both. Without a script it only prints, and what
// the dialog would ask then is told in words for who has written none.
class ScriptRunner : public QObject
{
    Q_OBJECT

public:
    struct Options
    {
        QString file;            // begins every message; empty: there is no script
        bool printAtEnd = false; // --print
        // How long a menu may stay open that no key has opened: it is a user's, who closes it.
        int timeoutMs = 30000;
        // Dialogs may be open at the end, for whoever takes ended() to look at and to close.
        bool leavesDialogsOpen = false;
    };
    ScriptRunner(ScriptTarget &target, std::vector<ScriptLine> lines, Options options,
                 QObject *parent = nullptr);
    ~ScriptRunner() override;

    void start();

signals:
    // Once. The dialog closes then.
    void ended(kelvo::ExitStatus status);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace kelvo
