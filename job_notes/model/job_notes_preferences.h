#pragma once

#include "status.h"

#include <QString>

#include <cstdint>

// What a user wants the names of a job to be as long as its ticket does not say, kept in
// "com.kelvo.print.jobnotes.plist" of the user's preferences folder.
namespace kelvo {

// 1: on, 0: off.
struct JobNotesPreferencesOptions
{
    std::int32_t useDocumentNameAsJobName = 1;
    std::int32_t useLoginNameAsSenderName = 1;
    std::int32_t useLoginNameAsRecipientName = 1;

    friend bool operator==(const JobNotesPreferencesOptions &,
                           const JobNotesPreferencesOptions &) = default;
};

// Each flag that is in the file; one that is not, or is neither 0 nor 1, stays as the
// caller has it. All become 1 where there is no preferences folder. Always noErr.
OSStatus RetrieveJobNotesPreferences(JobNotesPreferencesOptions *options);

// Replaces the file. Always noErr: what could not be written is said on standard error, and
// *notWritten is the file's path then, else empty.
OSStatus StoreJobNotesPreferences(const JobNotesPreferencesOptions &options,
                                  QString *notWritten = nullptr);

} // namespace kelvo
