#include "ticket_layers.h"

#include "values.h"

#include <algorithm>

namespace kelvo {

namespace {

const QString pageSizeOption = QStringLiteral("PageSize");

// The ticket that a place's first name means; null for the choices.
template <typename File>
auto ticketOf(File &file, const TicketPlace &place) -> decltype(&file.printSettings)
{
    if (place.first() == kPMPrintSettingsTicket)
        return &file.printSettings;
    return place.first() == kPMPageFormatTicket ? &file.pageFormat : nullptr;
}

// Every value below `value` that is no dictionary, or an empty one.
void addLeaves(const TicketPlace &place, const QVariant &value, TicketPlaces &places)
{
    const auto entries = dictionary(value);
    if (!entries || entries->isEmpty()) {
        places.insert(place);
        return;
    }
    for (auto entry = entries->cbegin(); entry != entries->cend(); ++entry)
        addLeaves(place + TicketPlace{entry.key()}, entry.value(), places);
}

// Where one of the values is invalid, it is not there.
void compare(const TicketPlace &place, const QVariant &from, const QVariant &to,
             TicketPlaces &places)
{
    if (from == to && from.isValid() == to.isValid())
        return;
    const auto before = dictionary(from);
    const auto after = dictionary(to);
    if (!after || (!before && from.isValid())) {
        places.insert(place);
        return;
    }
    if (!before) {
        addLeaves(place, to, places);
        return;
    }
    for (auto entry = after->cbegin(); entry != after->cend(); ++entry)
        compare(place + TicketPlace{entry.key()}, before->value(entry.key()), entry.value(),
                places);
    for (auto entry = before->cbegin(); entry != before->cend(); ++entry) {
        if (!after->contains(entry.key()))
            places.insert(place + TicketPlace{entry.key()});
    }
}

void compareTickets(const QString &name, const Ticket &from, const Ticket &to, TicketPlaces &places)
{
    for (const auto &[key, entry] : to.entries)
        compare({name, key}, valueIn(from, key), entry.value, places);
    for (const auto &[key, entry] : from.entries) {
        if (!to.entries.contains(key))
            places.insert({name, key});
    }
}

// The value at `steps` inside `value`; invalid where there is none.
QVariant valueAt(QVariant value, const QStringList &steps)
{
    for (const QString &step : steps)
        value = dictionary(value).value_or(Dictionary()).value(step);
    return value;
}

// `value` with `leaf` at `steps` inside it, or, for an invalid one, without what is there.
QVariant withValueAt(const QVariant &value, const QStringList &steps, const QVariant &leaf)
{
    if (steps.isEmpty())
        return leaf;
    auto entries = dictionary(value);
    if (!entries && !leaf.isValid())
        return value; // there is nothing to take away
    if (!entries)
        entries.emplace();
    const QVariant inner = withValueAt(entries->value(steps.first()), steps.mid(1), leaf);
    if (inner.isValid())
        entries->insert(steps.first(), inner);
    else
        entries->remove(steps.first());
    return *entries;
}

// `over` on top of `under`, dictionaries key by key.
QVariant merged(const QVariant &over, const QVariant &under)
{
    const auto entries = dictionary(over);
    auto result = dictionary(under);
    if (!entries || !result)
        return over;
    for (auto entry = entries->cbegin(); entry != entries->cend(); ++entry)
        result->insert(entry.key(), merged(entry.value(), result->value(entry.key())));
    return *result;
}

void lay(const Ticket &over, Ticket &under, const Ticket &beginning, bool isPart)
{
    for (const auto &[key, entry] : over.entries) {
        TicketEntry laid = entry;
        if (isPart) {
            const QVariant below = valueIn(under, key);
            laid.value = merged(entry.value, below.isValid() ? below : valueIn(beginning, key));
        }
        under.entries.insert_or_assign(key, std::move(laid));
    }
    under.ppdChoices.insert(over.ppdChoices);
}

void removeAt(const TicketPlace &place, TicketFile &file)
{
    Ticket *ticket = ticketOf(file, place);
    if (!ticket) {
        if (place.first() == kPPDChoices)
            file.printSettings.ppdChoices.remove(place[1]);
        return;
    }
    const auto entry = ticket->entries.find(place[1]);
    if (entry == ticket->entries.end())
        return;
    entry->second.value = withValueAt(entry->second.value, place.mid(2), {});
    if (!entry->second.value.isValid())
        ticket->entries.erase(entry);
}

// The choices of `over`, also those that it removes.
PPDDictionary decidedChoices(const TicketFile &over)
{
    PPDDictionary decided = over.printSettings.ppdChoices;
    for (const TicketPlace &place : over.removed) {
        if (place.first() == kPPDChoices)
            decided.insert(place[1], QString());
    }
    return decided;
}

} // namespace

TicketPlaces differences(const TicketFile &from, const TicketFile &to)
{
    TicketPlaces places;
    compareTickets(kPMPrintSettingsTicket, from.printSettings, to.printSettings, places);
    compareTickets(kPMPageFormatTicket, from.pageFormat, to.pageFormat, places);
    const PPDDictionary &before = from.printSettings.ppdChoices;
    const PPDDictionary &after = to.printSettings.ppdChoices;
    for (auto choice = after.cbegin(); choice != after.cend(); ++choice) {
        const auto was = before.constFind(choice.key());
        if (was == before.cend() || *was != *choice)
            places.insert({kPPDChoices, choice.key()});
    }
    for (auto choice = before.cbegin(); choice != before.cend(); ++choice) {
        if (!after.contains(choice.key()))
            places.insert({kPPDChoices, choice.key()});
    }
    return places;
}

TicketPlaces placesOf(const TicketFile &file)
{
    TicketPlaces places = differences({}, file);
    places.insert(file.removed.begin(), file.removed.end());
    return places;
}

bool isSet(const TicketPlace &place, const TicketFile &file)
{
    const Ticket *ticket = ticketOf(file, place);
    return ticket ? valueAt(valueIn(*ticket, place[1]), place.mid(2)).isValid()
                  : file.printSettings.ppdChoices.contains(place[1]);
}

const TicketPlaces &paperPlaces()
{
    static const TicketPlaces places{{kPPDChoices, pageSizeOption},
                                     {kPMPageFormatTicket, kPMPaperNameKey},
                                     {kPMPageFormatTicket, kPMPaperSizeKey},
                                     {kPMPageFormatTicket, kPMUnadjustedPaperRectKey}};
    return places;
}

TicketPlaces completed(TicketPlaces places, const RepeatedChoices &repeated)
{
    const TicketPlaces &paper = paperPlaces();
    if (std::any_of(paper.begin(), paper.end(),
                    [&places](const TicketPlace &place) { return places.contains(place); }))
        places.insert(paper.begin(), paper.end());
    for (const QStringList &keys : repeated) {
        for (const QString &key : keys)
            places.erase({kPMPrintSettingsTicket, key});
    }
    return places;
}

TicketFile part(const TicketFile &file, const TicketPlaces &places)
{
    TicketFile result;
    result.isPart = true;
    for (const TicketPlace &place : places) {
        const Ticket *from = ticketOf(file, place);
        if (!from) {
            const auto choice = file.printSettings.ppdChoices.constFind(place[1]);
            if (choice != file.printSettings.ppdChoices.cend())
                result.printSettings.ppdChoices.insert(place[1], *choice);
            else
                result.removed.insert(place);
            continue;
        }
        const QVariant value = valueAt(valueIn(*from, place[1]), place.mid(2));
        if (!value.isValid()) {
            result.removed.insert(place);
            continue;
        }
        TicketEntry &entry = ticketOf(result, place)->entries[place[1]];
        entry.client = from->entries.at(place[1]).client;
        entry.value = withValueAt(entry.value, place.mid(2), value);
    }
    return result;
}

TicketFile without(TicketFile file, const TicketPlaces &places)
{
    for (const TicketPlace &place : places)
        removeAt(place, file);
    return file;
}

TicketFile laid(const TicketFile &over, TicketFile under, const TicketFile &beginning,
                const RepeatedChoices &repeated)
{
    dropRepeats(under.printSettings, decidedChoices(over), repeated);
    if (over.printSettings.ppdChoices.contains(pageSizeOption)
        || over.pageFormat.entries.contains(kPMPaperNameKey)) {
        for (const TicketPlace &place : paperPlaces())
            removeAt(place, under);
    }
    for (const TicketPlace &place : over.removed)
        removeAt(place, under);
    lay(over.printSettings, under.printSettings, beginning.printSettings, over.isPart);
    lay(over.pageFormat, under.pageFormat, beginning.pageFormat, over.isPart);
    under.choiceWords.insert(over.choiceWords);
    if (under.isPart) {
        // What was taken away before, and is set again.
        for (const TicketPlace &place : differences({}, over))
            under.removed.erase(place);
        under.removed.insert(over.removed.begin(), over.removed.end());
    }
    return under;
}

} // namespace kelvo
