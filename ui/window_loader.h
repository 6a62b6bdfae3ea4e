#pragma once

#include "bundle.h"
#include "result.h"

#include <QString>

#include <memory>

class QWidget;

namespace kelvo {

// Makes the window of Resources/dialogs/<description>/<window>.ui of `bundle`, by the steps that
// its module has of that file (compiled_windows.h); a file that is another one is read itself.
// Texts are looked up as keys in the table "Localizable" of the bundle (a missing one stays as it
// stands in the file) and labels show them as plain text unless the file names another format;
// controls send their events; a control without accessible name and text is called as the label
// whose buddy it is; a label that is such a button's words is a part of it (button_label.h).
//
// Dynamic properties that the loader knows (all notr):
//   controlID   string   "KPDE 102"; any widget
//   command     string   four characters, "ok  "; buttons and tab controls
//   table       string   the window itself: the table that is asked before "Localizable"
//
// The widget classes are this library's (PopupButton, MenuButton, RadioGroup,
// TabControl with its property "titles", SpinField, TimeField, HistoryField,
// ListView, PictureView, PaperView, AngleDial, SummaryView, ButtonRow) and of Qt's QWidget, QFrame,
// Line, QLabel, QPushButton, QToolButton, QCheckBox, QRadioButton, QLineEdit, QPlainTextEdit,
// QSlider, QGroupBox, QScrollArea, QStackedWidget, QProgressBar and QSplitter. Any other class, an
// ID that stands twice and a malformed ID or command fail, all of them named in the error. `parent`
// may be null: the caller owns the window.
Result<QWidget *> createWindowFromDescription(CFBundleRef bundle, const QString &description,
                                              const QString &window, QWidget *parent = nullptr);

} // namespace kelvo
