#pragma once

#include "bundle.h"
#include "control.h"
#include "modal_dialog.h"

#include <initializer_list>
#include <memory>

namespace kelvo {

// A modal dialog around the window that a bundle describes (window_loader.h),
// modal to `parent`'s window or to the front one. Null where the description is
// missing or damaged, or lacks a button that closes the window or one of `needed`:
// the user has been told which window it is and what to do, standard error has the
// reason, and the caller answers kWindowNotMade.
std::unique_ptr<ModalDialog> createModalDialog(CFBundleRef bundle, const QString &description,
                                               const QString &window, QWidget *parent,
                                               std::initializer_list<ControlID> needed = {});

inline constexpr OSStatus kWindowNotMade = fnfErr;

// For callers that look for their controls themselves: tells the user the same of a
// dialog that lacks one. Null, which createModalDialog has told of, is told no more.
// Answers kWindowNotMade.
OSStatus windowNotMade(CFBundleRef bundle, const ModalDialog *dialog);

// In place of the views of a panel that cannot be made, and on standard error.
void showPanelNotMade(CFBundleRef bundle, QWidget *pane, const QString &window,
                      const QString &reason);

} // namespace kelvo
