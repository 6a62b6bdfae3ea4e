#pragma once

#include "bundle.h"

#include <QString>

class QWidget;

namespace kelvo {

// What a panel shows in `pane`: the window of that name in the bundle's description, the
// caller's and without parent. Null when it cannot be made: the pane says so instead.
QWidget *createPanelContent(CFBundleRef bundle, const QString &description, const QString &window,
                            QWidget *pane);

} // namespace kelvo
