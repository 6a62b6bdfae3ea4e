#pragma once

#include "bundle.h"
#include "modal_dialog.h"
#include "needed_controls.h"

#include <functional>
#include <initializer_list>
#include <memory>

namespace kelvo {

// A modal dialog around the window that a bundle describes (window_loader.h),
// modal to `parent`'s window or to the front one, in which `findControls` has found
// all that it looked for. Null where the description is missing or damaged, or lacks
// one of them or the button with the command 'ok  ': the user has been told which
// window it is and what to do, standard error has the reason, and the caller answers
// kWindowNotMade.
std::unique_ptr<ModalDialog>
createModalDialog(CFBundleRef bundle, const QString &description, const QString &window,
                  QWidget *parent, const std::function<void(NeededControls &)> &findControls = {});
// The same, for callers that look for their controls later: those of `needed` are there.
std::unique_ptr<ModalDialog> createModalDialog(CFBundleRef bundle, const QString &description,
                                               const QString &window, QWidget *parent,
                                               std::initializer_list<ControlID> needed);

inline constexpr OSStatus kWindowNotMade = fnfErr;

// Why a window cannot be used that lacks these controls (needed_controls.h).
QString lacksControlsText(CFBundleRef bundle, const QStringList &missing);

// In place of the views of a panel that cannot be made, and on standard error.
void showPanelNotMade(CFBundleRef bundle, QWidget *pane, const QString &window,
                      const QString &reason);

} // namespace kelvo
