#pragma once

#include "cover.h"
#include "plugin_abi.h"
#include "status.h"

#include <memory>

namespace kelvo {

// Moves the covers between a panel and the print settings ticket. They travel as
// the paper source of their stock alone, in the PPD choices KVFrontCoverSheet and
// KVBackCoverSheet; the rest of a cover is told nobody, and a read forgets it: it
// makes both covers anew. In booklet layout
// the back cover follows the front one: an equal or missing back cover is written
// as none, and read as a copy of the front.
//
// Another direction than kSyncWrite and kSyncRead changes nothing. Returns the
// status of reading com.kelvo.print.BookletLayout, so kPMKeyNotFound is usual.
OSStatus SyncCovers(PMTicketRef ticket, std::int32_t direction, std::unique_ptr<Cover> *front,
                    std::unique_ptr<Cover> *back);

} // namespace kelvo
