#pragma once

#include "bundle.h"
#include "needed_controls.h"

#include <QString>

#include <functional>

namespace kelvo {

// What a panel shows in `pane`: the window of that name in the bundle's description, the
// caller's and without parent, in which `findControls` has found all that it looked for.
// Null when it cannot be made or lacks one of them: the pane says so instead.
QWidget *createPanelContent(CFBundleRef bundle, const QString &description, const QString &window,
                            QWidget *pane,
                            const std::function<void(NeededControls &)> &findControls);

} // namespace kelvo
