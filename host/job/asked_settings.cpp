#include "asked_settings.h"

#include "device_offers.h"
#include "job_settings.h"
#include "ppd_words.h"

#include <algorithm>
#include <iterator>

namespace kelvo {

namespace {

TicketPlaces withoutOneJob(TicketPlaces places)
{
    for (const QString &key : entriesOfOneJob())
        places.erase({kPMPrintSettingsTicket, key});
    return places;
}

QString wordsKey(const QString &option, const QString &choice)
{
    return option + u'=' + choice;
}

// What a device that lacks a choice calls it. Of one that `ppd` has by default there is
// nothing to be said: none is what others have.
QString wordsElsewhere(const QString &option, const QString &choice, const PpdFile &ppd)
{
    const PpdOption *known = ppd.findOption(option);
    return known && known->defaultChoice == choice ? QString() : settingWords(option, choice, &ppd);
}

} // namespace

void AskedSettings::beginOn(TicketFile defaults, RepeatedChoices repeated)
{
    m_defaults = std::move(defaults);
    // Another maker's device has none, and what was asked for may go back to one of ours.
    if (!repeated.isEmpty())
        m_repeated = std::move(repeated);
    m_beginning = {};
}

void AskedSettings::lay(const TicketFile &file, Kind kind)
{
    if (!file.isPart && file.asked)
        clear(); // a whole job's record
    m_layers.push_back(file);
    m_words.insert(file.choiceWords);
    TicketPlaces places = completed(placesOf(file), m_repeated);
    for (const TicketPlace &place : places) {
        if (file.asked && !file.asked->contains(place))
            m_ofDevice.insert(place);
        else
            m_ofDevice.erase(place);
    }
    if (kind == Kind::Chosen)
        m_chosen.merge(places);
    else if (file.asked)
        m_chosen.insert(file.asked->begin(), file.asked->end());
}

void AskedSettings::clear()
{
    m_layers.clear();
    m_changes = {};
    m_changes.isPart = true;
    m_chosen.clear();
    m_ofDevice.clear();
    m_hits.clear();
    m_words.clear();
    m_wasChanged = false;
}

bool AskedSettings::isEmpty() const
{
    return m_layers.empty() && placesOf(m_changes).empty();
}

TicketFile AskedSettings::laidOver(TicketFile under) const
{
    for (const TicketFile &layer : m_layers)
        under = laid(layer, std::move(under), m_beginning, m_repeated);
    return laid(m_changes, std::move(under), m_beginning, m_repeated);
}

TicketFile AskedSettings::wanted() const
{
    return laidOver(m_defaults);
}

TicketFile AskedSettings::asked() const
{
    TicketFile asked = without(laidOver({}), m_ofDevice);
    asked.choiceWords = m_words;
    return asked;
}

void AskedSettings::settle(const TicketFile &ticket)
{
    m_seen = ticket;
    m_unchanged = ticket;
}

void AskedSettings::propose(const TicketFile &before, const TicketFile &after)
{
    const TicketFile proposed = part(after, completed(differences(before, after), m_repeated));
    for (TicketFile *file : {&m_defaults, &m_beginning, &m_seen, &m_unchanged})
        *file = laid(proposed, std::move(*file), {}, m_repeated);
}

bool AskedSettings::isFirstWrite(const TicketPlace &place, const TicketFile &ticket,
                                 const PpdFile *ppd) const
{
    if (place.first() != kPPDChoices || m_chosen.contains(place) || m_hits.contains(place))
        return false;
    const QString &option = place[1];
    const PpdOption *known = ppd ? ppd->findOption(option) : nullptr;
    return known && ticket.printSettings.ppdChoices.value(option) == known->defaultChoice
        && !m_seen.printSettings.ppdChoices.contains(option)
        && !m_beginning.printSettings.ppdChoices.contains(option);
}

void AskedSettings::choose(const TicketPlaces &places)
{
    m_hits.merge(completed(places, m_repeated));
}

void AskedSettings::take(const TicketFile &ticket, const PpdFile *ppd)
{
    TicketPlaces places = completed(differences(m_seen, ticket), m_repeated);
    std::erase_if(places, [&](const TicketPlace &place) {
        if (!isFirstWrite(place, ticket, ppd))
            return false;
        for (TicketFile *file : {&m_beginning, &m_unchanged})
            file->printSettings.ppdChoices.insert(place[1],
                                                  ticket.printSettings.ppdChoices.value(place[1]));
        return true;
    });
    std::copy_if(m_hits.cbegin(), m_hits.cend(), std::inserter(places, places.end()),
                 [&](const TicketPlace &place) { return isSet(place, ticket); });
    m_hits.clear();
    m_seen = ticket;
    for (const TicketPlace &place : places)
        m_ofDevice.erase(place);
    m_changes = laid(part(ticket, places), std::move(m_changes), {}, m_repeated);
    m_chosen.merge(places);
}

bool AskedSettings::isChanged(const TicketFile &ticket) const
{
    return m_wasChanged
        || !withoutOneJob(completed(differences(m_unchanged, ticket), m_repeated)).empty();
}

void AskedSettings::takeAsUnchanged(const TicketFile &ticket)
{
    m_unchanged = ticket;
    m_wasChanged = false;
}

void AskedSettings::learnWords(const PpdFile &ppd)
{
    const PPDDictionary choices = laidOver({}).printSettings.ppdChoices;
    for (auto choice = choices.cbegin(); choice != choices.cend(); ++choice) {
        if (offers(ppd, choice.key(), *choice))
            m_words.insert(wordsKey(choice.key(), *choice),
                           wordsElsewhere(choice.key(), *choice, ppd));
    }
}

TicketFile AskedSettings::preset(const TicketFile &ticket, const PpdFile *ppd) const
{
    TicketPlaces places = completed(differences(m_beginning, ticket), m_repeated);
    std::erase_if(places, [this](const TicketPlace &place) { return m_ofDevice.contains(place); });
    places.insert(m_chosen.begin(), m_chosen.end());
    const TicketFile chosen = part(wanted(), m_chosen);
    TicketFile preset = part(laid(chosen, ticket, {}, m_repeated), withoutOneJob(places));
    const PPDDictionary &choices = preset.printSettings.ppdChoices;
    for (auto choice = choices.cbegin(); choice != choices.cend(); ++choice) {
        const QString key = wordsKey(choice.key(), *choice);
        if (ppd && offers(*ppd, choice.key(), *choice))
            preset.choiceWords.insert(key, wordsElsewhere(choice.key(), *choice, *ppd));
        else if (const auto known = m_words.constFind(key); known != m_words.cend())
            preset.choiceWords.insert(key, *known);
    }
    return preset;
}

} // namespace kelvo
