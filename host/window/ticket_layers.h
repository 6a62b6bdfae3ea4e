#pragma once

#include "ticket_file.h"

// How settings from several places become one ticket, and how they live through
// a change of printer.
namespace kelvo {

// `over` on top of what `session` holds: entry by entry, choice by choice.
void layOver(const TicketFile &over, PrintSession &session);

// A device drops or replaces the settings that it does not have. `came` is the
// ticket as it came to the device, `settled` as its panels wrote it before the
// user touched anything, `left` as it is when the user leaves for another
// device. What the user did not change there goes on as it came.
TicketFile carriedOn(const TicketFile &came, const TicketFile &settled, const TicketFile &left);

// Whether two tickets ask for the same: who wrote an entry does not count, nor
// do the job's name and its pages, which belong to one job.
bool asksForTheSame(const TicketFile &one, const TicketFile &other);

} // namespace kelvo
