#pragma once

#include "background_task.h"

#include <QObject>
#include <QTimer>

namespace kelvo {

// Tells the user of a window that the job is out, before the window goes: by the
// desktop's notifications; where nothing shows them, the window's last line stays for a
// moment. A desktop that does not answer keeps it no longer than that.
class SentMessage : public QObject
{
    Q_OBJECT

public:
    explicit SentMessage(QObject *parent = nullptr);

    // "Hall-3-17 sent", of the document `title`. Once.
    void tell(const QString &text, const QString &title);
    bool isTelling() const { return m_moment.isActive(); }

signals:
    void told(); // once

private:
    BackgroundTask<bool> m_notification;
    QTimer m_moment;
};

} // namespace kelvo
