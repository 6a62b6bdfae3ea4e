#pragma once

#include "cover.h"
#include "device.h"
#include "fax_recipient_list.h"
#include "finishing.h"
#include "job_types.h"
#include "long_date.h"
#include "saved_job.h"
#include "setting_maps.h"
#include "stock.h"
#include "ticket.h"
#include "values.h"

#include <QSizeF>
#include <QString>

#include <cstdint>
#include <optional>

// What the Paper/Output panel sets, and how tickets say it.
// Keys are com.kelvo.print. and:
//
//   JobLevelStock                 dictionary, stock.h
//   JobType                       dictionary:
//     MediaType                     integer  an echo, as read
//     JobType                       integer  JobTypeMap
//     UseJobName                    boolean
//     SavedJobName                  string   only without the job's name
//     SavedJobLocation              string   only when chosen
//     SecurePrintPassword           string   only when there is one
//     DelayedPrintTime              integer  long-date seconds
//     SaveDisposition               integer  only for saved jobs
//     SavedJobFormat                integer  only for saved jobs
//   FaxOptions, FaxRecipientList  dictionary, array; only when there are any
//   what booklet_settings.h says
//   FinishingDuplex               integer  also under PMDuplexing
//   FinishingOptions, FinishingOffset, FinishingOffsetEnableSubset,
//   FinishingSlipSheet, FinishingBindValue   integer
//   FinishingOffsetPagesPerSubset integer  only with subsets
//   FinishingCustom               string
//
// and the PPD choices MediaColor, MediaType, OutputBin, KVColorMode, KVSlipSheetPrint,
// KVSlipSheetSource, Duplex, KVFold, KVPunch, StapleLocation, KVFrontCoverSheet and
// KVBackCoverSheet. A choice that the keyword map does not have stays in the ticket.
namespace kelvo {

// Numbers are ticket values.
struct PaperOutputSettings
{
    std::int32_t jobType = 0;     // JobTypeMap; 0 until the first read
    std::int32_t colorMode = 0;   // "KVColorMode"
    std::int32_t orientation = 1; // 1 portrait, 2 landscape, 3 and 4 the same reversed
    QSizeF paper;                 // points, as it is looked at; empty: not said
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
    std::optional<FaxRecipientList> faxRecipients;

    BookletSettings booklet;
    Finishing finishing;

    std::optional<Cover> frontCover, backCover;

    bool isBooklet() const { return booklet.isOn(); }

    friend bool operator==(const PaperOutputSettings &, const PaperOutputSettings &) = default;
};

// What a job begins with, before a ticket is read.
void initializePaperOutput(PaperOutputSettings &settings, LongDateTime now);

// What the tickets say, and else what the device does by default. A time to print stays
// where they say none.
void readPaperOutput(PaperOutputSettings &settings, const Ticket &printSettings,
                     const Ticket &pageFormat, const Device &device);
// The page format alone: its user may turn the pages between reading and writing.
void readPageFormat(PaperOutputSettings &settings, const Ticket &pageFormat);
// Two-sided printing is written by a panel that is `opened`.
void writePaperOutput(const PaperOutputSettings &settings, Ticket &printSettings, bool opened);

} // namespace kelvo
