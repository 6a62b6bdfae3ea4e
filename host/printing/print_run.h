#pragma once

#include "background_task.h"
#include "destination.h"

#include <QObject>

#include <atomic>
#include <memory>

namespace kelvo {

// Prepares and delivers one job on a thread of its own. It runs once.
class PrintRun : public QObject
{
    Q_OBJECT

public:
    struct Order
    {
        JobRequest request;           // its PPD pointer is set from `ppd`
        std::shared_ptr<PpdFile> ppd; // kept until the job is out
        std::shared_ptr<const Destination> destination;
    };
    explicit PrintRun(QObject *parent = nullptr);
    ~PrintRun() override; // cancels

    void start(Order order);
    // Stops before the document is complete where that is still possible; the
    // outcome says what happened.
    void cancel();

signals:
    void finished(const kelvo::PrintOutcome &outcome);

private:
    BackgroundTask<PrintOutcome> m_task;
    std::shared_ptr<std::atomic_bool> m_cancelled;
};

} // namespace kelvo
