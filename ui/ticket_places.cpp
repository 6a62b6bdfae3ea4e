#include "ticket_places.h"

#include "control.h"

namespace kelvo {

namespace {

constexpr OSType creator = fourCharCode("Kset"); // the tag is the command

} // namespace

void setTicketPlaces(QWidget *control, const TicketPlaces &places, OSType command)
{
    if (control)
        setControlProperty(control, creator, command,
                           QVariant::fromValue(QList<TicketPlace>(places.begin(), places.end())));
}

TicketPlaces ticketPlacesOf(const QWidget *control, OSType command)
{
    const auto places =
        controlProperty(control, creator, command).value_or(QVariant()).value<QList<TicketPlace>>();
    return {places.begin(), places.end()};
}

} // namespace kelvo
