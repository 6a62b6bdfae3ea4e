#include "printers.h"

#include "cups_connection.h"
#include "ipp_ppd.h"
#include "printer_list.h"
#include "queue_ppds.h"

#include <QTimer>

#include <future>
#include <vector>

namespace kelvo {

namespace {

// What the server has for a printer.
struct FetchedPpd
{
    Result<std::shared_ptr<PpdFile>> opened;
};

Result<FetchedPpd> readPpd(const QString &printer, Patience &patience)
{
    const auto queue = queueName(printer);
    if (!queue)
        return queue.error();
    const auto http = connectToServer(patience);
    if (!http)
        return http.error();
    const auto bytes = queuePpd(http.value().get(), queue.value(), patience);
    if (bytes)
        return FetchedPpd{PpdFile::fromBytes(bytes.value(), printer)};
    const Error error{bytes.error().code, printer, bytes.error().detail};
    if (error.code != Error::Code::NotFound)
        return error;
    // Without one, what the printer says of itself; it prints with common settings where that is
    // nothing, or cannot be had.
    const auto described = describeQueue(http.value().get(), queue.value(), patience);
    const QByteArray made = described ? ppdFrom(described.value()) : QByteArray();
    if (made.isEmpty())
        return error;
    return FetchedPpd{PpdFile::fromBytes(made, printer)};
}

// `work` aside, for a caller that has nothing else to do.
template <typename T>
Result<T> askAndWait(std::function<Result<T>(Patience &)> work,
                     const std::function<QString()> &where, int timeoutMs)
{
    const auto patience = std::make_shared<Patience>(timeoutMs);
    auto answer = runAside<T>([patience, work = std::move(work)] { return work(*patience); }, where,
                              [patience] { return patience->isTimedOut(500); });
    if (answer)
        return *answer;
    patience->stop();
    return timedOut(*patience, where());
}

} // namespace

// Shared with the threads that talk to the server; the directory may go first.
struct PrinterDirectory::Private
{
    std::mutex mutex;
    PrinterDirectory *owner = nullptr; // null once it is gone
    std::vector<std::weak_ptr<Patience>> conversations;
    // What is fetched before anybody asks for it, and of which printer.
    QString aheadPrinter;
    std::shared_future<Result<FetchedPpd>> ahead;

    // `call` on the owner's thread, if there is an owner then.
    void post(std::function<void(PrinterDirectory *)> call)
    {
        const std::lock_guard lock(mutex);
        if (PrinterDirectory *target = owner)
            QMetaObject::invokeMethod(
                target, [target, call = std::move(call)] { call(target); }, Qt::QueuedConnection);
    }

    std::shared_ptr<Patience> beginConversation(int timeoutMs)
    {
        auto patience = std::make_shared<Patience>(timeoutMs);
        const std::lock_guard lock(mutex);
        std::erase_if(conversations, [](const auto &one) { return one.expired(); });
        conversations.push_back(patience);
        if (!owner)
            patience->stop();
        return patience;
    }

    void fetchAhead(const QString &printer, int timeoutMs)
    {
        const auto fetched = std::make_shared<std::promise<Result<FetchedPpd>>>();
        if (!startBackgroundWork([fetched, printer, patience = beginConversation(timeoutMs)] {
                fetched->set_value(readPpd(printer, *patience));
            }))
            return;
        const std::lock_guard lock(mutex);
        aheadPrinter = printer;
        ahead = fetched->get_future();
    }

    // Once; none for another printer.
    std::shared_future<Result<FetchedPpd>> takeAhead(const QString &printer)
    {
        const std::lock_guard lock(mutex);
        return printer == aheadPrinter ? std::exchange(ahead, {})
                                       : std::shared_future<Result<FetchedPpd>>();
    }

