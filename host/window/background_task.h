#pragma once

#include "background_work.h"

#include <QFutureWatcher>
#include <QPromise>

#include <functional>
#include <memory>

namespace kelvo {

// Background work that gives an answer. It comes by the event loop of the thread
// that owns the task, and not at all once the task is gone: work that never ends
// keeps nobody waiting. What the work uses it must own.
template <typename T>
class BackgroundTask
{
public:
    // Replaces a task that is still running: its answer is dropped. Without a
    // thread to be had, the work is done here and now.
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
        const auto promise = std::make_shared<QPromise<T>>();
        m_watcher->setFuture(promise->future());
        const std::function<void()> answer = [work = std::move(work), promise] {
            promise->start();
            promise->addResult(work());
            promise->finish();
        };
        if (!startBackgroundWork(answer))
            answer();
    }

    void drop() { m_watcher.reset(); }

private:
    std::unique_ptr<QFutureWatcher<T>> m_watcher;
};

} // namespace kelvo
