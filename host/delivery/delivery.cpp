#include "delivery.h"

#include "cups_connection.h"
#include "file_names.h"
#include "file_store.h"
#include "job_options.h"
#include "output_file.h"
#include "ppd_words.h"
#include "queue_ppds.h"
#include "temporary_folder.h"
#include "texts.h"
#include "ticket_attachment.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

namespace kelvo {

namespace {

using Code = Error::Code;

// The error for a job with a secret or a fax and a queue that would print it.
Error notRead(const PreparedJob &job, const QString &where)
{
    return {Code::Unsupported, where,
            job.hasPasscode
                ? translate("Delivery",
                            "the printer’s PPD does not say that it reads tickets "
                            "(*KelvoTicket: \"1\"): a job with a passcode would lie open in the "
                            "tray; print without it, or have the queue set up with the device’s "
                            "own PPD")
                : translate("Delivery",
                            "the printer’s PPD does not say that it reads tickets "
                            "(*KelvoTicket: \"1\"): a fax would be printed instead of sent; print "
                            "without it, or have the queue set up with the device’s own PPD")};
}

// What is printed of the document, and how it lies.
Result<PdfLayout> layoutOf(const JobRequest &request)
{
    const Document &document = request.document;
    if (document.isNull())
        return Error{Code::NotFound, translate("Delivery", "document"),
                     translate("Delivery", "there is nothing to print")};
    if (Result<void> checked = checkLayout(request.layout, document.pageCount(), document.title());
        !checked)
        return checked.error();
    return isAsItIs(request.layout, document.pageCount()) ? PdfLayout() : request.layout;
}

// The PDF that goes out: laid out, with the ticket where the device reads it, and without
// any older one, which could tell an older passcode. It is written anew also where the
// document names none: one may stand in what later revisions replaced.
Result<void> makePdf(const Document &document, const PdfLayout &layout, const QByteArray &ticket,
                     PreparedJob &job)
{
    const EmbeddedFile attachment = ticketAttachment(ticket);
    if (auto written = document.writtenAhead(layout, attachment)) {
        job.pdfPath = written->path;
        job.pdfOwner = written->owner;
        return {};
    }
    auto folder = std::make_shared<TemporaryFolder>();
    if (!folder->isValid())
        return folderNotMade(temporaryPath(), folder->errorString());
    job.pdfPath = folder->filePath(QStringLiteral("document.pdf"));
    job.pdfOwner = folder;
    return makeOutgoingPdf(document.pdfPath(), layout, attachment, job.pdfPath);
}

} // namespace

Result<PreparedJob> prepareJob(const JobRequest &request)
{
    PreparedJob job;
    if (request.isForPeople) {
        const auto layout = layoutOf(request);
        if (!layout)
            return layout.error();
        if (auto made = makePdf(request.document, layout.value(), {}, job); !made)
            return made.error();
        return job;
    }
    job.hasPasscode = holdsSecret(request.ticket, request.secretKeys);
    job.isFax = isFax(request.ticket, request.secretKeys);
    if ((job.hasPasscode || job.isFax) && !readsTickets(request.ppd))
        return notRead(job, QStringLiteral("kelvo-ticket"));
    auto options = jobOptions(request.ticket, request.settings, request.ppd, request.queueDefaults);
    if (!options)
        return options.error();
    const auto layout = layoutOf(request);
    if (!layout)
        return layout.error();
    auto ticket = ticketForJob(request.ticket);
    if (!ticket)
        return ticket.error();

    job.options = std::move(options).value();
    job.ticket = std::move(ticket).value();
    job.ticketSha256 = QCryptographicHash::hash(job.ticket, QCryptographicHash::Sha256);
    const bool withTicket = readsTickets(request.ppd);
    if (withTicket)
        job.options.push_back(ticketOption(job.ticketSha256, job.hasPasscode, job.isFax));
    if (auto made =
            makePdf(request.document, layout.value(), withTicket ? job.ticket : QByteArray(), job);
        !made) {
        return made.error();
    }
    return job;
}

Result<void> provideFolder(const QString &folder)
{
    if (::mkdir(fileNameBytes(folder).constData(), 0700) == 0)
        return {};
    const int reason = errno;
    const auto there = fileStatus(folder);
    if (reason == EEXIST && there && S_ISDIR(there->st_mode))
        return {};
    if (reason == EEXIST)
        return Error{Code::NotWritable, folder,
                     translate("Delivery", "this is not a folder; name another one")};
    const QString parent = QFileInfo(QDir::cleanPath(folder)).path();
    if (reason == ENOENT && !fileStatus(parent))
        return Error{Code::NotWritable, folder,
                     translate("Delivery",
                               "the folder %1 does not exist; make it first, or name another "
                               "one")
                         .arg(parent)};
    return Error{Code::NotWritable, folder,
                 joined({translate("Delivery", "the folder cannot be made (%1)")
                             .arg(QString::fromUtf8(std::strerror(reason))),
                         writingAdvice(reason)})};
}

namespace {

// Every file before the first one is replaced: a job is never half a new one.
Result<void> checkReplaceable(const QStringList &paths)
{
    for (const QString &path : paths) {
        const auto there = fileStatus(path);
        if (there && !S_ISREG(there->st_mode))
            return Error{Code::NotWritable, path,
                         translate("Delivery", "this is not a regular file; move it away")};
        if (there && ::access(fileNameBytes(path).constData(), W_OK) != 0)
            return Error{Code::NotWritable, path,
                         translate("Delivery",
                                   "the file is write-protected; move it away, or name another "
                                   "folder")};
    }
    return {};
}

Error notWritten(Error error)
{
    if (error.code == Code::NotWritable && error.number != 0)
        error.detail = joined({error.detail, writingAdvice(error.number)});
    return error;
}

} // namespace

Result<void> deliverToFolder(const PreparedJob &job, const QString &folder)
{
    if (auto provided = provideFolder(folder); !provided)
        return provided;
    QByteArray options;
    for (const JobOption &option : job.options)
        options += (option.name + u'=' + option.value + u'\n').toUtf8();
    const auto in = [&folder](const char *name) { return folder + u'/' + QLatin1String(name); };
    if (auto checked = checkReplaceable({in("document.pdf"), in("ticket.plist"), in("options")});
        !checked)
        return checked;
    // All three are on the disk before the first one changes: a folder never
    // holds half a job.
    auto pdf = StagedFile::withCopy(in("document.pdf"), job.pdfPath);
    if (!pdf)
        return notWritten(pdf.error());
    auto ticket = StagedFile::withBytes(in("ticket.plist"), job.ticket);
    if (!ticket)
        return notWritten(ticket.error());
    auto list = StagedFile::withBytes(in("options"), options);
    if (!list)
        return notWritten(list.error());
    std::array files = {std::move(pdf).value(), std::move(ticket).value(), std::move(list).value()};
    if (auto placed = StagedFile::place(files); !placed)
        return notWritten(placed.error());
    return {};
}

namespace {

bool isSameFile(const struct stat &one, const struct stat &other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

// What may not be replaced by a PDF.
Result<void> checkPdfTarget(const QString &path, const QStringList &documents)
{
    const auto there = fileStatus(path);
    if (!there) {
        const QString parent = QFileInfo(path).path();
        if (!fileStatus(parent))
            return Error{Code::NotWritable, path,
                         translate("Delivery",
                                   "the folder %1 does not exist; make it first, or name another "
                                   "one")
                             .arg(parent)};
        return {};
    }
    const auto isPrinted = [&there](const QString &document) {
        const auto printed = fileStatus(document);
        return printed && isSameFile(*printed, *there);
    };
    if (std::ranges::any_of(documents, isPrinted))
        return Error{Code::Refused, path,
                     translate("Delivery",
                               "this is the document itself, which would be lost; name another "
                               "file")};
    if (auto replaceable = checkReplaceable({path}); !replaceable)
        return replaceable;
    QFile file(path);
    if (there->st_size > 0
        && (!file.open(QIODevice::ReadOnly) || !file.read(1024).contains("%PDF-")))
        return Error{
            Code::Refused, path,
            translate("Delivery", "another file stands there that is no PDF; name another file")};
    return {};
}

// What the system gives the user's new files. There is no way to ask that changes nothing but
// to read it.
mode_t usualRights()
{
    QFile status(QStringLiteral("/proc/self/status"));
    mode_t umask = 077;
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : status.readAll().split('\n')) {
            if (line.startsWith("Umask:"))
                umask = line.mid(6).trimmed().toUInt(nullptr, 8);
        }
    }
    return 0666 & ~umask;
}

} // namespace

