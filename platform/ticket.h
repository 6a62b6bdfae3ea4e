#pragma once

#include "plugin_abi.h"
#include "status.h"
#include "values.h"

#include <QMap>
#include <QString>

#include <map>

// A ticket: keys with values, each written by a client, some locked. The
// per-job PPD dictionary (option keyword → choice keyword) belongs to the print
// settings ticket.
namespace kelvo {

inline const QString kPMPrintSettingsTicket = QStringLiteral("PMPrintSettingsTicket");
inline const QString kPMPageFormatTicket = QStringLiteral("PMPageFormatTicket");

// Keys of the platform itself. Lengths are points.
inline const QString kPMOrientationKey =
    QStringLiteral("com.apple.print.PageFormat.PMOrientation"); // 1…4
inline const QString kPMPaperNameKey =
    QStringLiteral("com.apple.print.PaperInfo.PMPaperName"); // a PPD page size
inline const QString kPMPaperSizeKey =
    QStringLiteral("com.kelvo.print.PageFormat.PaperSize"); // array: width, height
inline const QString kPMUnadjustedPaperRectKey = QStringLiteral(
    "com.apple.print.PaperInfo.PMUnadjustedPaperRect"); // array: top, left, bottom, right
inline const QString kPMCopiesKey = QStringLiteral("com.apple.print.PrintSettings.PMCopies");
inline const QString kPMCollateKey = QStringLiteral("com.apple.print.PrintSettings.PMCopyCollate");
inline const QString kPMPageRangesKey =
    QStringLiteral("com.kelvo.print.PrintSettings.PageRanges"); // "1-3,7"; absent: all
// What the host does to the document's pages; absent: what page_layout.h has as defaults.
inline const QString kPMPageSetKey =
    QStringLiteral("com.kelvo.print.PrintSettings.PageSet"); // "odd" or "even"
inline const QString kPMReverseOrderKey =
    QStringLiteral("com.kelvo.print.PrintSettings.ReverseOrder"); // true
inline const QString kPMScalingKey =
    QStringLiteral("com.kelvo.print.PrintSettings.Scaling"); // "fit", "fill", "percent", "none"
inline const QString kPMScalingPercentKey =
    QStringLiteral("com.kelvo.print.PrintSettings.ScalingPercent"); // 1…800
inline const QString kPMPagesPerSideKey =
    QStringLiteral("com.kelvo.print.PrintSettings.PagesPerSide"); // 2, 4, 6, 9 or 16
inline const QString kPMPageFlowKey =
    QStringLiteral("com.kelvo.print.PrintSettings.PageFlow"); // "lrbt", "tblr", …
inline const QString kPMPageBordersKey =
    QStringLiteral("com.kelvo.print.PrintSettings.PageBorders"); // true
inline const QString kPMJobNameKey = QStringLiteral("com.apple.print.JobInfo.PMJobName");

using PPDDictionary = QMap<QString, QString>;

struct TicketEntry
{
    QVariant value;
    QString client; // who wrote it
    bool locked = false;

    friend bool operator==(const TicketEntry &, const TicketEntry &) = default;
};

struct Ticket
{
    std::map<QString, TicketEntry> entries;
    PPDDictionary ppdChoices;

    friend bool operator==(const Ticket &, const Ticket &) = default;
};

// A ticket itself, wherever it is kept: no session is asked, so any thread may have its own.
// The value under `key`, invalid where there is none; values.h reads it. Valid until the
// ticket changes.
const QVariant &valueIn(const Ticket &ticket, const QString &key);
// `value` under `key`, a number as qint64, with the client's name: what setting by handle does.
OSStatus setValue(Ticket &ticket, const QString &client, const QString &key, QVariant value,
                  bool lock = false);
OSStatus removeValue(Ticket &ticket, const QString &key);

// The same by handle, as panels are given tickets.
//
// Writing: `value` under `key`, with the client's name. paramErr for an empty
// key, kPMInvalidTicket for a handle that names no ticket, kPMTicketLocked for
// a locked entry (nothing changes then).
OSStatus PMTicketSetCFDictionary(PMTicketRef ticket, const QString &client, const QString &key,
                                 const Dictionary &value, bool lock = false);
OSStatus PMTicketSetCFArray(PMTicketRef ticket, const QString &client, const QString &key,
                            const Array &value, bool lock = false);
OSStatus PMTicketSetCFString(PMTicketRef ticket, const QString &client, const QString &key,
                             const QString &value, bool lock = false);
OSStatus PMTicketSetCFNumber(PMTicketRef ticket, const QString &client, const QString &key,
                             std::int64_t value, bool lock = false);
OSStatus PMTicketSetCFReal(PMTicketRef ticket, const QString &client, const QString &key,
                           double value, bool lock = false);
OSStatus PMTicketSetCFBoolean(PMTicketRef ticket, const QString &client, const QString &key,
                              bool value, bool lock = false);

// Reading: none when the handle, the key or the type is wrong; numbers as
// values.h reads them.
std::optional<Dictionary> PMTicketGetCFDictionary(PMTicketRef ticket, const QString &key);
std::optional<Array> PMTicketGetCFArray(PMTicketRef ticket, const QString &key);
std::optional<QString> PMTicketGetCFString(PMTicketRef ticket, const QString &key);
std::optional<std::int64_t> PMTicketGetCFNumber(PMTicketRef ticket, const QString &key);
std::optional<bool> PMTicketGetCFBoolean(PMTicketRef ticket, const QString &key);

// noErr also when there was no such entry; kPMTicketLocked for a locked one.
OSStatus PMTicketReleaseItem(PMTicketRef ticket, const QString &key);

// The per-job PPD dictionary, owned by the ticket; null for a bad handle.
PPDDictionary *PMTicketGetPPDDict(PMTicketRef ticket);

} // namespace kelvo
