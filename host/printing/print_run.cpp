#include "print_run.h"

namespace kelvo {

namespace {

using Code = Error::Code;

// While the job is made: what is wrong is in the settings.
ExitStatus statusOfPreparation(Code code)
{
    switch (code) {
    case Code::Refused:
    case Code::Unsupported:
    case Code::OutOfRange:
        return ExitStatus::NotOffered;
    case Code::Cancelled:
        return ExitStatus::Cancelled;
    default:
        return ExitStatus::Failed;
    }
}

PrintOutcome carryOut(PrintRun::Order &order, const std::atomic_bool &cancelled)
{
    order.request.ppd = order.ppd.get();
    const auto prepared = prepareJob(order.request);
    if (!prepared)
        return {statusOfPreparation(prepared.error().code), {}, prepared.error().text()};
    if (cancelled)
        return {ExitStatus::Cancelled, {}, PrintRun::tr("The job was cancelled.")};
    return order.destination->deliver(prepared.value(), cancelled);
}

} // namespace

PrintRun::PrintRun(QObject *parent)
    : QObject(parent)
    , m_cancelled(std::make_shared<std::atomic_bool>(false))
{
}

PrintRun::~PrintRun()
{
    cancel();
}

void PrintRun::start(Order order)
{
    const bool isStarted =
        m_task.start([order = std::make_shared<Order>(std::move(order)),
                      cancelled = m_cancelled] { return carryOut(*order, *cancelled); },
                     [this](const PrintOutcome &outcome) { emit finished(outcome); });
    if (isStarted)
        return;
    // Never from within this call: whoever calls has not yet shown that it prints.
    QMetaObject::invokeMethod(
        this,
        [this] {
            emit finished(
                {ExitStatus::Failed, {}, tr("Nothing was sent: %1.").arg(noThreadReason())});
        },
        Qt::QueuedConnection);
}

void PrintRun::cancel()
{
    *m_cancelled = true;
}

} // namespace kelvo
