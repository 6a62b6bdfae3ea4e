#pragma once

#include "bundle.h"
#include "status.h"

#include <cstdint>

class QWidget;

// What the special pages panel and its dialogs tell and ask.
namespace kelvo {

// Says what is wrong with typed pages: a PageRangeProblem or kTooManyInserts.
// Nothing is shown for any other code.
void SpecialPagesUserNotification(OSStatus code, CFBundleRef bundle, QWidget *parent = nullptr);

// Asks before special pages are deleted; `questionKey` is of the message. True
// for the second button.
bool mayDeleteSpecialPages(CFBundleRef bundle, const QString &questionKey,
                           QWidget *parent = nullptr);

} // namespace kelvo