Result<void> deliverToPdf(const PreparedJob &job, const QString &path, const QStringList &documents)
{
    if (auto checked = checkPdfTarget(path, documents); !checked)
        return checked;
    const auto before = fileStatus(path);
    auto pdf = StagedFile::withCopy(path, job.pdfPath);
    if (!pdf)
        return notWritten(pdf.error());
    if (auto placed = pdf.value().place(); !placed)
        return notWritten(placed.error());
    // Where the file system keeps no rights there are none to be given.
    (void)::chmod(fileNameBytes(path).constData(), before ? before->st_mode & 0777 : usualRights());
    return {};
}

namespace {

// One job on its way, shared by the caller and the thread that sends it.
struct Sending
{
    Sending(const PreparedJob &prepared, QString printer, QString jobTitle, int timeoutMs)
        : job(prepared)
        , queue(std::move(printer))
        , title(std::move(jobTitle))
        , patience(timeoutMs)
    {
    }

    const PreparedJob job; // keeps the PDF while the thread reads it
    const QString queue;
    const QString title;
    Patience patience;
    std::atomic<int> jobId = 0; // 0 until the server has given one

    // Only from Open a job can be stopped, and only an Open one can be completed.
    enum class Phase { Open, Stopped, Complete, Refused };
    std::atomic<Phase> phase = Phase::Open;
    bool leaveOpenFor(Phase next)
    {
        Phase open = Phase::Open;
        return phase.compare_exchange_strong(open, next);
    }
};

QString jobName(const Sending &sending)
{
    return SentJob{sending.queue, sending.jobId}.name();
}

QString nothingPrinted(const QString &problem)
{
    return translate("Delivery", "%1; nothing was printed").arg(problem);
}

Error noAnswer(const Sending &sending)
{
    // The whole document may have arrived.
    if (sending.phase == Sending::Phase::Complete)
        return {Code::TimedOut, sending.queue,
                translate("Delivery",
                          "the whole document was sent as %1, but the print server at %2 did not "
                          "answer for %3 s. The job may have been accepted: look with “lpstat -W "
                          "all -o %4” before you print it again")
                    .arg(jobName(sending), serverName(),
                         QString::number(sending.patience.timeoutMs() / 1000.0), sending.queue)};
    Error error = timedOut(sending.patience, sending.queue);
    error.detail = nothingPrinted(error.detail);
    return error;
}

QByteArray resourceOf(const Sending &sending)
{
    return "/printers/" + sending.queue.toUtf8();
}

// One line, within the 255 bytes of an IPP name.
QByteArray ippName(const QString &title)
{
    QString name = title.simplified();
    while (name.toUtf8().size() > 255)
        name.chop(name.size() > 1 && name.back().isLowSurrogate() ? 2 : 1);
    return name.toUtf8();
}

void addOption(ipp_t *request, const JobOption &option)
{
    const QByteArray name = option.name.toUtf8();
    const QByteArray value = option.value.toUtf8();
    // libcups would make a boolean of it, which reaches a filter as NAME or
    // noNAME, and not as the PPD's choice.
    const bool isFlag = value.compare("true", Qt::CaseInsensitive) == 0
        || value.compare("false", Qt::CaseInsensitive) == 0;
    if (isFlag || option.isText)
        ippAddString(request, IPP_TAG_JOB, IPP_TAG_NAME, name.constData(), nullptr,
                     value.constData());
    else
        cupsEncodeOption(request, IPP_TAG_JOB, name.constData(), value.constData());
}

// A secret goes over the network only through TLS.
Result<void> secureFor(const Sending &sending, http_t *http)
{
    if (!sending.job.hasPasscode || httpAddrLocalhost(httpGetAddress(http))
        || httpIsEncrypted(http))
        return {};
    if (httpEncryption(http, HTTP_ENCRYPTION_REQUIRED) == 0 && httpIsEncrypted(http))
        return {};
    if (sending.patience.isOver())
        return serverError(sending.patience, sending.queue);
    return Error{Code::Refused, sending.queue,
                 translate("Delivery",
                           "the job holds a passcode, and the print server at %1 does not "
                           "offer an encrypted connection (TLS); nothing was sent. Have it "
                           "switched on, or print without the passcode")
                     .arg(serverName())};
}

// A secret goes only to a queue that reads tickets by what the server says now:
// the PPD that the job was prepared for may have been another one.
Result<void> checkReader(Sending &sending, http_t *http)
{
    if (!sending.job.hasPasscode && !sending.job.isFax)
        return {};
    const auto ppds = allPpds(http, sending.queue, sending.patience);
    if (!ppds)
        return ppds.error();
    for (const QByteArray &bytes : ppds.value()) {
        if (bytes.isNull())
            return notRead(sending.job, sending.queue);
        const auto ppd = PpdFile::fromBytes(bytes, sending.queue);
        if (!ppd)
            return Error{Code::Damaged, sending.queue,
                         translate("Delivery",
                                   "the PPD that the print server at %1 has for it is damaged "
                                   "(%2); have the queue set up again with the device’s PPD")
                             .arg(serverName(), ppd.error().detail)};
        if (!readsTickets(ppd.value().get()))
            return notRead(sending.job, sending.queue);
    }
    sending.patience.progress();
    return {};
}

Result<void> createJob(Sending &sending, http_t *http)
{
    ipp_t *request = newRequest(IPP_OP_CREATE_JOB, sending.queue);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                 ippName(sending.title).constData());
    for (const JobOption &option : sending.job.options)
        addOption(request, option);
    const Message response(cupsDoRequest(http, request, resourceOf(sending).constData()));
    ipp_attribute_t *id = ippFindAttribute(response.get(), "job-id", IPP_TAG_INTEGER);
    if (!lastCallSucceeded() || !id)
        return serverError(sending.patience, sending.queue);
    sending.jobId = ippGetInteger(id, 0);
    sending.patience.progress();
    return {};
}

