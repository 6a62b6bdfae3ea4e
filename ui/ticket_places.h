#pragma once

#include "four_char_code.h"
#include "ticket_file.h"

class QWidget;

// Where a job's ticket has what a control sets. Choosing what is shown already changes
// nothing there, and is a choice all the same: the window learns here of what.
namespace kelvo {

// Of a menu: what its items with `command` set.
void setTicketPlaces(QWidget *control, const TicketPlaces &places, OSType command = kNoCommand);
// Empty for null, and for a control that does not say.
TicketPlaces ticketPlacesOf(const QWidget *control, OSType command = kNoCommand);

} // namespace kelvo
