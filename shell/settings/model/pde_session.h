#pragma once

#include "bundle.h"
#include "plugin_abi.h"

#include <cstdint>
#include <optional>

// The current dialog's session, and what panels ask of the shell above them.
// One dialog at a time; everything on the GUI thread.
namespace kelvo {

inline const QString kPDEBundleIdentifier =
    QStringLiteral("com.kelvo.print.pde.kelvofeatures.dvm0001");
inline const QString kPDEPanelKind = QStringLiteral("com.kelvo.print.pde.kelvofeatureskind");

PMPrintSession GetCurrentPrintSession();
void setCurrentPrintSession(PMPrintSession session);

CFBundleRef GetPDEBundle(); // null when it is not registered

// The session's ticket under `key` (kPMPrintSettingsTicket, …).
OSStatus GetTicketFromSession(PMPrintSession session, const QString &key, PMTicketRef *out);

// Runs the shell's Sync on every panel: for panels and dialogs that must push
// or reload everything at once. kPMInvalidParameter while no shell is there.
OSStatus PDESync(PMPrintSession session, std::int32_t direction);
// The shell registers itself with Prologue and goes with null at Terminate.
void setShellSync(OSStatus (*sync)(PMPrintSession session, std::int32_t direction));

// What the Print button looks at before printing: the job type of the first
// panel (Paper/Output), which registers how it is asked.
struct JobTypeState
{
    std::int32_t jobType = 1; // a value of JobTypeMap
    bool hasPasscode = false; // a secure-print passcode of at least one character
    bool hasFaxRecipients = false;
    bool sendsFaxes = true; // the device
};
// How it answers, about its context; each may be null where it has nothing to say.
struct JobTypeProvider
{
    JobTypeState (*state)(PMPDEContext) = nullptr;
    // The user has pressed Print, and nothing is checked yet: what depends on the moment is
    // settled.
    void (*prepareToPrint)(PMPDEContext) = nullptr;
    void (*runFaxSetup)(PMPDEContext) = nullptr; // the LAN fax set-up on the panel's settings
    void (*focusSetup)(PMPDEContext) = nullptr;  // the set-up button, where the panel is open
};
void setJobTypeProvider(const JobTypeProvider &provider); // {}: no Paper/Output panel
const JobTypeProvider &jobTypeProvider();

} // namespace kelvo
