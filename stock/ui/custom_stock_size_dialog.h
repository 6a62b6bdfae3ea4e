#pragma once

#include "device.h"
#include "status.h"

#include <cstdint>

class QWidget;

namespace kelvo {

// Asks for a width and a length, 1/100 mm; kUnset begins with the device's default
// page size. They are written after OK alone. paramErr when a pointer is missing,
// kWindowNotMade when the window is.
OSStatus RunModalCustomStockSizeDialog(const Device &device, DialogResult *result,
                                       std::int32_t *width, std::int32_t *length,
                                       QWidget *parent = nullptr);
// On the current device.
inline OSStatus RunModalCustomStockSizeDialog(CFBundleRef bundle, DialogResult *result,
                                              std::int32_t *width, std::int32_t *length)
{
    return RunModalCustomStockSizeDialog(currentDevice(bundle), result, width, length);
}

} // namespace kelvo
