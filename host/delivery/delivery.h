#pragma once

#include "document.h"
#include "job_settings.h"
#include "ppd_file.h"
#include "result.h"
#include "secret_keys.h"
#include "ticket_file.h"

#include <QByteArray>
#include <QString>

#include <atomic>
#include <vector>

// From settings to a job that is out of the house. Fails closed: no secret
// reaches a queue that would print it openly.
namespace kelvo {

struct JobOption
{
    QString name, value;
    friend bool operator==(const JobOption &, const JobOption &) = default;
};

struct JobRequest
{
    Document document;     // as the user opened it; pages are cut here
    TicketFile ticket;     // as the panels wrote it, without nonce
    JobSettings settings;  // copies, pages, paper (job_settings.h)
    const PpdFile *ppd = nullptr; // borrowed; null: a queue without one
    SecretKeys secretKeys; // from the bundle
    QString title;
    QMap<QString, QString> queueDefaults; // what lpoptions set, to be contradicted where needed
};

// What goes out. The PDF (a private 0600 file, pages cut, ticket attached) and
// the options, each once.
struct PreparedJob
{
    QString pdfPath;
    std::shared_ptr<void> pdfOwner; // removes the file
    std::vector<JobOption> options; // in a fixed order
    QByteArray ticket;              // the attachment's bytes
    QByteArray ticketSha256;        // of those bytes
    bool hasPasscode = false, isFax = false;
    QStringList notSent; // "OPTION=CHOICE" that the ticket has and the PPD lacks
};

// Refused when the ticket holds a secret or a fax and the PPD does not declare
// *KelvoTicket: "1"; OutOfRange for pages that the document does not have.
Result<PreparedJob> prepareJob(const JobRequest &request);

// Writes document.pdf, options ("name=value" a line) and ticket.plist into the
// folder, which is created 0700 when missing. Files that stand there are
// replaced one by one; after an error what stood there stays.
Result<void> deliverToFolder(const PreparedJob &job, const QString &folder);

struct DeliveredJob
{
    QString name; // "Hall-123"
};
// Streams the job to the queue. Blocks: call it on a worker thread. Refused when
// the job holds a secret and the server is on the network without TLS. A job
// that may have been accepted is never sent twice: the error says so then.
// TimedOut after `timeoutMs` without progress; `cancelled` stops it before the
// document is complete, and the half-sent job is cancelled.
Result<DeliveredJob> deliverToQueue(const PreparedJob &job, const QString &queue,
                                    const QString &title, int timeoutMs,
                                    const std::atomic_bool &cancelled);

} // namespace kelvo
