#include "ticket_attachment.h"

#include "embedded_files.h"
#include "job_timing.h"
#include "property_list.h"

#include <sys/random.h>

#include <cerrno>
#include <cstring>

namespace kelvo {

namespace {

using Code = Error::Code;

const QByteArray ticketType = "application/x-plist";

} // namespace

Result<QByteArray> ticketForJob(const TicketFile &ticket)
{
    QByteArray nonce(16, Qt::Uninitialized);
    if (::getrandom(nonce.data(), static_cast<std::size_t>(nonce.size()), 0) != nonce.size())
        return Error{Code::NotReadable, QStringLiteral("getrandom"),
                     QString::fromUtf8(std::strerror(errno))};
    TicketFile sent = ticket;
    sent.unknown.insert(kTicketNonceKey, nonce);
    // Of the document and of the server, not of the device.
    for (const QString &key : {kPMPageRangesKey, kJobPriorityKey, kJobHoldUntilKey})
        sent.printSettings.entries.erase(key);
    return CFPropertyListCreateXMLData(propertyListFrom(sent));
}

Result<void> replaceTicket(const QString &source, const QByteArray &ticket, const QString &target)
{
    return replaceEmbeddedFile(source, kTicketAttachmentName, ticketType, ticket, target);
}

std::optional<Document::Written> replacedTicketAhead(const Document &document,
                                                     const QByteArray &ticket)
{
    return document.writtenAhead(ticketType, ticket);
}

} // namespace kelvo
