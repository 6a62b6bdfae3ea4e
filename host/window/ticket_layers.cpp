#include "ticket_layers.h"

#include <algorithm>
#include <set>

namespace kelvo {

namespace {

void layOver(const Ticket &over, Ticket &ticket)
{
    for (const auto &[key, entry] : over.entries)
        ticket.entries.insert_or_assign(key, entry);
    ticket.ppdChoices.insert(over.ppdChoices);
}

std::optional<TicketEntry> find(const Ticket &ticket, const QString &key)
{
    const auto entry = ticket.entries.find(key);
    if (entry == ticket.entries.end())
        return std::nullopt;
    return entry->second;
}

std::optional<QString> findChoice(const Ticket &ticket, const QString &option)
{
    const auto choice = ticket.ppdChoices.constFind(option);
    if (choice == ticket.ppdChoices.cend())
        return std::nullopt;
    return *choice;
}

Ticket carriedOn(const Ticket &came, const Ticket &settled, const Ticket &left)
{
    // Only keys that the device or the user changed can differ from `came`.
    std::set<QString> keys;
    for (const Ticket *ticket : {&came, &left}) {
        for (const auto &[key, entry] : ticket->entries)
            keys.insert(key);
    }
    Ticket result;
    for (const QString &key : keys) {
        const auto now = find(left, key);
        const auto before = find(settled, key);
        const bool isUntouched =
            now.has_value() == before.has_value() && (!now || now->value == before->value);
        if (auto entry = isUntouched ? find(came, key) : now)
            result.entries.emplace_hint(result.entries.end(), key, *std::move(entry));
    }

    std::set<QString> options;
    for (const Ticket *ticket : {&came, &left}) {
        for (auto choice = ticket->ppdChoices.cbegin(); choice != ticket->ppdChoices.cend();
             ++choice)
            options.insert(choice.key());
    }
    for (const QString &option : options) {
        const auto now = findChoice(left, option);
        if (const auto choice = now == findChoice(settled, option) ? findChoice(came, option) : now)
            result.ppdChoices.insert(option, *choice);
    }
    return result;
}

bool asksForTheSame(const Ticket &one, const Ticket &other)
{
    static const std::set<QString> ofOneJob = {kPMJobNameKey, kPMPageRangesKey};
    const auto asked = [](const Ticket &ticket) {
        QMap<QString, QVariant> values;
        for (const auto &[key, entry] : ticket.entries) {
            if (!ofOneJob.contains(key))
                values.insert(key, entry.value);
        }
        return values;
    };
    return one.ppdChoices == other.ppdChoices && asked(one) == asked(other);
}

} // namespace

void layOver(const TicketFile &over, PrintSession &session)
{
    layOver(over.printSettings, session.printSettings());
    layOver(over.pageFormat, session.pageFormat());
}

TicketFile carriedOn(const TicketFile &came, const TicketFile &settled, const TicketFile &left)
{
    return {carriedOn(came.printSettings, settled.printSettings, left.printSettings),
            carriedOn(came.pageFormat, settled.pageFormat, left.pageFormat), left.unknown};
}

bool asksForTheSame(const TicketFile &one, const TicketFile &other)
{
    return asksForTheSame(one.printSettings, other.printSettings)
        && asksForTheSame(one.pageFormat, other.pageFormat);
}

} // namespace kelvo
