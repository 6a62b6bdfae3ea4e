#pragma once

#include "document.h"
#include "result.h"
#include "ticket_file.h"

#include <QByteArray>
#include <QString>

#include <optional>

// The ticket inside the PDF. Devices look for the embedded file of this name.
namespace kelvo {

inline const QString kTicketAttachmentName = QStringLiteral("kelvo-ticket.plist");

// 16 random bytes in the ticket file's root: without them a short passcode could
// be found by trying all of them against the hash, which everybody may read.
inline const QString kTicketNonceKey = QStringLiteral("com.kelvo.print.TicketNonce");

// The ticket as the attachment holds it: a ticket file with a nonce of its own,
// and without pages and their layout: the document is cut and laid out already.
Result<QByteArray> ticketForJob(const TicketFile &ticket);

// A new PDF, 0600, at `target`: the one at `source` with `ticket` as its only
// embedded file of that name; with a null `ticket` it has none (embedded_files.h).
// Damaged for what libqpdf cannot read, NotWritable for a full disk, Refused for an
// older ticket that cannot be taken out.
Result<void> replaceTicket(const QString &source, const QByteArray &ticket, const QString &target);
// The same of a document that was opened for it, with kTicketAttachmentName; none for others, and
// where it fails.
std::optional<Document::Written> replacedTicketAhead(const Document &document,
                                                     const QByteArray &ticket);

} // namespace kelvo
