#pragma once

#include "job_notes_preferences.h"
#include "ticket.h"
#include "ticket_file.h"

#include <QString>

// What the Job Notes panel sets, and how tickets say it, client "com.kelvo.printingmanager":
//
//   com.kelvo.print.JobNotesMessage                 string; removed when empty
//   com.kelvo.print.JobNotesSheetMessage            string; removed when empty
//   com.kelvo.print.JobNotesAdditionalInfo          removed
//   com.kelvo.print.JobNotesUseJobName              Boolean
//   com.kelvo.print.JobNotesJobName                 string
//   com.kelvo.print.JobNotesSenderUseLoginName      Boolean
//   com.kelvo.print.JobNotesSenderName              string
//   com.kelvo.print.JobNotesRecipientUseLoginName   Boolean
//   com.kelvo.print.JobNotesRecipient               string
namespace kelvo {

// A name of the banner sheet: the one that is typed, or else the fixed item's, which is the
// document's name or the login name.
struct JobNotesName
{
    bool isFixed = true;
    QString typed; // empty where it is fixed

    bool isTyped() const { return !isFixed && !typed.isEmpty(); }
    friend bool operator==(const JobNotesName &, const JobNotesName &) = default;
};

struct JobNotesSettings
{
    JobNotesName job, sender, recipient;
    QString bannerMessage; // on the banner sheet
    QString startMessage;  // at the device, when the job begins

    friend bool operator==(const JobNotesSettings &, const JobNotesSettings &) = default;
};

// A control, and its places in the ticket.
struct JobNotesField
{
    const char *flag; // null: a message, which has none
    const char *text;
    std::int32_t control; // KPDE
};
inline constexpr JobNotesField kJobNameField{"JobNotesUseJobName", "JobNotesJobName", 9110};
inline constexpr JobNotesField kSenderNameField{"JobNotesSenderUseLoginName", "JobNotesSenderName",
                                                9120};
inline constexpr JobNotesField kRecipientNameField{"JobNotesRecipientUseLoginName",
                                                   "JobNotesRecipient", 9130};
inline constexpr JobNotesField kBannerMessageField{nullptr, "JobNotesSheetMessage", 9140};
inline constexpr JobNotesField kStartMessageField{nullptr, "JobNotesMessage", 9150};

TicketPlaces placesOf(const JobNotesField &field);

// The settings become what the ticket says: nothing of an earlier ticket stays. Where it
// does not say whether a name is fixed the preferences do.
void readJobNotes(JobNotesSettings &settings, const Ticket &printSettings,
                  const JobNotesPreferencesOptions &preferences);

// With the job's name not typed all three names are the login name, also a sender and a
// recipient that are typed; their flags stay as they are. Devices in use expect it so: the
// next read shows the login name then. An empty `loginName` is written as it is. The status
// of the first entry that the ticket refused.
OSStatus writeJobNotes(const JobNotesSettings &settings, const QString &loginName,
                       Ticket &printSettings);

} // namespace kelvo
