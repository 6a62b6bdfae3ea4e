#pragma once

#include "bundle.h"
#include "long_date.h"
#include "status.h"

class QWidget;

namespace kelvo {

// Asks for the time of day at which the job prints: today, or tomorrow where that
// has passed. paramErr when a pointer is missing, kWindowNotMade when the window
// is; Cancel changes nothing.
OSStatus RunModalDelayedPrintSetup(CFBundleRef bundle, LongDateTime *time,
                                   QWidget *parent = nullptr);

} // namespace kelvo
