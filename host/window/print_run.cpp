#include "print_run.h"

#include "cautions.h"
#include "printers.h"

#include <algorithm>

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

// While it is sent: what is wrong is on the way, but for what the queue turns out
// not to do.
ExitStatus statusOfDelivery(Code code)
{
    switch (code) {
    case Code::NotFound:
    case Code::Unreachable:
    case Code::TimedOut:
    case Code::Damaged: // the PPD that the server has for it
        return ExitStatus::NoDestination;
    case Code::Unsupported:
        return ExitStatus::NotOffered;
    case Code::Cancelled:
        return ExitStatus::Cancelled;
    default:
        return ExitStatus::Failed;
    }
}

// A queue may have begun to reject jobs since the window looked at it. That is told as the
// window tells it, with what the server said behind.
QString whyNotDelivered(const Error &error, const PrintRun::Order &order)
{
    constexpr int patienceMs = 5000; // it has just answered
    if (error.code != Code::Refused)
        return error.text();
    const auto now = printerCondition(order.queue, std::min(order.timeoutMs, patienceMs));
    const auto caution = now ? printerCaution(order.queue, now.value()) : std::nullopt;
    return caution && caution->weight == Caution::Weight::Refused
        ? QStringLiteral("%1 (%2)").arg(caution->sentences(), error.text())
        : error.text();
}

PrintOutcome carryOut(PrintRun::Order &order, const std::atomic_bool &cancelled)
{
    order.request.ppd = order.ppd.get();
    const auto prepared = prepareJob(order.request);
    if (!prepared)
        return {statusOfPreparation(prepared.error().code), {}, prepared.error().text()};
    const PreparedJob &job = prepared.value();
    if (cancelled)
        return {ExitStatus::Cancelled, {}, PrintRun::tr("The job was cancelled.")};
    if (!order.folder.isEmpty()) {
        if (const auto delivered = deliverToFolder(job, order.folder); !delivered)
            return {ExitStatus::Failed, {}, delivered.error().text()};
        return {ExitStatus::Printed, order.folder, {}};
    }
    const auto delivered =
        deliverToQueue(job, order.queue, order.request.title, order.timeoutMs, cancelled);
    if (!delivered)
        return {statusOfDelivery(delivered.error().code),
                {},
                whyNotDelivered(delivered.error(), order)};
    return {ExitStatus::Printed, delivered.value().name, {}};
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
