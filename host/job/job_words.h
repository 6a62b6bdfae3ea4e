#pragma once

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
    QStringList settings; // "Paper size: A4", in the device's words
    QStringList defaults; // settings that are as the device has them
    QStringList ticket;   // "com.kelvo.print.… = 2 (written by com.kelvo.printingmanager)"
    QStringList notSent;  // "Stapling: Top left – this printer does not have it"
    QString asText() const;
};
JobWords describeJob(const TicketFile &ticket, const JobSettings &settings, const PpdFile *ppd,
                     const SecretKeys &keys);

// "12 pages, 6 sheets, 2 copies, locked": what the window's foot says.
QString shortSummary(const TicketFile &ticket, const JobSettings &settings, int pages,
                     const SecretKeys &keys);

} // namespace kelvo
