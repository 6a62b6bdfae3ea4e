#include "printers.h"

#include "cups_connection.h"
#include "file_store.h"
#include "output_file.h"
#include "queue_ppds.h"
#include "temporary_folder.h"

#include <QTimer>

#include <algorithm>
#include <vector>

namespace kelvo {

namespace {

using Code = Error::Code;

// Attributes of the queue that libcups lists among its options.
bool isDescription(const QString &name)
{
    static const char *const prefixes[] = {"printer-", "marker-",    "job-",
                                           "notify-",  "auth-info-", "device-uri"};
    return std::any_of(std::begin(prefixes), std::end(prefixes),
                       [&](const char *prefix) { return name.startsWith(QLatin1String(prefix)); });
}

Printer::State stateFrom(int value)
{
    switch (value) {
    case IPP_PSTATE_PROCESSING:
        return Printer::State::Busy;
    case IPP_PSTATE_STOPPED:
        return Printer::State::Stopped;
    default:
        return Printer::State::Idle;
    }
}

Printer printerFrom(const cups_dest_t &destination)
{
    QMap<QString, QString> options;
    for (int i = 0; i < destination.num_options; ++i)
        options.insert(QString::fromUtf8(destination.options[i].name),
                       QString::fromUtf8(destination.options[i].value));
    const auto option = [&options](const char *name) {
        return options.value(QLatin1String(name)).simplified();
    };

    Printer printer;
    printer.name = QString::fromUtf8(destination.name);
    if (destination.instance)
        printer.name += u'/' + QString::fromUtf8(destination.instance);
    printer.info = option("printer-info");
    printer.location = option("printer-location");
    printer.makeAndModel = option("printer-make-and-model");
    printer.state = stateFrom(option("printer-state").toInt());
    printer.acceptsJobs = option("printer-is-accepting-jobs") != QLatin1String("false");
    printer.stateMessage =
        stateWords({}, option("printer-state-reasons").split(u',', Qt::SkipEmptyParts));
    printer.isDefault = destination.is_default != 0;
    for (auto value = options.cbegin(); value != options.cend(); ++value) {
        if (!isDescription(value.key()))
            printer.defaults.insert(value.key(), value.value());
    }
    return printer;
}

Result<QList<Printer>> readPrinters(Patience &patience)
{
    const auto http = connectToServer(patience);
    if (!http)
        return http.error();
    cups_dest_t *destinations = nullptr;
    const int count = cupsGetDests2(http.value().get(), &destinations);
    const bool isKnown = lastCallSucceeded() || cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND;
    if (count == 0 && (!isKnown || patience.isOver()))
        return serverError(patience, serverName());

    QList<Printer> printers;
    for (int i = 0; i < count; ++i) {
        // A printer that only announces itself on the network has no queue yet.
        if (cupsGetOption("printer-uri-supported", destinations[i].num_options,
                          destinations[i].options))
            printers << printerFrom(destinations[i]);
    }
    cupsFreeDests(count, destinations);
    // The user's own options for a queue hide from libcups' list that the
    // server has it as its default.
    const auto isDefault = [](const Printer &printer) { return printer.isDefault; };
    if (!printers.isEmpty() && std::none_of(printers.cbegin(), printers.cend(), isDefault)) {
        const QString name = QString::fromUtf8(cupsGetDefault2(http.value().get()));
        for (Printer &printer : printers)
            printer.isDefault = printer.name == name;
    }
    std::stable_partition(printers.begin(), printers.end(), isDefault);
    return printers;
}

Result<QByteArray> readPpd(const QString &printer, Patience &patience)
{
    const auto queue = queueName(printer);
    if (!queue)
        return queue.error();
    const auto http = connectToServer(patience);
    if (!http)
        return http.error();
    auto ppd = queuePpd(http.value().get(), queue.value(), patience);
    return ppd ? ppd : Error{ppd.error().code, printer, ppd.error().detail};
}

Result<PrinterCondition> readCondition(const QString &printer, Patience &patience)
{
    const auto queue = queueName(printer);
    if (!queue)
        return queue.error();
    const auto http = connectToServer(patience);
    if (!http)
        return http.error();
    static const char *const wanted[] = {"printer-state", "printer-state-message",
                                         "printer-state-reasons", "printer-is-accepting-jobs"};
    ipp_t *request = newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue.value());
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  int(std::size(wanted)), nullptr, wanted);
    const Message response(cupsDoRequest(http.value().get(), request, "/"));
    if (!response || !lastCallSucceeded())
        return serverError(patience, printer);
    const auto find = [&response](const char *name, ipp_tag_t tag) {
        return ippFindAttribute(response.get(), name, tag);
    };
    PrinterCondition condition;
    condition.state = stateFrom(ippGetInteger(find("printer-state", IPP_TAG_ENUM), 0));
    if (ipp_attribute_t *accepts = find("printer-is-accepting-jobs", IPP_TAG_BOOLEAN))
        condition.acceptsJobs = ippGetBoolean(accepts, 0) != 0;
    QStringList reasons;
    ipp_attribute_t *listed = find("printer-state-reasons", IPP_TAG_KEYWORD);
    for (int i = 0; i < ippGetCount(listed); ++i)
        reasons << QString::fromUtf8(ippGetString(listed, i, nullptr));
    condition.stateMessage = stateWords(
        QString::fromUtf8(ippGetString(find("printer-state-message", IPP_TAG_TEXT), 0, nullptr)),
        reasons);
    return condition;
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
    TemporaryFolder folder;
    int ppdCount = 0;
    std::vector<std::weak_ptr<Patience>> conversations;

