#pragma once

#include <QFutureWatcher>
#include <QPromise>

#include <functional>
#include <memory>
#include <thread>

// Work that can block, on a thread of its own. The answer comes by the event
// loop of the thread that owns the task, and not at all once the task is gone:
// work that never ends keeps nobody waiting. What the work uses it must own.
namespace kelvo {

// Counts the threads that still run, so that the program can end in the middle
// of one without tearing its data away (see waitForBackgroundWork).
void beginBackgroundWork();
void endBackgroundWork();
// Whether all work has ended within `milliseconds`. Where it has not, the
// program must leave with _exit().
bool waitForBackgroundWork(int milliseconds);

template <typename T>
class BackgroundTask
{
public:
    // Replaces a task that is still running: its answer is dropped.
    void start(std::function<T()> work, std::function<void(T)> done)
    {
        m_watcher = std::make_unique<QFutureWatcher<T>>();
        QObject::connect(m_watcher.get(), &QFutureWatcherBase::finished, m_watcher.get(),
                         [this, done = std::move(done)] {
                             // `done` may start the next task, or be the end of this one.
                             QFutureWatcher<T> *watcher = m_watcher.release();
                             watcher->deleteLater();
                             done(watcher->future().takeResult());
                         });
        QPromise<T> promise;
        m_watcher->setFuture(promise.future());
        beginBackgroundWork();
        std::thread([work = std::move(work), promise = std::move(promise)]() mutable {
            promise.start();
            promise.addResult(work());
            promise.finish();
            work = nullptr; // lets go of what it owns before it counts as ended
            endBackgroundWork();
        }).detach();
    }

    bool isRunning() const { return m_watcher != nullptr; }
    void drop() { m_watcher.reset(); }

private:
    std::unique_ptr<QFutureWatcher<T>> m_watcher;
};

} // namespace kelvo
