#pragma once

#include "bundle.h"
#include "control_id.h"
#include "file_store.h"
#include "ppd_file.h"
#include "status.h"
#include "ticket_file.h"

#include <QByteArray>
#include <QList>
#include <QSizeF>
#include <QString>

#include <atomic>
#include <cstdint>
#include <optional>
#include <vector>

// What a job's tickets mean, as the bundle that wrote them tells it: in words, in sheets
// and in what is done to its pages. A bundle exports one function for it, by name.
namespace kelvo {

// One thing that the job says. Texts are plain, in the user's language, on one line.
struct DescribedSetting
{
    TicketPlace place;           // where the ticket has it, or would have it
    QString label;               // "Paper color", without a colon
    QString words;               // "Salmon"
    QString panel;               // the panel that sets it, as scripts name it: "PaperOutput"
    ControlID control;           // and the control there
    bool isDefault = false;      // the device does it by itself
    bool isOnlyInTicket = false; // though `place` is a choice: no PPD has one for it
    bool isSecret = false;       // there is something; `words` do not say what
    // It names what is not there, or lacks what it needs, and `words` end a sentence about that.
    bool isLost = false;
    // Entries of the print settings that hold the same choice, and are read before it: who
    // sets it from outside takes them away, or it would not last.
    QStringList repeats = {};

    friend bool operator==(const DescribedSetting &, const DescribedSetting &) = default;
};

// Covers, inserts and exception pages, as far as one must know them to count and to show
// a job's sheets: only what reaches the device. Page numbers count the pages that are
// printed, from 1. Lists are shared by copies.
struct SpecialSheets
{
    enum class Cover {
        None,
        Sheet,
        Unsaid, // the ticket has no choice where none means no cover: left out by the device
    };
    struct Insert
    {
        int afterPage = 0; // 0: before page 1
        int sheets = 1;    // 1 to mostInsertSheets
        friend bool operator==(const Insert &, const Insert &) = default;
    };
    static constexpr int mostInsertSheets = 9999;
    struct Exception
    {
        int firstPage = 1, lastPage = 1;
        std::optional<bool> twoSided; // none: as the job
        friend bool operator==(const Exception &, const Exception &) = default;
    };

    Cover frontCover = Cover::None, backCover = Cover::None;
    QList<Insert> inserts;       // by page; those after the same page as they are in the ticket
    QList<Exception> exceptions; // by page; no page lies in two
    friend bool operator==(const SpecialSheets &, const SpecialSheets &) = default;
};

// What they are called.
struct SpecialSheetWords
{
    QString frontCover, backCover, insert;
    QString exception;                           // with the pages as "%1"
    QString frontCoverLeftOut, backCoverLeftOut; // a sentence each
};

// The pages are put together on sheets in another way than one after the other.
struct Imposition
{
    // Sheets are folded once in the middle: two pages lie on each side, made smaller to fit.
    enum class Kind { Booklet };
    Kind kind = Kind::Booklet;
    double gutter = 0; // points, between the two pages of a side
    double creep = 0;  // points by which the pages of a sheet move inwards beyond those of the
                       // sheet around it
    bool drawsBorders = false; // a line around each page
    QSizeF sheet;              // points, upright; empty: the job's paper
    friend bool operator==(const Imposition &, const Imposition &) = default;
};

// Something that is drawn on pages: what it is called in the user's store, not how it
// looks. Whoever shows it asks for the drawing (DrawOverlayFunction).
struct Overlay
{
    enum class Place {
        Behind,  // below what the page has: seen where the page leaves its paper free
        Blended, // above it, and what is darker below is still seen
        Above,   // above it
    };
    QString name;
    Place place = Place::Blended;
    bool firstPageOnly = false;
    quint64 version = 0; // another number, another drawing
    friend bool operator==(const Overlay &, const Overlay &) = default;
};

// A page that the device makes of the tickets and sends before those of the document.
struct LeadingPage
{
    QString name;        // "Fax cover sheet"
    QString inShort;     // where the job is told in a few words: "with a cover sheet"
    QSizeF size;         // points
    Dictionary content;  // for whoever draws it (DrawLeadingPageFunction)
    quint64 version = 0; // another number, another drawing
    friend bool operator==(const LeadingPage &, const LeadingPage &) = default;
};

struct JobDescription
{
    std::vector<DescribedSetting> settings; // panel by panel, as a user meets them
    // Entries and choices of which nothing is to be said, or which a line above says with
    // others: who prints, what a panel keeps for itself.
    TicketPlaces unspoken;
    SpecialSheets sheets;
    SpecialSheetWords sheetWords;
    std::optional<Imposition> imposition;
    std::vector<Overlay> overlays;
    std::optional<LeadingPage> leadingPage;
    // What was read beside the tickets. With another stamp, all is to be said anew.
    std::vector<StampedFile> files;

    // The lists that `sheets` was made from. A description that is brought up to date reads
    // those anew that are other ones now: there may be 99,999 pages.
    Array insertList, exceptionList;
};

struct JobToDescribe
{
    const Ticket *printSettings = nullptr; // not null
    const Ticket *pageFormat = nullptr;    // not null
    const PpdFile *ppd = nullptr;          // null: nothing is known of the device. Nobody else
                                           // uses it meanwhile: libcups keeps state in it
    CFBundleRef bundle = nullptr;          // of the texts
};

// Exported under this name. Brings `description`, which may be new, up to date. Any thread,
// as many at once as there are PPD handles; no session and no window is needed. paramErr for
// a missing argument, and nothing is described.
inline constexpr char kDescribeJobName[] = "KelvoDescribeJob";
using DescribeJobFunction = OSStatus (*)(const JobToDescribe *job, JobDescription *description);

// Exported under this name. Whether any of the bundle's devices may have the PPD option, whose
// keyword is found in any case. Any thread.
inline constexpr char kKnowsOptionName[] = "KelvoKnowsOption";
using KnowsOptionFunction = bool (*)(const QString &keyword);

// A drawing for one page, as it lies on the sheet that one looks at.
struct OverlayToDraw
{
    QString name;                                // as the description has it
    QSizeF page;                                 // points
    const std::atomic_bool *cancelled = nullptr; // null: never
};

// Exported under this name: a PDF of one page that has nothing but the overlay, with its
// opacity, and no paper. Blocks where a picture is read; any thread but the window's, as many
// at once as one likes. paramErr for a missing argument or name; fnfErr, and no PDF, where the
// store does not have it or it cannot be drawn.
inline constexpr char kDrawOverlayName[] = "KelvoDrawOverlay";
using DrawOverlayFunction = OSStatus (*)(const OverlayToDraw *overlay, QByteArray *pdf);

struct LeadingPageToDraw
{
    QSizeF size;                                 // points
    Dictionary content;                          // as the description has it
    const std::atomic_bool *cancelled = nullptr; // null: never
};

// Exported under this name: a PDF of one page. As of DrawOverlayFunction.
inline constexpr char kDrawLeadingPageName[] = "KelvoDrawLeadingPage";
using DrawLeadingPageFunction = OSStatus (*)(const LeadingPageToDraw *page, QByteArray *pdf);

} // namespace kelvo
