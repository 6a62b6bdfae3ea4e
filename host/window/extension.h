#pragma once

#include "bundle.h"
#include "plugin_abi.h"
#include "print_session.h"
#include "result.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QWidget;

namespace kelvo {

// The host's side of one bundle: its factory, the shell and its further panels.
// Order of life: load() once; then for each printer begin(), any number of
// sync(), summary(), and end(). The host knows nothing else of a bundle.
class Extension
{
public:
    explicit Extension(Bundle *bundle); // borrowed; bundles live until the end
    ~Extension();                       // ends what was begun

    // Finds the factory by name and asks it for the panel interface.
    Result<void> load();

    // Prologue and Initialize of the shell, then of each further panel, each in a
    // pane of its own below `parent`, which must be in the dialog's window. A
    // further panel that is missing or fails is skipped with one line on standard
    // error. An error is the shell's: the bundle refuses this printer.
    Result<void> begin(PrintSession &session, QWidget *parent);
    bool isBegun() const;
    void end(OSStatus status); // further panels first, the shell last

    struct Panel
    {
        QString name; // the middle of its getter's name; "PDEShell" for the shell
        QString title;
        QWidget *pane; // owned by `parent` of begin()
    };
    const std::vector<Panel> &panels() const; // the shell first

    int shownPanel() const; // index
    // The panel left writes, all others read; then its pane is opened. A panel that
    // was opened before may answer kPMInvalidPDEContext: what it built is shown again.
    void show(int index);

    // All panels, the shown one last. kSyncWrite is what Print does.
    void sync(SyncDirection direction);
    QStringList summary(); // titles and texts of all panels

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace kelvo