    // `work` aside; `answer` gets its result, or what became of it, once.
    template <typename T>
    static void ask(const std::shared_ptr<Private> &d, int timeoutMs,
                    std::function<Result<T>(Patience &)> work,
                    const std::function<QString()> &where,
                    std::function<void(PrinterDirectory *, const Result<T> &)> answer)
    {
        const auto patience = d->beginConversation(timeoutMs);
        auto isAnswered = std::make_shared<bool>(false); // of the owner's thread
        const auto answerOnce = [isAnswered, answer](PrinterDirectory *directory,
                                                     const Result<T> &result) {
            if (!std::exchange(*isAnswered, true))
                answer(directory, result);
        };
        const bool isStarted = startBackgroundWork([d, patience, work, answerOnce] {
            d->post([result = work(*patience), answerOnce](PrinterDirectory *directory) {
                answerOnce(directory, result);
            });
        });
        const auto giveUp = [directory = d->owner, isStarted, patience, where, answerOnce] {
            patience->stop();
            answerOnce(directory, isStarted ? timedOut(*patience, where()) : noThread(where()));
        };
        // There are no timers before there is an application: the event loop sets it.
        QMetaObject::invokeMethod(
            d->owner,
            [directory = d->owner, wait = isStarted ? timeoutMs : 0, giveUp] {
                QTimer::singleShot(wait, directory, giveUp);
            },
            Qt::QueuedConnection);
    }
};

PrinterDirectory::PrinterDirectory(QObject *parent)
    : QObject(parent)
    , d(std::make_shared<Private>())
{
    d->owner = this;
}

PrinterDirectory::~PrinterDirectory()
{
    const std::lock_guard lock(d->mutex);
    d->owner = nullptr;
    for (const auto &conversation : d->conversations) {
        if (const auto patience = conversation.lock())
            patience->stop();
    }
}

void PrinterDirectory::refresh(int timeoutMs, Ahead ahead, const QString &preferred)
{
    Private::ask<QList<Printer>>(
        d, timeoutMs,
        [shared = d, timeoutMs, ahead, preferred](Patience &patience) {
            auto printers = readPrinters(patience, preferred);
            if (ahead == Ahead::PpdOfFirst && printers && !printers.value().isEmpty())
                shared->fetchAhead(printers.value().first().name, timeoutMs);
            return printers;
        },
        serverName,
        [](PrinterDirectory *self, const Result<QList<Printer>> &printers) {
            if (printers)
                emit self->printersFound(printers.value());
            else
                emit self->printersFailed(printers.error());
        });
}

void PrinterDirectory::fetchPpd(const QString &printer, int timeoutMs)
{
    Private::ask<FetchedPpd>(
        d, timeoutMs,
        [printer, ahead = d->takeAhead(printer)](Patience &patience) {
            return ahead.valid() ? ahead.get() : readPpd(printer, patience);
        },
        [printer] { return printer; },
        [printer](PrinterDirectory *self, const Result<FetchedPpd> &ppd) {
            if (!ppd)
                emit self->ppdFailed(printer, ppd.error());
            else if (const auto &opened = ppd.value().opened)
                emit self->ppdFetched(printer, opened.value());
            else
                emit self->ppdUnreadable(printer, opened.error());
        });
}

void PrinterDirectory::fetchCondition(const QString &printer, int timeoutMs)
{
    Private::ask<PrinterCondition>(
        d, timeoutMs, [printer](Patience &patience) { return readCondition(printer, patience); },
        [printer] { return printer; },
        [printer](PrinterDirectory *self, const Result<PrinterCondition> &condition) {
            if (condition)
                emit self->conditionFound(printer, condition.value());
            else
                emit self->conditionFailed(printer, condition.error());
        });
}

Result<QList<Printer>> listPrinters(int timeoutMs)
{
    return askAndWait<QList<Printer>>([](Patience &patience) { return readPrinters(patience); },
                                      serverName, timeoutMs);
}

Result<PrinterCondition> printerCondition(const QString &printer, int timeoutMs)
{
    return askAndWait<PrinterCondition>(
        [printer](Patience &patience) { return readCondition(printer, patience); },
        [printer] { return printer; }, timeoutMs);
}

} // namespace kelvo
