#pragma once

#include "bundle.h"
#include "device_panels.h"

#include <QString>

#include <memory>
#include <vector>

class QWidget;

namespace kelvo {

// The host's side of one bundle: its factory, the shell and its further panels. The
// host knows nothing else of a bundle.
class Extension : public DevicePanels
{
public:
    // Borrowed; bundles live until the end. Each panel has a pane of its own below
    // `panesParent`, which must be in the dialog's window.
    Extension(Bundle *bundle, QWidget *panesParent);
    ~Extension() override; // ends what was begun

    // Finds the factory by name and asks it for the panel interface.
    Result<void> load() override;

    // Prologue and Initialize of the shell, then of each further panel; then the shell is
    // shown. A further panel that is missing or fails is skipped with one line on standard
    // error. An error is the shell's: the bundle refuses this printer.
    Result<void> begin(PrintSession &session) override;
    bool isBegun() const override;
    void end(OSStatus status) override; // further panels first, the shell last

    Bundle *bundle() const;

    struct Panel
    {
        QString name; // the middle of its getter's name; "PDEShell" for the shell
        QString title;
        QWidget *pane; // owned by the panes' parent
    };
    const std::vector<Panel> &panels() const; // the shell first

    int shownPanel() const; // index
    // The panel left writes, all others read; then its pane is opened. A panel that
    // was opened before may answer kPMInvalidPDEContext: what it built is shown again.
    void show(int index);

    void sync(SyncDirection direction) override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace kelvo
