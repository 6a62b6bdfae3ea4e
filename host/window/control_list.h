#pragma once

#include "bundle.h"
#include "result.h"

#include <QString>

class QWidget;

namespace kelvo {

// Every control that a script can reach, as Markdown: one table a window, for
// the print dialog and each window description of the bundle (null: none).
// Fails on a description that cannot be loaded.
Result<QString> controlList(QWidget *dialog, Bundle *bundle);

} // namespace kelvo
