#include "sent_message.h"

#include "job_notice.h"

namespace kelvo {

namespace {

constexpr int momentMs = 1500; // to read one short line

} // namespace

SentMessage::SentMessage(std::function<bool()> isAttended, QObject *parent)
    : QObject(parent)
    , m_isAttended(std::move(isAttended))
{
    m_moment.setInterval(momentMs);
    connect(&m_moment, &QTimer::timeout, this, [this] {
        if (!canCancel() || !m_isAttended())
            end();
    });
}

void SentMessage::tell(const QString &text, const QString &title, const std::optional<SentJob> &job,
                       int timeoutMs)
{
    m_moment.start();
    emit said(text);
    JobNotice notice{text, title, {}, 0, timeoutMs};
    if (job) {
        notice.queue = job->queue;
        notice.jobId = job->id;
        m_watch = std::make_unique<JobWatch>(*job, timeoutMs);
        connect(m_watch.get(), &JobWatch::changed, this, [this] {
            emit said(jobLine(m_watch->job().name(), conditionInWords(m_watch->condition())));
            if (m_watch->isOver())
                m_moment.start(); // the last line can be read, too
        });
        connect(m_watch.get(), &JobWatch::notCancelled, this, [this](const Error &error) {
            emit said(notCancelledLine(m_watch->job().name(), error.detail));
            m_moment.start();
        });
        m_watch->start();
    }
    // Without a thread to be had, and wherever nobody shows it, the window's line stays.
    static_cast<void>(
        m_notification.start([notice] { return showsNotifications() && startJobNotice(notice); },
                             [this](bool isShown) { takeShown(isShown); }));
}

void SentMessage::takeShown(bool isShown)
{
    if (isShown && isTelling())
        end();
}

bool SentMessage::canCancel() const
{
    return m_watch && !m_watch->isOver();
}

void SentMessage::cancelJob()
{
    if (!canCancel())
        return;
    emit said(tr("Cancelling %1…").arg(m_watch->job().name()));
    m_moment.start();
    m_watch->cancel();
}

void SentMessage::end()
{
    m_moment.stop();
    m_notification.drop();
    if (m_watch)
        m_watch->stop();
    emit told();
}

} // namespace kelvo
