#include "client_information.h"

#include "system_information.h"
#include "ticket.h"
#include "ticket_values.h"

#include <algorithm>

namespace kelvo {

namespace {

void writeOrRemove(PMTicketRef ticket, const char *settingName, const std::optional<QString> &value)
{
    const QString key = ticketKey(settingName);
    if (value)
        PMTicketSetCFString(ticket, kShellTicketClient, key, *value);
    else
        PMTicketReleaseItem(ticket, key);
}

} // namespace

ClientInformation currentClientInformation()
{
    return {consoleUser(), computerName(), primaryIPv4Address()};
}

bool isPlainComputerName(const QString &name)
{
    return std::all_of(name.begin(), name.end(), [](QChar character) {
        return character.unicode() >= 0x20 && character.unicode() <= 0xFE;
    });
}

std::optional<QString> writableComputerName(const ClientInformation &information)
{
    if (!information.user || !information.computer || !isPlainComputerName(*information.computer))
        return {};
    return information.computer;
}

void writeClientInformation(PMTicketRef ticket, const ClientInformation &information)
{
    writeOrRemove(ticket, "ClientInformation.UserName", information.user);
    writeOrRemove(ticket, "ClientInformation.ComputerName", writableComputerName(information));
    writeOrRemove(ticket, "ClientInformation.IPAddress", information.address);
}

} // namespace kelvo
