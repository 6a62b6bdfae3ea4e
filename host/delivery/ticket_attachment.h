#pragma once

#include "outgoing_pdf.h"
#include "result.h"
#include "ticket_file.h"

#include <QByteArray>
#include <QString>

// The ticket inside the PDF. Devices look for the embedded file of this name.
namespace kelvo {

inline const QString kTicketAttachmentName = QStringLiteral("kelvo-ticket.plist");

// 16 random bytes in the ticket file's root: without them a short passcode could
// be found by trying all of them against the hash, which everybody may read.
inline const QString kTicketNonceKey = QStringLiteral("com.kelvo.print.TicketNonce");

// The ticket as the attachment holds it: a ticket file with a nonce of its own,
// and without pages and their layout: the document is cut and laid out already.
Result<QByteArray> ticketForJob(const TicketFile &ticket);

// `ticket` as the attachment of a PDF; null: it has none, and loses an older one.
EmbeddedFile ticketAttachment(const QByteArray &ticket);

} // namespace kelvo
