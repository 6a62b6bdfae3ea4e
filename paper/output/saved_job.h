#pragma once

#include <QString>

#include <cstdint>
#include <optional>

// A job that the device keeps in a numbered mailbox.
namespace kelvo {

inline constexpr int kFirstMailbox = 1;
inline constexpr int kLastMailbox = 200;
inline constexpr int kLongestSavedJobName = 24;       // characters
inline constexpr int kShortestSavedJobPasscode = 4;   // digits
inline constexpr int kLongestAnnouncedPasscode = 20;  // digits, as its announcement says
inline constexpr std::int32_t kSaveOnly = 1;          // positions in SavedJobSaveOptionRadioMap
inline constexpr std::int32_t kSaveAndPrint = 2;

// What the mailbox keeps; values of "SavedJobFormat".
inline constexpr std::int32_t kSavedAsTiff = 1;
inline constexpr std::int32_t kSavedAsMultiPageTiff = 2;
inline constexpr std::int32_t kSavedAsPdf = 3;
inline constexpr std::int32_t kSavedAsRaster = 4;               // the device's own
inline constexpr std::int32_t kSavedAsScalableRaster = 5;       // the same for any resolution

// The folder of the device's mailboxes; a mailbox is the folder below it that
// has its number for a name: file:///job-repository/17
inline const QString kDefaultJobFolder = QStringLiteral("file:///job-repository/");

struct SavedJob
{
    bool usesJobName = true;                // the document's name
    QString name;                           // otherwise; at most kLongestSavedJobName
    std::optional<QString> location;        // a mailbox's folder; none: not chosen
    std::int32_t saveDisposition = kSaveOnly;
    std::int32_t fileFormat = kSavedAsPdf;

    friend bool operator==(const SavedJob &, const SavedJob &) = default;
};

// The mailbox of a location that is one; none for any other location.
std::optional<int> mailboxOf(const std::optional<QString> &location);
// The location of mailbox `number`, as typed: decimal digits. None for an empty text.
std::optional<QString> locationOfMailbox(const QString &number);

} // namespace kelvo
