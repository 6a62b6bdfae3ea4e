#include "ticket.h"

#include "print_session.h"

namespace kelvo {

namespace {

OSStatus set(PMTicketRef handle, const QString &client, const QString &key, QVariant value,
             bool lock)
{
    Ticket *ticket = findTicket(handle);
    if (!ticket)
        return kPMInvalidTicket;
    if (key.isEmpty())
        return paramErr;
    const auto found = ticket->entries.find(key);
    if (found != ticket->entries.end() && found->second.locked)
        return kPMTicketLocked;
    ticket->entries.insert_or_assign(key, TicketEntry{std::move(value), client, lock});
    return noErr;
}

const QVariant *findValue(PMTicketRef handle, const QString &key)
{
    const Ticket *ticket = findTicket(handle);
    if (!ticket)
        return nullptr;
    const auto found = ticket->entries.find(key);
    return found == ticket->entries.end() ? nullptr : &found->second.value;
}

} // namespace

OSStatus PMTicketSetCFDictionary(PMTicketRef ticket, const QString &client, const QString &key,
                                 const Dictionary &value, bool lock)
{
    return set(ticket, client, key, value, lock);
}

OSStatus PMTicketSetCFArray(PMTicketRef ticket, const QString &client, const QString &key,
                            const Array &value, bool lock)
{
    return set(ticket, client, key, value, lock);
}

OSStatus PMTicketSetCFString(PMTicketRef ticket, const QString &client, const QString &key,
                             const QString &value, bool lock)
{
    return set(ticket, client, key, value, lock);
}

OSStatus PMTicketSetCFNumber(PMTicketRef ticket, const QString &client, const QString &key,
                             std::int64_t value, bool lock)
{
    return set(ticket, client, key, QVariant::fromValue<qint64>(value), lock);
}

OSStatus PMTicketSetCFReal(PMTicketRef ticket, const QString &client, const QString &key,
                           double value, bool lock)
{
    return set(ticket, client, key, value, lock);
}

OSStatus PMTicketSetCFBoolean(PMTicketRef ticket, const QString &client, const QString &key,
                              bool value, bool lock)
{
    return set(ticket, client, key, value, lock);
}

std::optional<Dictionary> PMTicketGetCFDictionary(PMTicketRef ticket, const QString &key)
{
    const QVariant *value = findValue(ticket, key);
    return value ? dictionary(*value) : std::nullopt;
}

std::optional<Array> PMTicketGetCFArray(PMTicketRef ticket, const QString &key)
{
    const QVariant *value = findValue(ticket, key);
    return value ? array(*value) : std::nullopt;
}

std::optional<QString> PMTicketGetCFString(PMTicketRef ticket, const QString &key)
{
    const QVariant *value = findValue(ticket, key);
    return value ? string(*value) : std::nullopt;
}

std::optional<std::int64_t> PMTicketGetCFNumber(PMTicketRef ticket, const QString &key)
{
    const QVariant *value = findValue(ticket, key);
    return value ? integer64(*value) : std::nullopt;
}

std::optional<double> PMTicketGetCFReal(PMTicketRef ticket, const QString &key)
{
    const QVariant *value = findValue(ticket, key);
    return value ? real(*value) : std::nullopt;
}

std::optional<bool> PMTicketGetCFBoolean(PMTicketRef ticket, const QString &key)
{
    const QVariant *value = findValue(ticket, key);
    return value ? boolean(*value) : std::nullopt;
}

OSStatus PMTicketReleaseItem(PMTicketRef handle, const QString &key)
{
    Ticket *ticket = findTicket(handle);
    if (!ticket)
        return kPMInvalidTicket;
    const auto found = ticket->entries.find(key);
    if (found == ticket->entries.end())
        return noErr;
    if (found->second.locked)
        return kPMTicketLocked;
    ticket->entries.erase(found);
    return noErr;
}

PPDDictionary *PMTicketGetPPDDict(PMTicketRef handle)
{
    Ticket *ticket = findTicket(handle);
    return ticket ? &ticket->ppdChoices : nullptr;
}

} // namespace kelvo
