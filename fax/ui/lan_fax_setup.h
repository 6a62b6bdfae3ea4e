#pragma once

#include "bundle.h"
#include "status.h"
#include "values.h"

class QWidget;

namespace kelvo {

// Edits the options of a fax and the list of those who get it, both in the form
// that tickets hold. They change after OK alone. There is no set-up window yet: a
// notice says so, and the answer is Cancel.
DialogResult RunModalLANFaxSetup(CFBundleRef bundle, Dictionary *options, Array *recipients,
                                 QWidget *parent = nullptr);

} // namespace kelvo
