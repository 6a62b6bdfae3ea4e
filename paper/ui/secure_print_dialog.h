#pragma once

#include "bundle.h"
#include "status.h"

#include <QString>

#include <optional>

class QWidget;

namespace kelvo {

// Asks for the passcode of a secure print, twice. After OK there is always one:
// where both fields were empty it is made, and announced. paramErr when a pointer
// is missing, kWindowNotMade when the window is; Cancel changes nothing.
OSStatus RunModalSecurePrintSetup(CFBundleRef bundle, std::optional<QString> *passcode,
                                  QWidget *parent = nullptr);

} // namespace kelvo
