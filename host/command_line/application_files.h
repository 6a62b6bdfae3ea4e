#pragma once

#include "bundle.h"
#include "result.h"

#include <QString>

// Where the program's own files lie: beside it, in the build tree as in an
// installation.
namespace kelvo {

// The device panels: $KELVO_BUNDLE, else ../lib/KelvoPDE.pde or
// ../lib/kelvo/KelvoPDE.pde beside the program. NotFound with a sentence for the
// user when there is none.
Result<Bundle *> openPanelBundle();

// A file or folder of ../share/kelvo-print; empty when it is not there. Needs no
// application object.
QString findSharedFile(const QString &name);

} // namespace kelvo
