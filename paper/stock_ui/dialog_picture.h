#pragma once

#include "bundle.h"
#include "control.h"

namespace kelvo {

// Shows the bundle's picture `name` in the picture view `id` of `window`, and
// says the text of `descriptionKey` for it. A missing picture draws nothing.
void showDialogPicture(CFBundleRef bundle, const QWidget *window, ControlID id,
                       const QString &name, const QString &descriptionKey);

} // namespace kelvo
