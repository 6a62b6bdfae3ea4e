#pragma once

#include "background_task.h"
#include "job_watch.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace kelvo {

// Tells the user of a window that the job is out, before the window goes: by the desktop's
// notifications, which tell the rest, too; where nothing shows them, the window's last line stays
// for a moment and says what becomes of the job, and for longer where somebody looks at it. A
// desktop that does not answer keeps it no longer than that.
class SentMessage : public QObject
{
    Q_OBJECT

public:
    // `isAttended` says whether somebody is about to do something in the window.
    explicit SentMessage(std::function<bool()> isAttended, QObject *parent = nullptr);

    // "Hall-3-17 sent", of the document `title`. `job` where it went to a queue; `timeoutMs` for
    // each question about it. Once.
    void tell(const QString &text, const QString &title, const std::optional<SentJob> &job,
              int timeoutMs);
    bool isTelling() const { return m_moment.isActive(); }

    bool canCancel() const; // the job, by now
    void cancelJob();

signals:
    void said(const QString &text); // the line, from now on
    void told();                    // once

private:
    void takeShown(bool isShown);
    void end();

    const std::function<bool()> m_isAttended;
    BackgroundTask<bool> m_notification;
    std::unique_ptr<JobWatch> m_watch; // null: no queue
    QTimer m_moment;
};

} // namespace kelvo
