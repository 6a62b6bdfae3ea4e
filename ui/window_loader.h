#pragma once

#include "bundle.h"
#include "result.h"

#include <QString>

#include <memory>

class QWidget;

namespace kelvo {

// Loads Resources/dialogs/<description>/<window>.ui of `bundle`. Texts are
// looked up as keys in the table "Localizable" of the bundle (a missing one
// stays as it stands in the file); controls send their events; IDs are checked.
// The widget classes are Qt's and this library's (PopupButton, MenuButton,
// RadioGroup, TabControl, SpinField, TimeField, HistoryField, ListView,
// PictureView, SummaryView); any other class fails, as does an ID that stands
// twice or is malformed. `parent` may be null: the caller owns the window.
Result<QWidget *> createWindowFromDescription(CFBundleRef bundle, const QString &description,
                                              const QString &window, QWidget *parent = nullptr);

} // namespace kelvo
