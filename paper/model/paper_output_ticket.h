#pragma once

#include "paper_output_context.h"
#include "plugin_abi.h"

class QDateTime;

namespace kelvo {

class PpdFile;

// The Paper/Output panel's entries of the ticket. Keys are com.kelvo.print. and:
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
//   BookletLayout                 boolean
//   BookletDrawOutlines, BookletForceNewSize, Gutter, Creep   with booklet layout
//   FinishingDuplex               integer  also under PMDuplexing
//   FinishingOptions, FinishingOffset, FinishingOffsetEnableSubset,
//   FinishingSlipSheet, FinishingBindValue   integer
//   FinishingOffsetPagesPerSubset integer  only with subsets
//   FinishingCustom               string
//
// and the PPD choices MediaColor, MediaType, OutputBin, KVColorMode, KVSlipSheetPrint,
// KVSlipSheetSource, Duplex, KVFold, KVPunch, StapleLocation, KVFrontCoverSheet and
// KVBackCoverSheet. A choice that the keyword map does not have stays in the ticket.

// What a context begins with, before it reads a ticket.
void initializePaperOutput(_PaperOutputContext &context, LongDateTime now);

void readPaperOutput(_PaperOutputContext &context, PMTicketRef settings, PMTicketRef pageFormat,
                     const PpdFile *ppd);
// The page format alone: its user may turn the pages between reading and writing.
void readOrientation(_PaperOutputContext &context, PMTicketRef pageFormat);
// Duplex is written only while the panel is open.
void writePaperOutput(_PaperOutputContext &context, PMTicketRef settings);

} // namespace kelvo
