#pragma once

#include "ppd_file.h"
#include "ticket_layers.h"

#include <vector>

// What of a job's ticket somebody asked for. The rest is what the device and its
// queue do by themselves and what panels make of that: it belongs to one device, and
// goes neither to another printer nor into a preset.
namespace kelvo {

class AskedSettings
{
public:
    AskedSettings() { m_changes.isPart = true; }

    // A device: `defaults` is what its queue lays on an empty ticket, `repeated` what its
    // panels keep twice. What was asked for before stays asked for.
    void beginOn(TicketFile defaults, RepeatedChoices repeated);
    // What the panels first make of the defaults.
    void setBeginning(TicketFile beginning) { m_beginning = std::move(beginning); }

    enum class Kind {
        // Asks, and of what it does not call asked for (TicketFile::asked) only what
        // differs from the beginning goes into a preset.
        Given,
        Chosen, // goes into a preset all the same: a preset, or an option that was set
    };
    // Asks for all that `file` says, on top of what was asked for before; in its stead
    // where `file` is a job's whole record, a whole ticket that says what was asked for.
    void lay(const TicketFile &file, Kind kind);
    void clear(); // nothing is asked for
    bool isEmpty() const;

    // The defaults with everything on top that is asked for.
    TicketFile wanted() const;
    // Only what somebody asked for.
    TicketFile asked() const;

    // The ticket as the device has it, before the user touches anything.
    void settle(const TicketFile &ticket);
    // What is different at `after` nobody asked for: the device begins so with this document.
    void propose(const TicketFile &before, const TicketFile &after);
    // The user has chosen what is set at `places`: the next take() finds it there,
    // whether or not it is different.
    void choose(const TicketPlaces &places);
    // What is different now, the user has set. A choice of the PPD's default that
    // was not there before is none: a panel writes it when it is first opened.
    void take(const TicketFile &ticket, const PpdFile *ppd);

    // Whether anything differs from the ticket as it settled, or as it was taken for
    // unchanged. What belongs to one job (entriesOfOneJob) does not count.
    bool isChanged(const TicketFile &ticket) const;
    void takeAsUnchanged(const TicketFile &ticket);
    // Changed for good: on an earlier printer, or because its preset is gone.
    void takeAsChanged() { m_wasChanged = true; }

    // Keeps how `ppd` calls the choices that were asked for: another device that
    // lacks them has no words for them.
    void learnWords(const PpdFile &ppd);
    // The part of `ticket`, as it is now, that a preset keeps: what differs from the
    // beginning, and what was chosen, also where it is the beginning's. What this
    // device lacks stays as it was asked for.
    TicketFile preset(const TicketFile &ticket, const PpdFile *ppd) const;

private:
    TicketFile laidOver(TicketFile under) const;
    bool isFirstWrite(const TicketPlace &place, const TicketFile &ticket, const PpdFile *ppd) const;

    RepeatedChoices m_repeated;
    TicketFile m_defaults, m_beginning;
    std::vector<TicketFile> m_layers; // later beats earlier
    TicketFile m_changes;             // a part: the user's, on top of them
    TicketPlaces m_chosen;
    TicketPlaces m_ofDevice;        // what layers have from the devices they were made on
    QMap<QString, QString> m_words; // see TicketFile::choiceWords
    TicketPlaces m_hits;            // chosen since
    TicketFile m_seen;              // by take()
    TicketFile m_unchanged;
    bool m_wasChanged = false;
};

} // namespace kelvo
