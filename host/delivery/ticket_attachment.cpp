#include "ticket_attachment.h"

#include "document_functions.h"
#include "property_list.h"

#include <sys/random.h>

#include <cerrno>
#include <cstring>

namespace kelvo {

namespace {

using Code = Error::Code;

} // namespace

Result<QByteArray> ticketForJob(const TicketFile &ticket)
{
    QByteArray nonce(16, Qt::Uninitialized);
    if (::getrandom(nonce.data(), static_cast<std::size_t>(nonce.size()), 0) != nonce.size())
        return Error{Code::NotReadable, QStringLiteral("getrandom"),
                     QString::fromUtf8(std::strerror(errno))};
    TicketFile sent = ticket;
    sent.unknown.insert(kTicketNonceKey, nonce);
    sent.printSettings.entries.erase(kPMPageRangesKey);
    return CFPropertyListCreateXMLData(propertyListFrom(sent));
}

Result<bool> holdsTicket(const QString &path)
{
    const auto functions = documentFunctions();
    return functions ? functions.value()->holdsEmbeddedFile(path, kTicketAttachmentName)
                     : Result<bool>(functions.error());
}

Result<void> replaceTicket(const QString &source, const QByteArray &ticket, const QString &target)
{
    const auto functions = documentFunctions();
    return functions ? functions.value()->replaceEmbeddedFile(source, kTicketAttachmentName,
                                                              "application/x-plist", ticket, target)
                     : Result<void>(functions.error());
}

} // namespace kelvo
