#pragma once

#include "job_description.h"
#include "job_settings.h"
#include "ppd_file.h"
#include "secret_keys.h"
#include "ticket_file.h"

#include <QString>
#include <QStringList>

// What will be sent, in words: one line a setting that differs from the
// device's defaults first, then the rest, then the ticket raw. Secrets are masked.
namespace kelvo {

struct JobWords
{
    QStringList cautions; // what to know before it goes out, see cautions.h
    QStringList settings; // "Paper size: A4": the host's, the panels', the PPD's others
    QStringList defaults; // settings that are as the device has them
    QStringList ticket;   // "com.kelvo.print.… = 2 (written by com.kelvo.printingmanager)"
    QStringList notSent;  // "Stapling: Top Left – this printer does not have it"
    // All five under headings, one a line; a heading without lines is left out.
    QString asText() const;
};
// Texts of the PPD and the ticket come as plain text on one line; a ticket value
// longer than 500 characters is cut and says so. Equipment is not listed.
// What the panels set is told as `description` says; what that leaves out of the PPD, in
// the PPD's words, and of the ticket, by their number. `missing` is what is asked for and
// the device lacks (conflicts.h).
JobWords describeJob(const TicketFile &ticket, const JobSettings &settings, const PpdFile *ppd,
                     const SecretKeys &keys, const JobDescription &description,
                     const QStringList &missing);

// What of `description` stands in a ticket's entries alone and is no default: lost on a
// device that reads no tickets.
QStringList entriesInWords(const JobDescription &description);

// "12 pages, 6 sheets × 2 copies = 12 sheets, locked": what the foot says. `pages`
// are those to be printed, 0 while they are not known, and `sheets` those of one copy.
QString shortSummary(const TicketFile &ticket, const JobSettings &settings, int pages,
                     qint64 sheets, const SecretKeys &keys,
                     const std::optional<LeadingPage> &leadingPage = {});

} // namespace kelvo
