#pragma once

#include "bundle.h"
#include "inspector.h"
#include "result.h"

#include <QString>

#include <vector>

class QWidget;

namespace kelvo {

// Every control that a script can reach, as Markdown: one table a window, for
// the print dialog and each window description of the bundle (null: none).
// Fails on a description that cannot be loaded.
Result<QString> controlList(QWidget *dialog, Bundle *bundle);

// A window of the bundle's descriptions: a panel's has the panel's name.
struct DescribedWindow
{
    QString name, title;
};
// Those that have the control, built or not: many have an "@okButton". Slow: all
// descriptions are loaded.
std::vector<DescribedWindow> describedWindowsWith(const inspector::ControlName &control,
                                                  Bundle *bundle);

} // namespace kelvo
