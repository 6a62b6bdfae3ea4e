#pragma once

#include "device.h"
#include "image_shift.h"
#include "status.h"
#include "stock.h"

class QWidget;

// How tab stock is printed. `result` is OK or Cancel; nothing changes on Cancel.
// paramErr when a pointer is missing, kWindowNotMade when the window is.
namespace kelvo {

// How far the image moves towards the tab; the stock itself is not changed.
OSStatus RunModalTabStockSetupDialog(const Device &device, const Stock *stock, _IS_Options *options,
                                     DialogResult *result, QWidget *parent = nullptr);
// On the current device.
inline OSStatus RunModalTabStockSetupDialog(CFBundleRef bundle, const Stock *stock,
                                            _IS_Options *options, DialogResult *result)
{
    return RunModalTabStockSetupDialog(currentDevice(bundle), stock, options, result);
}

// How many tabs a set of pre-cut tab stock has: the stock's modulus.
OSStatus RunModalPreCutTabStockSetup(CFBundleRef bundle, DialogMode mode, JobContext jobContext,
                                     Stock *stock, DialogResult *result, QWidget *parent = nullptr);

} // namespace kelvo
