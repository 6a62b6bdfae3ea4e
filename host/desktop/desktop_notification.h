#pragma once

#include <QString>

namespace kelvo {

// Shows a message by the desktop's notification service (org.freedesktop.Notifications
// on the session bus). Both are plain text; `body` may be empty. Whether the service took
// it: false too where there is no bus or nobody on it that shows any. It blocks for as
// long as the bus does, so it is called on a thread that may be left behind.
bool showDesktopNotification(const QString &summary, const QString &body);

} // namespace kelvo
