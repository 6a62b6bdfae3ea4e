#pragma once

#include "setting_map.h"

#include <QString>

#include <cstdint>
#include <optional>

// A job that the device keeps in a numbered mailbox.
namespace kelvo {

inline constexpr int kFirstMailbox = 1;
inline constexpr int kLastMailbox = 200;
inline constexpr int kLongestSavedJobName = 24; // characters
// The device asks for one passcode, and the ticket has one place for it: a saved job's is
// the secure print's.
inline constexpr int kShortestSavedJobPasscode = 4;  // digits
inline constexpr int kLongestAnnouncedPasscode = 20; // digits, as its announcement says
inline constexpr std::int32_t kSaveOnly = 1;         // positions in SavedJobSaveOptionRadioMap
inline constexpr std::int32_t kSaveAndPrint = 2;

// What the device keeps the job as: values of SavedJobFormatMap.
inline constexpr std::int32_t kSavedAsTiff = 1;
inline constexpr std::int32_t kSavedAsMultiPageTiff = 2;
inline constexpr std::int32_t kSavedAsPdf = 3;
inline constexpr std::int32_t kSavedAsRaster = 4;         // the device's own format
inline constexpr std::int32_t kSavedAsScalableRaster = 5; // the same, for any resolution
extern const SettingMap SavedJobFormatMap[];

// The folder of the device's mailboxes; a mailbox is the folder below it that
// has its number for a name: file:///job-repository/17
inline const QString kDefaultJobFolder = QStringLiteral("file:///job-repository/");

struct SavedJob
{
    bool usesJobName = true;         // the document's name
    QString name;                    // otherwise; at most kLongestSavedJobName
    std::optional<QString> location; // a mailbox's folder; none: not chosen
    std::int32_t saveDisposition = kSaveOnly;
    std::int32_t fileFormat = kSavedAsPdf;
    // A location that is no mailbox, which a ticket had; it can be chosen again.
    std::optional<QString> elsewhere;

    friend bool operator==(const SavedJob &, const SavedJob &) = default;
};

// The mailbox of a location that is one; none for any other location.
std::optional<int> mailboxOf(const std::optional<QString> &location);
// The location of mailbox `number`, as typed: decimal digits. None for an empty text.
std::optional<QString> locationOfMailbox(const QString &number);
// The job's location where that is no mailbox, else the last one that was none.
std::optional<QString> locationElsewhere(const SavedJob &job);
// What a location is called beside the mailboxes: itself, in one line.
QString nameOfLocation(const QString &location);
// What the mailbox field shows: the mailbox's number, the name of another location,
// or nothing where none is chosen.
QString mailboxText(const SavedJob &job);
// Whether a text in that field may stand: a number of the device's mailboxes (there
// is no mailbox 0), the name of the job's location elsewhere, or nothing.
bool isMailboxAllowed(const QString &text, const SavedJob &job);
// The location that it means then.
std::optional<QString> locationOfText(const QString &text, const SavedJob &job);

// A name of blanks is none: the job takes the document's then.
void setSavedJobName(SavedJob &job, bool usesJobName, const QString &name);

// OK is there for a job that is not secure, for one whose passcode is long enough,
// and for one without passcode, which gets one made.
bool isSavedJobPasscodeAllowed(bool isSecure, const QString &passcode);

// The picture of a file format, as the bundle names it; empty for no format of ours.
QString fileFormatPicture(std::int32_t fileFormat);

} // namespace kelvo
