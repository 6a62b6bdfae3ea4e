#pragma once

#include "device.h"
#include "insert_list.h"
#include "setting_map.h"
#include "status.h"

class QWidget;

namespace kelvo {

// Adds inserts to the list (kDialogModeAdd), or replaces `edited` (kDialogModeEdit).
// The panel's undo state is saved before the list changes, and the panel shows it
// again. paramErr without bundle, list or outcome, and to edit without an insert;
// kWindowNotMade when the window cannot be made. `jobStock` may be null.
OSStatus RunModalInsertsDialog(const Device &device, DialogMode mode, const Stock *jobStock,
                               InsertList *inserts, const Insert *edited, DialogResult *outcome,
                               QWidget *parent = nullptr);
// On the current device.
inline OSStatus RunModalInsertsDialog(CFBundleRef bundle, DialogMode mode, const Stock *jobStock,
                                      InsertList *inserts, const Insert *edited,
                                      DialogResult *outcome)
{
    return RunModalInsertsDialog(currentDevice(bundle), mode, jobStock, inserts, edited, outcome);
}

} // namespace kelvo
