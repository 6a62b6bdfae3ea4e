#pragma once

#include "bundle.h"
#include "status.h"

class QWidget;

namespace kelvo {

// What the user wants to be asked; OK writes both.
DialogResult RunModalFaxPreferencesDialog(CFBundleRef bundle, bool *promptDuplicate,
                                          bool *promptRemove, QWidget *parent);

} // namespace kelvo
