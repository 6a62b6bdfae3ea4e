#pragma once

#include <cstdint>

namespace kelvo {

// What the platform's calls and the panel protocol answer; 0 is success. The
// numbers are fixed: scripts and other bundles compare them.
using OSStatus = std::int32_t;

inline constexpr OSStatus noErr = 0;
inline constexpr OSStatus paramErr = -50;               // an argument is missing
inline constexpr OSStatus fnfErr = -43;                 // no such file
inline constexpr OSStatus memFullErr = -108;            // there is no such memory
inline constexpr OSStatus kComboBoxNoValue = 1000;      // a history field without text
inline constexpr OSStatus kNoSuchProperty = -30582;     // a control has no such property
inline constexpr OSStatus kPMInvalidPDEContext = -9530; // bad panel context or parameter
inline constexpr OSStatus kPMKeyNotFound = -9589;       // the ticket has no such entry
inline constexpr OSStatus kPMTicketLocked = -9587;      // the entry may not be changed
inline constexpr OSStatus kPMInvalidTicket = -9592;     // the handle names no ticket
inline constexpr OSStatus kPMInvalidParameter = -30879; // Sync without context or session
inline constexpr OSStatus eventNotHandledErr = -9874;   // pass the event on
inline constexpr OSStatus kNoSuchInterface = static_cast<OSStatus>(0x80000004U);

// What a modal dialog returns.
enum class DialogResult : int { OK = 1, Cancel = 2 };

} // namespace kelvo
