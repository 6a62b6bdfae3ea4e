#include "print_session.h"

#include "ppd_file.h"

#include <QHash>
#include <QUrl>

#include <limits>

namespace kelvo {

namespace {

using SessionNumber = std::uint16_t;

// The living sessions by number. GUI thread only, like all that uses tickets.
QHash<SessionNumber, PrintSession *> &livingSessions()
{
    static QHash<SessionNumber, PrintSession *> sessions;
    return sessions;
}

// A number that no living session has; 0 when there is none left. A number is
// used again only after all others, so that a stale handle finds nothing.
SessionNumber takeNumber()
{
    static SessionNumber last = 0;
    const auto &living = livingSessions();
    if (living.size() >= std::numeric_limits<SessionNumber>::max())
        return 0;
    do {
        ++last;
    } while (last == 0 || living.contains(last));
    return last;
}

// The tickets' indices in a session's table, from 1.
constexpr PMTicketRef printSettingsIndex = 1;
constexpr PMTicketRef pageFormatIndex = 2;

PMTicketRef handle(SessionNumber session, PMTicketRef index)
{
    return session == 0 ? 0 : static_cast<PMTicketRef>(session) << 16 | index;
}

} // namespace

PrintSession::PrintSession()
    : m_number(takeNumber())
{
    if (m_number != 0)
        livingSessions().insert(m_number, this);
}

PrintSession::~PrintSession()
{
    if (m_number != 0)
        livingSessions().remove(m_number);
}

PMTicketRef PrintSession::printSettingsTicket() const
{
    return handle(m_number, printSettingsIndex);
}

PMTicketRef PrintSession::pageFormatTicket() const
{
    return handle(m_number, pageFormatIndex);
}

Ticket *findTicket(PMTicketRef handle)
{
    const PMTicketRef index = handle & 0xFFFF;
    PrintSession *session = livingSessions().value(static_cast<SessionNumber>(handle >> 16));
    if (!session || index < printSettingsIndex || index > pageFormatIndex)
        return nullptr;
    return &session->m_tickets[index - 1];
}

OSStatus PMSessionGetDataFromSession(PMPrintSession session, const QString &key, QByteArray *out)
{
    if (!session || !out)
        return paramErr;
    PMTicketRef ticket = 0;
    if (key == kPMPrintSettingsTicket)
        ticket = session->printSettingsTicket();
    else if (key == kPMPageFormatTicket)
        ticket = session->pageFormatTicket();
    else
        return kPMKeyNotFound;
    *out = QByteArray(reinterpret_cast<const char *>(&ticket), sizeof ticket);
    return noErr;
}

OSStatus PMSessionGetCurrentPrinter(PMPrintSession session, PMPrinter *out)
{
    if (!session || !out)
        return paramErr;
    *out = &session->printer();
    return noErr;
}

OSStatus PMSessionGetFirstPage(PMPrintSession session, DocumentPage *out)
{
    if (!session || !out)
        return paramErr;
    if (session->firstPage().pdfPath.isEmpty())
        return kPMKeyNotFound;
    *out = session->firstPage();
    return noErr;
}

OSStatus PMPrinterGetDescriptionURL(PMPrinter printer, const QString &type, QString *url)
{
    if (!printer || !url)
        return paramErr;
    if (type != kPMPPDDescriptionType)
        return kPMKeyNotFound;
    const QString path = printer->ppd ? printer->ppd->path() : printer->ppdPath;
    if (path.isEmpty())
        return kPMKeyNotFound;
    *url = QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
    return noErr;
}

} // namespace kelvo
