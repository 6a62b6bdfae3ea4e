#pragma once

#include "bundle.h"
#include "separators.h"
#include "status.h"

class QWidget;

namespace kelvo {

// Asks for separators and where they come from. paramErr when a pointer is
// missing, kWindowNotMade when the window is; Cancel changes nothing.
OSStatus RunModalSeparatorsDialog(CFBundleRef bundle, std::int32_t *separators,
                                  Stock *separatorStock, DialogResult *result,
                                  QWidget *parent = nullptr);

} // namespace kelvo
