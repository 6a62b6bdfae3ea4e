#pragma once

#include "asked_option.h"
#include "page_placement.h"
#include "ppd_file.h"
#include "print_session.h"
#include "result.h"
#include "ticket_file.h"

#include <QSizeF>
#include <QString>

#include <optional>

// The host's own settings: what the left column of the window edits. They live
// in the tickets like everything else.
namespace kelvo {

struct JobSettings
{
    int copies = 1; // 1 to 9999
    bool collate = true;
    QString pageRanges; // "1-3,7,6-1"; empty: all
    QString paperName;  // a PPD page size, or "Custom.WxH"; empty: the PPD's default
    Orientation orientation = Orientation::Portrait;
    PageLayout layout;
    PageSet pageSet = PageSet::All; // of the ranges
    bool isReversed = false;        // the last page, or sheet, first

    friend bool operator==(const JobSettings &, const JobSettings &) = default;
};
inline constexpr int kMaximumCopies = 9999;

// The entries of the print settings that say which pages are printed, and how they are laid out.
const QStringList &pageEntries();
// Those that belong to one job, and go into no preset: its name, its pages, its hold.
const QStringList &entriesOfOneJob();

// What the tickets say. Values that are missing, of another type or out of range
// count as the defaults above. The paper is the PPD choice "PageSize" where the
// ticket has one (a panel may have set it), else the page format's paper, else
// the PPD's default; a name that this PPD lacks is given as it stands.
JobSettings jobSettingsFrom(const PrintSession &session, const PpdFile *ppd);

// Writes them with the client "com.kelvo.printingmanager": page format (paper
// name, size and unadjusted rectangle in points) and print settings; "PageSize"
// becomes a PPD choice when the PPD has it. A paper that this PPD lacks leaves
// the page format's size as it was. Locked entries stay.
void writeJobSettings(const JobSettings &settings, const PpdFile *ppd, PrintSession &session);

// Whether both sides are printed: by the choice of "Duplex", or by the PPD's own
// default where nothing is chosen. Without a PPD no choice is sent.
bool isTwoSided(const PPDDictionary &choices, const PpdFile *ppd);

QString defaultPaper(const PpdFile &ppd); // empty: it names none
// The PPD's page size that has room for just such a page, in points, either way up: the default
// one where it is that; empty where there is none.
QString paperAsLargeAs(const QSizeF &page, const PpdFile &ppd);
// Whether a queue's own defaults name a paper. What a server says of the PPD's default does not.
bool namesPaper(const QMap<QString, QString> &queueDefaults, const PpdFile &ppd);

// The paper of that name, with what its printer leaves free of print; none as for paperSize().
std::optional<Paper> paperNamed(const QString &name, const PpdFile &ppd);

// The size in points of a page size of the PPD, or of "Custom.WxH" (with pt, in,
// ft, cm, mm or m behind it, else points) within the PPD's limits; none otherwise.
std::optional<QSizeF> paperSize(const QString &name, const PpdFile &ppd);

// One -o of the command line into the session's tickets: a PPD
// keyword with one of its choices, or one of the names that every printer has:
//
//   media=NAME[,NAME…]           a page size (its PPD name in any case, "Custom.WxH", or a
//                                self-describing name such as iso_a4_210x297mm), an input
//                                slot or a paper type
//   orientation-requested=3…6    portrait, landscape, reverse landscape, reverse portrait
//   sides=one-sided|two-sided-long-edge|two-sided-short-edge
//   copies=N   page-ranges=1-3,7   collate=true|false
//   multiple-document-handling=separate-documents-(un)collated-copies
//   landscape=true|false   portrait=true|false
//   print-scaling=auto|auto-fit|fit|fill|none   scaling=1…800   fit-to-page=true|false
//   number-up=1|2|4|6|9|16   number-up-layout=lrtb|lrbt|…   page-border=none|single
//   page-set=all|odd|even   outputorder=normal|reverse
//   print-color-mode, print-quality, media-source, media-type, output-bin, printer-resolution,
//   print-content-optimize, finishing-template and finishings, with IPP's values: the option of
//   the PPD that says the same (ipp_options.h)
//   job-priority=1…100   job-hold-until=WORD|HH:MM[:SS]   see job_timing.h
//
// A name alone means what meaningOf() says. true is also written on and yes, false also off and no,
// and choices of such a name are meant by all of them; an option without them, but with None, has
// that for false.
//
// Names and choices are found in any case. Unsupported for an option that neither the
// printer nor the host has, with the nearest name; NotFound for an unknown choice, OutOfRange
// for a number outside its limits, Refused for what cannot be asked for; each says where as it was
// typed. The session is as it was then. What comes back is where it was set, also to what it was.
Result<TicketPlaces> applyOption(const AskedOption &asked, const PpdFile *ppd,
                                 PrintSession &session);

} // namespace kelvo
