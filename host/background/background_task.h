#pragma once

#include "background_work.h"

#include <QFutureWatcher>
#include <QPromise>

#include <functional>
#include <future>
#include <memory>

namespace kelvo {

// Background work that gives an answer. It comes by the event loop of the thread
// that owns the task, and not at all once the task is gone: work that never ends
// keeps nobody waiting. What the work uses it must own. T need not be copyable.
template <typename T>
class BackgroundTask
{
public:
    // Replaces a task that is still running: its answer is dropped. `done` may run an
    // event loop, start the next task, or end this one. False when the system has no
    // thread to give (see noThreadReason): neither is called then.
    [[nodiscard]] bool start(std::function<T()> work, std::function<void(T)> done)
    {
        // Qt's promise only wakes the event loop. A result taken out of it makes its
        // future unfinished, and the thread, which still holds the promise, finishes
        // it a second time. The standard's hands the result over, once.
        const auto finished = std::make_shared<QPromise<void>>();
        const auto result = std::make_shared<std::promise<T>>();
        m_watcher = std::make_unique<QFutureWatcher<void>>();
        QObject::connect(m_watcher.get(), &QFutureWatcherBase::finished, m_watcher.get(),
                         [this, result, done = std::move(done)] {
                             QFutureWatcher<void> *watcher = m_watcher.release();
                             watcher->disconnect();
                             watcher->deleteLater();
                             done(result->get_future().get());
                         });
        m_watcher->setFuture(finished->future());
        if (startBackgroundWork([work = std::move(work), result, finished] {
                finished->start();
                result->set_value(work());
                finished->finish();
            }))
            return true;
        drop();
        return false;
    }

    void drop() { m_watcher.reset(); }

private:
    std::unique_ptr<QFutureWatcher<void>> m_watcher;
};

} // namespace kelvo
