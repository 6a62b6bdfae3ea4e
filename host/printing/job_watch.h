#pragma once

#include "background_task.h"
#include "sent_job.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <memory>

namespace kelvo {

class Patience;

// Looks what becomes of a job, by small requests on threads of their own: often as long as
// something happens, and every five seconds where nothing does. (A server's own notifications
// would have to be fetched by the same requests, and kept on the server.) A server that does not
// answer keeps nobody waiting: it is asked again.
class JobWatch : public QObject
{
    Q_OBJECT

public:
    // No answer for `timeoutMs`, and the job is lost().
    JobWatch(SentJob job, int timeoutMs, QObject *parent = nullptr);
    ~JobWatch() override;

    void start();
    void stop(); // nothing comes any more

    const SentJob &job() const { return m_job; }
    const JobCondition &condition() const { return m_condition; } // the last that was heard
    bool isOver() const { return m_condition.isOver(); }

    // Takes the job back. What becomes of it is a change; that it cannot be is told.
    void cancel();
    bool isCancelling() const { return m_isCancelling; }

signals:
    void changed(); // condition()
    void notCancelled(const kelvo::Error &error);
    void lost(const kelvo::Error &error); // once, and nothing comes after it

private:
    void look();
    void take(const Result<JobCondition> &answer);
    void takeCancelled(const Result<void> &answer);

    const SentJob m_job;
    const int m_timeoutMs;
    JobCondition m_condition;
    bool m_isKnown = false; // the server has had it
    bool m_isCancelling = false;
    QElapsedTimer m_sinceChange, m_sinceAnswer;
    QTimer m_next, m_deadline;
    BackgroundTask<Result<JobCondition>> m_looking;
    BackgroundTask<Result<void>> m_cancelling;
    std::shared_ptr<Patience> m_patience, m_cancelPatience;
};

} // namespace kelvo
