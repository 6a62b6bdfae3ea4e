#include "newest_task.h"

#include <system_error>
#include <utility>

namespace kelvo {

NewestTask::~NewestTask()
{
    drop();
    if (!m_thread.joinable())
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_one();
    m_thread.join();
}

bool NewestTask::start(Work work)
{
    drop();
    if (!provideThread())
        return false;
    m_unwanted = std::make_shared<std::atomic_bool>(false);
    {
        const std::lock_guard lock(m_mutex);
        m_next = Request{std::move(work), m_unwanted};
    }
    m_changed.notify_one();
    return true;
}

void NewestTask::drop()
{
    if (m_unwanted)
        *m_unwanted = true;
    m_unwanted.reset();
    const std::lock_guard lock(m_mutex);
    m_next.reset();
}

bool NewestTask::provideThread()
{
    if (m_thread.joinable())
        return true;
    try {
        m_thread = std::thread([this] { run(); });
        return true;
    } catch (const std::system_error &) {
        return false;
    }
}

void NewestTask::run()
{
    for (;;) {
        Request request;
        {
            std::unique_lock lock(m_mutex);
            m_changed.wait(lock, [this] { return m_next || m_isEnding; });
            if (m_isEnding)
                return;
            request = *std::exchange(m_next, std::nullopt);
        }
        Answer answer = request.work(*request.unwanted);
        // Asked once more where newer work cannot come in between.
        QMetaObject::invokeMethod(
            &m_owner,
            [this, unwanted = request.unwanted, answer = std::move(answer)] {
                if (*unwanted)
                    return;
                m_unwanted.reset();
                answer();
            },
            Qt::QueuedConnection);
    }
}

} // namespace kelvo
