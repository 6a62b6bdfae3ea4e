#include "ticket_attachment.h"

#include "job_settings.h"
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
    // Done to the document already, or the server's.
    for (const QString &key : pageEntries() + QStringList{kJobPriorityKey, kJobHoldUntilKey})
        sent.printSettings.entries.erase(key);
    return CFPropertyListCreateXMLData(propertyListFrom(sent));
}

EmbeddedFile ticketAttachment(const QByteArray &ticket)
{
    return {kTicketAttachmentName, ticketType, ticket};
}

} // namespace kelvo
