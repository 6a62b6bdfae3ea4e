#pragma once

#include <QObject>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

// Work on a thread beside the window's, of which only the newest counts: what is begun next
// replaces what is still under way.
namespace kelvo {

// For the thread that makes it, which has an event loop. Its end waits for the work, which
// therefore looks often at whether it is still wanted.
class NewestTask
{
public:
    // What becomes of the work; called on the owner's thread. It may start the next work, or
    // end the task.
    using Answer = std::function<void()>;
    // What it uses it must own. `isUnwanted` becomes true when nobody waits for it any more.
    using Work = std::function<Answer(const std::atomic_bool &isUnwanted)>;

    NewestTask() = default;
    ~NewestTask();
    NewestTask(const NewestTask &) = delete;
    NewestTask &operator=(const NewestTask &) = delete;

    // False when the system has no thread to give: `work` is not called then.
    [[nodiscard]] bool start(Work work);
    // Nothing is answered any more.
    void drop();
    bool isBusy() const { return m_unwanted != nullptr; }

private:
    using Flag = std::shared_ptr<std::atomic_bool>;
    struct Request
    {
        Work work;
        Flag unwanted;
    };

    bool provideThread();
    void run();

    QObject m_owner; // lives on the owner's thread
    Flag m_unwanted; // of the newest work; null when there is none
    std::thread m_thread;

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::optional<Request> m_next; // under the mutex
    bool m_isEnding = false;       // under the mutex
};

} // namespace kelvo
