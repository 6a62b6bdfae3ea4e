#include "saved_job.h"

#include <algorithm>

namespace kelvo {

namespace {

bool isDecimal(const QString &text)
{
    return !text.isEmpty()
        && std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

// None for what is no mailbox of the device.
std::optional<int> mailboxNumber(const QString &digits)
{
    bool fits = false;
    const int number = isDecimal(digits) ? digits.toInt(&fits) : 0;
    if (!fits || number < kFirstMailbox || number > kLastMailbox)
        return std::nullopt;
    return number;
}

QString withoutLeadingZeros(const QString &digits)
{
    qsizetype zeros = 0;
    while (zeros + 1 < digits.size() && digits[zeros] == u'0')
        ++zeros;
    return digits.mid(zeros);
}

bool meansElsewhere(const QString &text, const SavedJob &job)
{
    const std::optional<QString> elsewhere = locationElsewhere(job);
    return elsewhere && text == nameOfLocation(*elsewhere);
}

} // namespace

// clang-format off
constexpr SettingMap SavedJobFormatMap[] = {
    {"Saved Job Format TIFF",            kSavedAsTiff},
    {"Saved Job Format Multi-Page TIFF", kSavedAsMultiPageTiff},
    {"Saved Job Format PDF",             kSavedAsPdf},
    {"Saved Job Format Raster",          kSavedAsRaster},
    {"Saved Job Format Scalable Raster", kSavedAsScalableRaster},
    kEndOfMap,
};
// clang-format on
static_assert(isWellFormed(SavedJobFormatMap) && valuesAreDistinct(SavedJobFormatMap));

std::optional<int> mailboxOf(const std::optional<QString> &location)
{
    if (!location || !location->startsWith(kDefaultJobFolder))
        return std::nullopt;
    // "…/017" is a folder of another name than mailbox 17.
    const QString name = location->mid(kDefaultJobFolder.size());
    const std::optional<int> number = mailboxNumber(name);
    return number && QString::number(*number) == name ? number : std::nullopt;
}

std::optional<QString> locationOfMailbox(const QString &number)
{
    if (number.isEmpty())
        return std::nullopt;
    return kDefaultJobFolder + withoutLeadingZeros(number);
}

std::optional<QString> locationElsewhere(const SavedJob &job)
{
    return job.location && !mailboxOf(job.location) ? job.location : job.elsewhere;
}

QString nameOfLocation(const QString &location)
{
    constexpr int longest = 200; // characters, of a text that a ticket brings
    return location.simplified().left(longest);
}

QString mailboxText(const SavedJob &job)
{
    if (const std::optional<int> mailbox = mailboxOf(job.location))
        return QString::number(*mailbox);
    return job.location ? nameOfLocation(*job.location) : QStringLiteral("");
}

bool isMailboxAllowed(const QString &text, const SavedJob &job)
{
    return text.isEmpty() || mailboxNumber(text) || meansElsewhere(text, job);
}

std::optional<QString> locationOfText(const QString &text, const SavedJob &job)
{
    return meansElsewhere(text, job) ? locationElsewhere(job) : locationOfMailbox(text);
}

void setSavedJobName(SavedJob &job, bool usesJobName, const QString &name)
{
    const QString trimmed = name.trimmed();
    job.usesJobName = usesJobName || trimmed.isEmpty();
    job.name = trimmed;
}

bool isSavedJobPasscodeAllowed(bool isSecure, const QString &passcode)
{
    return !isSecure || passcode.isEmpty() || passcode.size() >= kShortestSavedJobPasscode;
}

QString fileFormatPicture(std::int32_t fileFormat)
{
    switch (fileFormat) {
    case kSavedAsTiff:
        return QStringLiteral("JobType_JobFormat_TIFF.gif");
    case kSavedAsMultiPageTiff:
        return QStringLiteral("JobType_JobFormat_MTIFF.gif");
    case kSavedAsPdf:
        return QStringLiteral("JobType_JobFormat_PDF.gif");
    case kSavedAsRaster:
        return QStringLiteral("JobType_JobFormat_FRF.gif");
    case kSavedAsScalableRaster:
        return QStringLiteral("JobType_JobFormat_FRFDRI.gif");
    }
    return {};
}

} // namespace kelvo
