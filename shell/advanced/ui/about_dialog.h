#pragma once

#include "bundle.h"
#include "ppd_file.h"

class QWidget;

namespace kelvo {

// Shows what this is: product, version, and the device that it prints to. Runs
// until it is closed. `ppd` may be null.
void RunModalAboutDialog(CFBundleRef bundle, const PpdFile *ppd, QWidget *parent);

} // namespace kelvo