// The document's bytes into the request that `http` has begun.
Result<void> writeDocument(Sending &sending, http_t *http)
{
    QFile pdf(sending.job.pdfPath);
    if (!pdf.open(QIODevice::ReadOnly))
        return Error{Code::NotReadable, sending.job.pdfPath, pdf.errorString()};
    std::array<char, 65536> block;
    while (!pdf.atEnd()) {
        const qint64 count = pdf.read(block.data(), static_cast<qint64>(block.size()));
        if (count < 0)
            return Error{Code::NotReadable, sending.job.pdfPath, pdf.errorString()};
        if (sending.patience.isOver()
            || cupsWriteRequestData(http, block.data(), static_cast<std::size_t>(count))
                != HTTP_STATUS_CONTINUE)
            return serverError(sending.patience, sending.queue);
        sending.patience.progress();
    }
    return {};
}

Result<void> sendDocument(Sending &sending, http_t *http)
{
    const Message request(newRequest(IPP_OP_SEND_DOCUMENT, sending.queue));
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", sending.jobId);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "document-name", nullptr,
                 ippName(sending.title).constData());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", nullptr,
                 "application/pdf");
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "last-document", 1);
    const QByteArray resource = resourceOf(sending);
    if (cupsSendRequest(http, request.get(), resource.constData(), CUPS_LENGTH_VARIABLE)
        != HTTP_STATUS_CONTINUE)
        return serverError(sending.patience, sending.queue);
    if (auto written = writeDocument(sending, http); !written)
        return written;

    // From here on the server may print, whatever is heard of it.
    if (!sending.leaveOpenFor(Sending::Phase::Complete))
        return serverError(sending.patience, sending.queue);
    const Message response(cupsGetResponse(http, resource.constData()));
    if (response && lastCallSucceeded())
        return {};
    if (response || httpGetStatus(http) >= HTTP_STATUS_BAD_REQUEST) {
        sending.phase = Sending::Phase::Refused;
        return serverError(sending.patience, sending.queue);
    }
    if (sending.patience.isTimedOut())
        return noAnswer(sending);
    return Error{Code::Unreachable, sending.queue,
                 translate("Delivery",
                           "the whole document was sent as %1, but the print server at %2 broke "
                           "off before it answered. The job may have been accepted: look with "
                           "“lpstat -W all -o %3” before you print it again")
                     .arg(jobName(sending), serverName(), sending.queue)};
}

