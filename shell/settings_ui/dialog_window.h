#pragma once

#include "bundle.h"
#include "modal_dialog.h"

#include <memory>

namespace kelvo {

// A modal dialog around the window that a bundle describes (window_loader.h),
// modal to `parent`'s window or to the front one. Null, with a line on standard
// error, when it cannot be made: the caller answers kWindowNotMade.
std::unique_ptr<ModalDialog> createModalDialog(CFBundleRef bundle, const QString &description,
                                               const QString &window, QWidget *parent);

inline constexpr OSStatus kWindowNotMade = fnfErr;

} // namespace kelvo
