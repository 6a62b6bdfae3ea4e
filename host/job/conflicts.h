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
    QString sentence;    // "Stapling: Top left and Paper type: Transparency cannot be used together."
};

struct ConflictReport
{
    std::vector<Conflict> conflicts;
    PpdSelection fix;      // option → choice that would end all; empty when there is none
    QStringList fixWords;  // "Set Stapling to None"
    bool isEmpty() const { return conflicts.empty(); }
};

// What is wrong with the session's choices; `keep` is the option that the user
// has just set.
ConflictReport findConflicts(const PrintSession &session, PpdFile &ppd, const QString &keep = {});
void applyFix(const ConflictReport &report, PrintSession &session);

// What the ticket asks for and this PPD does not have, in words.
QStringList missingOnDevice(const PrintSession &session, const PpdFile &ppd);

} // namespace kelvo
