#pragma once

#include "repeated_choices.h"
#include "ticket_file.h"

// How settings from several places become one ticket, and what of a ticket is left
// when that which it began with is taken out of it.
namespace kelvo {

// Where `to` says something else than `from`. A dictionary is looked into, an array is
// one value; who wrote an entry does not count.
TicketPlaces differences(const TicketFile &from, const TicketFile &to);

// Every place that `file` sets or removes.
TicketPlaces placesOf(const TicketFile &file);

// Whether `file` says anything there.
bool isSet(const TicketPlace &place, const TicketFile &file);

// The paper stands in several places, which belong together: the choice and the page
// format's name and sizes.
const TicketPlaces &paperPlaces();
// `places` with all of the paper where some of it is meant, and without the entries
// that repeat a choice: the choice speaks for them.
TicketPlaces completed(TicketPlaces places, const RepeatedChoices &repeated);

// The part of `file` at `places`: what stands there, and that nothing does.
TicketFile part(const TicketFile &file, const TicketPlaces &places);

TicketFile without(TicketFile file, const TicketPlaces &places);

// `over` on top of `under`. A whole ticket is laid entry by entry, a part also key by
// key: a dictionary that `under` lacks is begun with that of `beginning`, which is what
// the panels make of a ticket that says nothing. A choice takes away the entries that
// repeat it, and a paper all that says another one.
TicketFile laid(const TicketFile &over, TicketFile under, const TicketFile &beginning,
                const RepeatedChoices &repeated);

} // namespace kelvo
