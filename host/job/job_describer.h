#pragma once

#include "job_description.h"
#include "repeated_choices.h"

namespace kelvo {

// Asks a bundle what a job means. The module is loaded when that is first needed: for one of
// its devices, or for a ticket that holds more than the host's own settings. GUI thread; the
// function that it asks may be called on any other.
class JobDescriber
{
public:
    // Borrowed; null: nothing is known, and descriptions are empty.
    explicit JobDescriber(Bundle *bundle);

    // Brings `description` up to date.
    void describe(const Ticket &printSettings, const Ticket &pageFormat, const PpdFile *ppd,
                  JobDescription &description);

    // Which choices the panels also keep elsewhere. Where `ppd` is of another maker and nobody
    // brings a ticket, no panel has kept anything yet, and the answer is empty.
    RepeatedChoices repeatedChoices(const PpdFile *ppd, bool bringsTicket);

    // Whether any of the bundle's devices may have the PPD option.
    bool knowsOption(const QString &keyword) const;

private:
    bool isMakerOf(const PpdFile *ppd) const;
    bool findFunction();
    void ask(const Ticket &printSettings, const Ticket &pageFormat, const PpdFile *ppd,
             JobDescription &description);

    Bundle *m_bundle;
    DescribeJobFunction m_function = nullptr;
    bool m_hasLooked = false;
};

// An entry of the print settings that the host itself writes.
bool isHostEntry(const QString &key);

} // namespace kelvo
