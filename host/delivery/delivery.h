#pragma once

#include "document.h"
#include "job_settings.h"
#include "pdf_layout.h"
#include "ppd_file.h"
#include "result.h"
#include "secret_keys.h"
#include "sent_job.h"
#include "ticket_file.h"

#include <QByteArray>
#include <QMap>
#include <QString>

#include <atomic>
#include <memory>
#include <vector>

// From settings to a job that is out of the house. Fails closed: no secret
// reaches a queue that would print it openly.
namespace kelvo {

struct JobOption
{
    QString name, value;
    // It goes as a text, whatever IPP has for that name: what hands it on takes it for that.
    bool isText = false;
    friend bool operator==(const JobOption &, const JobOption &) = default;
};

struct JobRequest
{
    Document document; // as the user opened it
    PdfLayout layout;  // what of it goes out, and where; empty: all, as it is
    // Its pages alone, for people: no ticket goes in, and nothing that a printer is told.
    bool isForPeople = false;
    TicketFile ticket;            // as the panels wrote it, without nonce
    JobSettings settings;         // copies, paper (job_settings.h)
    const PpdFile *ppd = nullptr; // borrowed; null: a queue without one
    SecretKeys secretKeys;        // from the bundle
    QMap<QString, QString>
        queueDefaults; // of the queue (Printer::defaults), to be contradicted where needed
};

// What goes out. The PDF (a private 0600 file, laid out, ticket attached) and
// the options, each once.
struct PreparedJob
{
    QString pdfPath;
    std::shared_ptr<const void> pdfOwner; // removes the file with its last copy
    std::vector<JobOption> options;       // in a fixed order: the PPD's, the host's, kelvo-ticket
    QByteArray ticket;                    // the attachment's bytes
    QByteArray ticketSha256;              // of those bytes, 32 bytes
    bool hasPasscode = false, isFax = false;
};

// The PDF carries the ticket as an embedded file "kelvo-ticket.plist", and the
// option "kelvo-ticket" says "1:SHA256:FLAGS" of it, where the PPD declares
// *KelvoTicket: "1". Any other queue gets the document without ticket (an older
// one is taken out) and without that option.
//
// Unsupported when the ticket holds a secret or a fax and the PPD does not declare
// that; Refused for a choice that cannot be an option; OutOfRange for pages that the
// document does not have; NotWritable for a full disk. Blocks for as long as it
// takes to write the PDF.
Result<PreparedJob> prepareJob(const JobRequest &request);

// Writes document.pdf, options ("name=value" a line) and ticket.plist (always,
// also where no device would read it: this is what the job would have said)
// into the folder, which is 0700 when it makes it and keeps its rights when it is
// there; the files are 0600. Files that stand there are replaced one by one, after
// all three were found to be replaceable; after an error what stood there stays.
Result<void> deliverToFolder(const PreparedJob &job, const QString &folder);

// Writes the job's PDF to `path`, over another PDF, whose rights stay; a new one has those that the
// user's files have. Refused for what is no PDF, and for one of `documents`, the files that are
// printed: it would be lost. After an error what stood there stays.
Result<void> deliverToPdf(const PreparedJob &job, const QString &path,
                          const QStringList &documents);
// Makes `folder`, 0700, in one that is there; one that is there keeps its rights. NotWritable.
Result<void> provideFolder(const QString &folder);

// Streams the job to the queue. Blocks: call it on a worker thread. What libcups
// does happens on yet another one, which is left to itself when the server does
// not answer.
//
// NotFound for an unknown queue, Unreachable when no server is there, Refused
// when the server says no, when it asks for a password, or when the job holds a
// secret and the server is on the network without TLS. For a job with a secret or
// a fax the PPD that the server has for the queue is looked at (for every printer
// of a class): Unsupported when it does not declare *KelvoTicket: "1", Damaged when
// it cannot be read. TimedOut after
// `timeoutMs` without progress; `cancelled` stops it before the document is
// complete. A half-sent job is cancelled on the server. A job that may have been
// accepted is never sent twice: the error says so then, and where to look.
Result<SentJob> deliverToQueue(const PreparedJob &job, const QString &queue, const QString &title,
                               int timeoutMs, const std::atomic_bool &cancelled);

} // namespace kelvo
