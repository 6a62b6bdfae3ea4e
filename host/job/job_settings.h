#pragma once

#include "ppd_file.h"
#include "print_session.h"
#include "result.h"

#include <QString>

// The host's own settings: what the left column of the window edits. They live
// in the tickets like everything else.
namespace kelvo {

enum class Orientation : int { Portrait = 1, Landscape = 2, ReversePortrait = 3, ReverseLandscape = 4 };

struct JobSettings
{
    int copies = 1;       // 1 to 9999
    bool collate = true;
    QString pageRanges;   // "1-3,7"; empty: all
    QString paperName;    // a PPD page size; empty: the PPD's default
    Orientation orientation = Orientation::Portrait;

    friend bool operator==(const JobSettings &, const JobSettings &) = default;
};
inline constexpr int kMaximumCopies = 9999;

JobSettings jobSettingsFrom(const PrintSession &session, const PpdFile *ppd);
// Writes them with the client "com.kelvo.printingmanager": page format (paper
// name, size and unadjusted rectangle in points) and print settings; "PageSize"
// becomes a PPD choice when the PPD has it.
void writeJobSettings(const JobSettings &settings, const PpdFile *ppd, PrintSession &session);

// One -o NAME=VALUE of the command line into the session's tickets: a PPD
// keyword with one of its choices, media=NAME, orientation-requested=3…6.
// NotFound with the nearest name for an unknown option or choice.
Result<void> applyOption(const QString &name, const QString &value, const PpdFile *ppd,
                         PrintSession &session);

} // namespace kelvo
