#pragma once

#include "separators.h"
#include "status.h"

class QWidget;

namespace kelvo {

// Asks for separators and where they come from. paramErr when a pointer is
// missing, kWindowNotMade when the window is; Cancel changes nothing.
OSStatus RunModalSeparatorsDialog(const Device &device, std::int32_t *separators,
                                  Stock *separatorStock, DialogResult *result,
                                  QWidget *parent = nullptr);
// On the current device.
inline OSStatus RunModalSeparatorsDialog(CFBundleRef bundle, std::int32_t *separators,
                                         Stock *separatorStock, DialogResult *result)
{
    return RunModalSeparatorsDialog(currentDevice(bundle), separators, separatorStock, result);
}

} // namespace kelvo
