#pragma once

#include "plugin_abi.h"
#include "ticket.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <utility>

// One print dialog's session: the printer and the tickets. A ticket handle is a
// 32-bit number: the session's own number in the upper half, the index into
// the session's table (from 1) in the lower. It dies with the session.
namespace kelvo {

class PpdFile;

// What a session knows of its printer.
struct SessionPrinter
{
    QString name;    // the queue, or the device's name where there is none
    QString ppdPath; // a local file; empty when there is no PPD, or `ppd` has it
    // The PPD where the host has it open: it was read once, and is there for all who ask on the
    // GUI thread. Its marks are the bundle's alone.
    std::shared_ptr<PpdFile> ppd = nullptr;
};

// A page of the job's document, for what is shown over it. The file is the host's and stays
// for as long as the session; whoever draws it does so in a program of its own
// (page_drawing.h).
struct DocumentPage
{
    QString pdfPath; // empty: the document is not there yet
    int page = 0;    // from 1
};

class PrintSession
{
public:
    // With a print settings and a page format ticket, both empty. At most
    // 65,535 sessions in one process.
    PrintSession();
    ~PrintSession();
    PrintSession(const PrintSession &) = delete;
    PrintSession &operator=(const PrintSession &) = delete;

    const SessionPrinter &printer() const { return m_printer; }
    void setPrinter(SessionPrinter printer) { m_printer = std::move(printer); }

    // The first one that is printed.
    const DocumentPage &firstPage() const { return m_firstPage; }
    void setFirstPage(DocumentPage page) { m_firstPage = std::move(page); }

    PMTicketRef printSettingsTicket() const;
    PMTicketRef pageFormatTicket() const;

    Ticket &printSettings() { return m_tickets[0]; }
    const Ticket &printSettings() const { return m_tickets[0]; }
    Ticket &pageFormat() { return m_tickets[1]; }
    const Ticket &pageFormat() const { return m_tickets[1]; }

private:
    friend Ticket *findTicket(PMTicketRef handle);
    std::uint16_t m_number;
    SessionPrinter m_printer;
    DocumentPage m_firstPage;
    Ticket m_tickets[2];
};

// The ticket behind a handle of any living session; null for any other number.
Ticket *findTicket(PMTicketRef handle);

// The data that the session keeps under `key`: for kPMPrintSettingsTicket and
// kPMPageFormatTicket the handle, four bytes in the machine's order.
// kPMKeyNotFound for another key, paramErr without session.
OSStatus PMSessionGetDataFromSession(PMPrintSession session, const QString &key, QByteArray *out);

using PMPrinter = const SessionPrinter *; // borrowed from the session
OSStatus PMSessionGetCurrentPrinter(PMPrintSession session, PMPrinter *out);

// The first page that is printed; kPMKeyNotFound while there is no document.
OSStatus PMSessionGetFirstPage(PMPrintSession session, DocumentPage *out);

inline const QString kPMPPDDescriptionType = QStringLiteral("PMPPDDescriptionType");
// The printer's PPD as a file URL; kPMKeyNotFound for another type or a printer without PPD.
OSStatus PMPrinterGetDescriptionURL(PMPrinter printer, const QString &type, QString *url);

} // namespace kelvo
