#pragma once

#include "cover.h"
#include "device.h"
#include "setting_map.h"
#include "status.h"

#include <optional>

class QWidget;

namespace kelvo {

// Edits copies of the covers. After OK a cover that is there before and after
// stays the same page and takes the new values; a new one is handed over, and
// one that was removed goes. paramErr without bundle, outcome or covers, and to
// edit (kDialogModeEdit) where neither cover is there; kWindowNotMade when the
// window cannot be made. The job's stock is shown where a cover follows it.
OSStatus RunModalCoversDialog(const Device &device, DialogMode mode, Stock *jobStock,
                              std::optional<Cover> *front, std::optional<Cover> *back,
                              DialogResult *outcome, QWidget *parent = nullptr);
// On the current device.
inline OSStatus RunModalCoversDialog(CFBundleRef bundle, DialogMode mode, Stock *jobStock,
                                     std::optional<Cover> *front, std::optional<Cover> *back,
                                     DialogResult *outcome)
{
    return RunModalCoversDialog(currentDevice(bundle), mode, jobStock, front, back, outcome);
}

} // namespace kelvo
