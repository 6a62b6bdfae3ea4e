#pragma once

#include "cover.h"
#include "device.h"
#include "plugin_abi.h"
#include "status.h"
#include "ticket.h"

#include <optional>

// Covers in the print settings ticket. They travel as the paper source of their stock
// alone, in the PPD choices KVFrontCoverSheet and KVBackCoverSheet; the rest of a cover
// is told nobody, and a read forgets it: it makes both covers anew. In booklet layout
// (com.kelvo.print.BookletLayout) the back cover follows the front one: an equal or
// missing back cover is written as none, and read as a copy of the front.
namespace kelvo {

// The choice of KVFrontCoverSheet and KVBackCoverSheet for no cover; it has no ticket value.
inline const QString kNoCoverChoice = QStringLiteral("None");

// Whether a cover's source can be said, and the device prints it.
bool reachesDevice(const Cover &cover);

void readCovers(std::optional<Cover> &front, std::optional<Cover> &back,
                const Ticket &printSettings, const Device &device);
void writeCovers(const std::optional<Cover> &front, const std::optional<Cover> &back,
                 Ticket &printSettings);

// The same by handle, for the current device. Another direction than kSyncWrite and
// kSyncRead changes nothing. paramErr for a null pointer, kPMInvalidTicket for a handle
// that names none, else the status of reading com.kelvo.print.BookletLayout:
// kPMKeyNotFound is usual.
OSStatus SyncCovers(PMTicketRef ticket, std::int32_t direction, std::optional<Cover> *front,
                    std::optional<Cover> *back);

} // namespace kelvo
