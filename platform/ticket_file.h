#pragma once

#include "print_session.h"
#include "result.h"
#include "values.h"

#include <QMap>
#include <QStringList>

#include <optional>
#include <set>

// A job's settings as a file, and a preset, which is one with a name. An XML
// property list, 0600:
//
//   FormatVersion           1
//   PMPrintSettingsTicket   dictionary: ticket key → value, exactly as set
//   PMPageFormatTicket      dictionary, likewise
//   PPDChoices              dictionary: PPD option keyword → choice keyword
//   Clients                 dictionary: ticket key → the client that wrote it
//
// FormatVersion and PMPrintSettingsTicket must be there; what else is missing is
// empty. A key that stands in both tickets has one client, the one that wrote the
// print settings. What else stands in the root is kept and written back.
//
// A preset is mostly a part of a ticket, to be laid over what a device begins with:
//
//   IsPart                  true: dictionaries hold some of their keys
//   Removed                 array of places (arrays of strings): what is taken away
//   ChoiceWords             dictionary: "OPTION=CHOICE" → how the device that the choice
//                           was made on calls it, "Stapling: Top Left"; empty where it is
//                           that device's default, and no loss on another one
//
// A whole ticket has words too, and, where that is known,
//
//   Asked                   array of places: what somebody asked for, and what came of it.
//                           The rest is what the device it was made on has by itself.
namespace kelvo {

// Where a value stands in a ticket file: one of the three names of its parts, the
// entry's key or the option, and keys of dictionaries inside one another.
using TicketPlace = QStringList;
using TicketPlaces = std::set<TicketPlace>;
inline const QString kPPDChoices = QStringLiteral("PPDChoices");

struct TicketFile
{
    Ticket printSettings;
    Ticket pageFormat;
    Dictionary unknown; // root entries that are not ours
    bool isPart = false;
    TicketPlaces removed;
    QMap<QString, QString> choiceWords;
    std::optional<TicketPlaces> asked;

    friend bool operator==(const TicketFile &, const TicketFile &) = default;
};

// `where` names the file in errors, whose place is the key path. OtherKind for what is not a
// ticket file at all: the detail says only why, so that the caller says what it is not;
// Damaged or WrongType for one with wrong entries, Unsupported for another format version.
Result<TicketFile> ticketFileFromPropertyList(const QVariant &list, const QString &where);
Dictionary propertyListFrom(const TicketFile &file);

Result<TicketFile> readTicketFile(const QString &path);
// Whether a ticket may be written to `path`: its folder is there, and what stands
// at `path`, if anything, is a ticket file or empty. The error is a sentence.
Result<void> checkTicketTarget(const QString &path);
// Writes where checkTicketTarget() lets it, and nothing beside: no folder, no
// lock file. The last of two writers wins.
Result<void> writeTicketFile(const QString &path, const TicketFile &file);

// The session's tickets as a file, and back. Locks are not stored.
TicketFile ticketFileFrom(const PrintSession &session);
void load(const TicketFile &file, PrintSession &session);

} // namespace kelvo
