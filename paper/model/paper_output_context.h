#pragma once

#include "bundle.h"
#include "cover.h"
#include "finishing.h"
#include "job_types.h"
#include "long_date.h"
#include "saved_job.h"
#include "stock.h"
#include "values.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <optional>

namespace kelvo {

inline constexpr std::int32_t kBookletOn = 1, kBookletOff = 2; // EnabledDisabledMap
inline constexpr std::int32_t kPlexSimplex = 1, kPlexDuplex = 2, kPlexDuplexShort = 3; // PlexMap

// What the booklet dialog is handed and gives back.
struct BookletLayout
{
    std::int32_t pageBorders = 1;  // PageBordersMap: 1 none, 2 drawn
    std::int32_t gutter = 24;      // points, 0 to 216
    std::int32_t creep = 0;        // tenths, 0 to 10
    std::int32_t newSize = kUnset; // PageSizeMap; kUnset: the document's own
};

// All that the Paper/Output panel reads and changes. Numbers are ticket values.
struct _PaperOutputContext // NOLINT(bugprone-reserved-identifier): the panel's own name
{
    CFBundleRef bundle = nullptr;
    QString title;
    QString documentName; // what a saved job is called that takes the job's name
    bool opened = false;  // from Open to Close

    std::int32_t jobType = 0;     // JobTypeMap; 0 until the first read
    std::int32_t colorMode = 0;   // "KVColorMode"
    std::int32_t orientation = 1; // 1 portrait, 2 landscape, 3 and 4 the same reversed
    std::int32_t outputBin = 1;   // "OutputBin"
    std::int32_t duplex = 1;      // PlexMap

    Stock jobStock;
    std::int32_t separators = 1; // "KVSlipSheetPrint": 1 none, 2 blank, 3 printed
    Stock separatorStock;        // its source is of "KVSlipSheetSource"

    Dictionary jobTypeOptions; // com.kelvo.print.JobType, with keys that are not ours
    std::int32_t mediaTypeEcho = 1;
    SavedJob savedJob;
    std::optional<QString> passcode; // none: there is none
    LongDateTime delayedPrintTime = 0;
    std::optional<Dictionary> faxOptions;
    std::optional<Array> faxRecipients; // one dictionary each, as in the ticket

    std::int32_t booklet = kBookletOff;
    BookletLayout bookletLayout;
    Finishing finishing;
    FinishingDevices devices; // set when the panel opens

    std::unique_ptr<Cover> frontCover, backCover;

    bool isBooklet() const { return booklet == kBookletOn; }
};

} // namespace kelvo
