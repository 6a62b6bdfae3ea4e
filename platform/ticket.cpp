#include "ticket.h"

#include "print_session.h"

namespace kelvo {

namespace {

OSStatus set(PMTicketRef handle, const QString &client, const QString &key, QVariant value,
             bool lock)
{
    Ticket *ticket = findTicket(handle);
    return ticket ? setValue(*ticket, client, key, std::move(value), lock) : kPMInvalidTicket;
}

const QVariant &valueBehind(PMTicketRef handle, const QString &key)
{
    static const Ticket none;
    const Ticket *ticket = findTicket(handle);
    return valueIn(ticket ? *ticket : none, key);
}

} // namespace

const QVariant &valueIn(const Ticket &ticket, const QString &key)
{
    static const QVariant none;
    const auto found = ticket.entries.find(key);
    return found == ticket.entries.end() ? none : found->second.value;
}

OSStatus setValue(Ticket &ticket, const QString &client, const QString &key, QVariant value,
                  bool lock)
{
    if (key.isEmpty())
        return paramErr;
    const auto found = ticket.entries.find(key);
    if (found != ticket.entries.end() && found->second.locked)
        return kPMTicketLocked;
    ticket.entries.insert_or_assign(key, TicketEntry{std::move(value), client, lock});
    return noErr;
}

OSStatus removeValue(Ticket &ticket, const QString &key)
{
    const auto found = ticket.entries.find(key);
    if (found == ticket.entries.end())
        return noErr;
    if (found->second.locked)
        return kPMTicketLocked;
    ticket.entries.erase(found);
    return noErr;
}

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
    return dictionary(valueBehind(ticket, key));
}

std::optional<Array> PMTicketGetCFArray(PMTicketRef ticket, const QString &key)
{
    return array(valueBehind(ticket, key));
}

std::optional<QString> PMTicketGetCFString(PMTicketRef ticket, const QString &key)
{
    return string(valueBehind(ticket, key));
}

std::optional<std::int64_t> PMTicketGetCFNumber(PMTicketRef ticket, const QString &key)
{
    return integer64(valueBehind(ticket, key));
}

std::optional<bool> PMTicketGetCFBoolean(PMTicketRef ticket, const QString &key)
{
    return boolean(valueBehind(ticket, key));
}

OSStatus PMTicketReleaseItem(PMTicketRef handle, const QString &key)
{
    Ticket *ticket = findTicket(handle);
    return ticket ? removeValue(*ticket, key) : kPMInvalidTicket;
}

PPDDictionary *PMTicketGetPPDDict(PMTicketRef handle)
{
    Ticket *ticket = findTicket(handle);
    return ticket ? &ticket->ppdChoices : nullptr;
}

} // namespace kelvo