    // `call` on the owner's thread, if there is an owner then.
    void post(std::function<void(PrinterDirectory *)> call)
    {
        const std::lock_guard lock(mutex);
        if (PrinterDirectory *target = owner)
            QMetaObject::invokeMethod(
                target, [target, call = std::move(call)] { call(target); }, Qt::QueuedConnection);
    }

    QString newPpdPath()
    {
        const std::lock_guard lock(mutex);
        return folder.filePath(QStringLiteral("%1.ppd").arg(++ppdCount));
    }

    // `work` aside; `answer` gets its result, or what became of it, once.
    template <typename T>
    static void ask(const std::shared_ptr<Private> &d, int timeoutMs,
                    std::function<Result<T>(Patience &)> work,
                    const std::function<QString()> &where,
                    std::function<void(PrinterDirectory *, const Result<T> &)> answer)
    {
        auto patience = std::make_shared<Patience>(timeoutMs);
        auto isAnswered = std::make_shared<bool>(false); // of the owner's thread
        const auto answerOnce = [isAnswered, answer](PrinterDirectory *directory,
                                                     const Result<T> &result) {
            if (!std::exchange(*isAnswered, true))
                answer(directory, result);
        };
        std::erase_if(d->conversations, [](const auto &one) { return one.expired(); });
        d->conversations.push_back(patience);
        const bool isStarted = startBackgroundWork([d, patience, work, answerOnce] {
            d->post([result = work(*patience), answerOnce](PrinterDirectory *directory) {
                answerOnce(directory, result);
            });
        });
        QTimer::singleShot(
            isStarted ? timeoutMs : 0, d->owner,
            [directory = d->owner, isStarted, patience, where, answerOnce] {
                patience->stop();
                answerOnce(directory, isStarted ? timedOut(*patience, where()) : noThread(where()));
            });
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
    d->folder.remove();
}

void PrinterDirectory::refresh(int timeoutMs)
{
    Private::ask<QList<Printer>>(
        d, timeoutMs, readPrinters, serverName,
        [](PrinterDirectory *self, const Result<QList<Printer>> &printers) {
            if (printers)
                emit self->printersFound(printers.value());
            else
                emit self->printersFailed(printers.error());
        });
}

void PrinterDirectory::fetchPpd(const QString &printer, int timeoutMs)
{
    Private::ask<QString>(
        d, timeoutMs,
        [printer, shared = d](Patience &patience) -> Result<QString> {
            const auto bytes = readPpd(printer, patience);
            if (!bytes)
                return bytes.error();
            if (!shared->folder.isValid())
                return folderNotMade(temporaryPath(), shared->folder.errorString());
            const QString path = shared->newPpdPath();
            if (auto written = replaceFile(path, bytes.value()); !written)
                return written.error();
            return path;
        },
        [printer] { return printer; },
        [printer](PrinterDirectory *self, const Result<QString> &path) {
            if (path)
                emit self->ppdFetched(printer, path.value());
            else
                emit self->ppdFailed(printer, path.error());
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
    return askAndWait<QList<Printer>>(readPrinters, serverName, timeoutMs);
}

Result<PrinterCondition> printerCondition(const QString &printer, int timeoutMs)
{
    return askAndWait<PrinterCondition>(
        [printer](Patience &patience) { return readCondition(printer, patience); },
        [printer] { return printer; }, timeoutMs);
}

} // namespace kelvo
