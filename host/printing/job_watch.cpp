#include "job_watch.h"

#include "cups_connection.h"

#include <algorithm>
#include <utility>

namespace kelvo {

namespace {

constexpr int soonMs = 300;
constexpr int lateMs = 5000;

} // namespace

JobWatch::JobWatch(SentJob job, int timeoutMs, QObject *parent)
    : QObject(parent)
    , m_job(std::move(job))
    , m_timeoutMs(timeoutMs)
{
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, &JobWatch::look);
    m_deadline.setSingleShot(true);
    // A thread that hangs in libcups is left behind.
    connect(&m_deadline, &QTimer::timeout, this, [this] {
        m_looking.drop();
        m_patience->stop();
        take(timedOut(*m_patience, m_job.name()));
    });
}

JobWatch::~JobWatch()
{
    stop();
}

void JobWatch::start()
{
    m_sinceChange.start();
    m_sinceAnswer.start();
    m_next.start(0);
}

void JobWatch::stop()
{
    m_next.stop();
    m_deadline.stop();
    m_looking.drop();
    m_cancelling.drop();
    for (const auto &patience : {m_patience, m_cancelPatience}) {
        if (patience)
            patience->stop();
    }
}

void JobWatch::look()
{
    m_patience = std::make_shared<Patience>(m_timeoutMs);
    m_deadline.start(m_timeoutMs + soonMs);
    if (!m_looking.start(
            [job = m_job, patience = m_patience] { return readCondition(job, *patience); },
            [this](const Result<JobCondition> &answer) { take(answer); }))
        take(noThread(m_job.name()));
}

void JobWatch::take(const Result<JobCondition> &answer)
{
    m_deadline.stop();
    JobCondition condition = m_condition;
    if (answer) {
        condition = answer.value();
        m_sinceAnswer.start();
    } else if (answer.error().code == Error::Code::NotFound) {
        condition = {JobCondition::State::Forgotten};
    } else if (m_sinceAnswer.hasExpired(m_timeoutMs)) {
        emit lost(answer.error());
        return;
    }
    const bool isFirst = answer && !std::exchange(m_isKnown, true);
    const bool isNews = isFirst || condition != m_condition;
    m_condition = condition;
    if (isNews)
        m_sinceChange.start();
    if (!isOver())
        m_next.start(std::clamp(int(m_sinceChange.elapsed() / 10), soonMs, lateMs));
    if (isNews)
        emit changed(); // whoever hears it may end this
}

void JobWatch::cancel()
{
    if (m_isCancelling || isOver())
        return;
    m_isCancelling = true;
    m_cancelPatience = std::make_shared<Patience>(m_timeoutMs);
    if (!m_cancelling.start(
            [job = m_job, patience = m_cancelPatience] { return takeBack(job, *patience); },
            [this](const Result<void> &answer) { takeCancelled(answer); }))
        takeCancelled(noThread(m_job.name()));
}

void JobWatch::takeCancelled(const Result<void> &answer)
{
    m_isCancelling = false;
    if (!m_deadline.isActive() && !isOver())
        m_next.start(0); // what has become of it
    if (!answer)
        emit notCancelled(answer.error());
}

} // namespace kelvo
