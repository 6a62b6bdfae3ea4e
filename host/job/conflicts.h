#pragma once

#include "ppd_file.h"
#include "print_session.h"
#include "ticket_file.h"

#include <QString>
#include <QStringList>

#include <vector>

// Settings that the device cannot do together, in the device's words.
namespace kelvo {

struct Conflict
{
    QStringList options; // PPD keywords
    QString sentence; // "Stapling: Top Left and Paper type: Transparency cannot be used together."
};

struct ConflictReport
{
    std::vector<Conflict> conflicts;
    PpdSelection fix;     // option → choice that would end all; empty when there is none
    QStringList fixWords; // "Set Stapling to None"
    bool isEmpty() const { return conflicts.empty(); }
    QStringList sentences() const; // of the conflicts
    QStringList options() const;   // of all conflicts, keywords
};

// What is wrong with the session's choices on this PPD; choices that the PPD
// lacks count for nothing. `lastSet` are the options that the user has set, the last
// one first: of those in conflict the fix keeps the first where it can. It changes
// the paper last of all, and the device's equipment never.
ConflictReport findConflicts(const PrintSession &session, PpdFile &ppd,
                             const QStringList &lastSet = {});

// Puts the fix's choices into the session, and nothing else. A page size among
// them reaches the page format with the next writeJobSettings(jobSettingsFrom()).
void applyFix(const ConflictReport &report, PrintSession &session);

// What `asked` asks for and a device with this PPD does not have (null: a queue without
// one, which takes a paper and no other choice), in the words of the device that has it.
QStringList missingOnDevice(const TicketFile &asked, const PpdFile *ppd);

} // namespace kelvo
