#pragma once

#include "delivery.h"

// From settings to the options that a print server and its filters read.
namespace kelvo {

// The PPD's options in the PPD's order, then the host's: every PPD choice of the ticket
// once, if the PPD has it, copies and order, what must be said because the queue's
// defaults (`queueDefaults`) would say otherwise, and when the server is to print it. Refused, with
// a sentence, for a choice that cannot be said as an option.
Result<std::vector<JobOption>> jobOptions(const TicketFile &ticket, const JobSettings &settings,
                                          const PpdFile *ppd,
                                          const QMap<QString, QString> &queueDefaults);

// "FORMAT:SHA256:FLAGS" for the option "kelvo-ticket": the format of the
// attachment (1), the hexadecimal SHA-256 of its bytes, and "passcode", "fax",
// both joined by "+", or "none".
JobOption ticketOption(const QByteArray &sha256, bool hasPasscode, bool isFax);

} // namespace kelvo
