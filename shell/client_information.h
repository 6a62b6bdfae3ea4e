#pragma once

#include "plugin_abi.h"

#include <QString>

#include <optional>

// Who prints from which computer: what the device shows with a job and what its
// accounting reads.
namespace kelvo {

// None where the system cannot tell.
struct ClientInformation
{
    std::optional<QString> user;     // the console user
    std::optional<QString> computer; // the computer's name
    std::optional<QString> address;  // IPv4, dotted
};

// The system's facts, as they are now.
ClientInformation currentClientInformation();

// Whether every character lies in U+0020 to U+00FE: the device's panel has no
// other characters.
bool isPlainComputerName(const QString &name);

// The computer's name as it may go into a ticket: a plain one, and only beside
// a user.
std::optional<QString> writableComputerName(const ClientInformation &information);

// Writes what is known into the print settings ticket and removes what is not:
//   com.kelvo.print.ClientInformation.UserName       string
//   com.kelvo.print.ClientInformation.ComputerName   string
//   com.kelvo.print.ClientInformation.IPAddress      string
void writeClientInformation(PMTicketRef ticket, const ClientInformation &information);

// The client name under which the shell writes its ticket entries.
inline const QString kShellTicketClient = QStringLiteral("K");

} // namespace kelvo