// Takes a half-sent job off the server. The words are `problem` and what is left to do.
QString cancelJob(const Sending &sending, const QString &problem)
{
    constexpr int enough = 5000; // milliseconds; it is only courtesy
    Patience patience(enough);
    if (const auto http = connectToServer(patience)) {
        const QByteArray queue = sending.queue.toUtf8();
        if (cupsCancelJob2(http.value().get(), queue.constData(), sending.jobId, 0)
            < IPP_STATUS_REDIRECTION_OTHER_SITE)
            return nothingPrinted(problem);
    }
    return translate("Delivery", "%1; the job could not be taken back: cancel it with “cancel %2”")
        .arg(problem, jobName(sending));
}

// All that talks to the server, on a thread of its own.
Result<SentJob> send(Sending &sending)
{
    const auto http = connectToServer(sending.patience);
    if (!http)
        return http.error();
    if (auto secured = secureFor(sending, http.value().get()); !secured)
        return secured.error();
    if (auto checked = checkReader(sending, http.value().get()); !checked)
        return checked.error();
    if (auto created = createJob(sending, http.value().get()); !created)
        return created.error();
    if (auto sent = sendDocument(sending, http.value().get()); !sent) {
        Error error = sent.error();
        if (sending.phase != Sending::Phase::Complete)
            error.detail = cancelJob(sending, error.detail);
        return error;
    }
    return SentJob{sending.queue, sending.jobId};
}

} // namespace

Result<SentJob> deliverToQueue(const PreparedJob &job, const QString &queue, const QString &title,
                               int timeoutMs, const std::atomic_bool &cancelled)
{
    const auto name = queueName(queue);
    if (!name)
        return name.error();
    const auto sending = std::make_shared<Sending>(job, name.value(), title, timeoutMs);
    // Time for the thread to see it itself, and to take a half-sent job back.
    const auto graceMs = [&] { return sending->jobId > 0 ? 6000 : 1000; };
    QElapsedTimer sinceStop;
    const auto isGivenUp = [&] {
        if (cancelled && sending->leaveOpenFor(Sending::Phase::Stopped)) {
            sending->patience.stop();
            sinceStop.start();
        }
        return sinceStop.isValid() ? sinceStop.hasExpired(graceMs())
                                   : sending->patience.isTimedOut(graceMs());
    };
    if (auto result = runAside<SentJob>([sending] { return send(*sending); },
                                        [sending] { return sending->queue; }, isGivenUp))
        return *result;
    const Error error =
        sinceStop.isValid() ? serverError(sending->patience, sending->queue) : noAnswer(*sending);
    sending->patience.stop();
    return error;
}

} // namespace kelvo
