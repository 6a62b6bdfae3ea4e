#include "job_notes_preferences.h"

#include "preferences.h"
#include "ticket_values.h"

namespace kelvo {

namespace {

const QString fileName = QStringLiteral("com.kelvo.print.jobnotes.plist");

struct Flag
{
    const char *key;
    std::int32_t JobNotesPreferencesOptions::*value;
};

constexpr Flag flags[] = {
    {"useDocumentNameAsJobName", &JobNotesPreferencesOptions::useDocumentNameAsJobName},
    {"useLoginNameAsSenderName", &JobNotesPreferencesOptions::useLoginNameAsSenderName},
    {"useLoginNameAsRecipientName", &JobNotesPreferencesOptions::useLoginNameAsRecipientName},
};

} // namespace

OSStatus RetrieveJobNotesPreferences(JobNotesPreferencesOptions *options)
{
    const auto stored = CopyUserPreferences(fileName);
    if (!stored) {
        *options = {};
        return noErr;
    }
    for (const Flag &flag : flags) {
        const auto value = integer32(*stored, QString::fromLatin1(flag.key));
        if (value == 0 || value == 1)
            options->*flag.value = *value;
    }
    return noErr;
}

OSStatus StoreJobNotesPreferences(const JobNotesPreferencesOptions &options, QString *notWritten)
{
    Dictionary stored;
    for (const Flag &flag : flags)
        WriteTicketValue(stored, QString::fromLatin1(flag.key), options.*flag.value);
    const bool isWritten = WriteUserPreferences(fileName, stored);
    if (notWritten) {
        const Result<QString> path = userPreferencePath(fileName);
        *notWritten = isWritten ? QString() : path ? path.value() : path.error().text();
    }
    return noErr;
}

} // namespace kelvo
