#pragma once

#include "ppd_file.h"
#include "print_session.h"

#include <QString>
#include <QStringList>

#include <vector>

// Settings that the device cannot do together, in the device's words.
namespace kelvo {

struct Conflict
{
    QStringList options; // PPD keywords
    QString sentence; // "Stapling: Top Left and Paper Type: Transparency cannot be used together."
};

struct ConflictReport
{
    std::vector<Conflict> conflicts;
    PpdSelection fix;     // option → choice that would end all; empty when there is none
    QStringList fixWords; // "Set Stapling to None"
    bool isEmpty() const { return conflicts.empty(); }
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

// What the ticket asks for and this PPD does not have, in words.
QStringList missingOnDevice(const PrintSession &session, const PpdFile &ppd);

} // namespace kelvo
