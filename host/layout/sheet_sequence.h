#pragma once

#include "booklet_imposition.h"
#include "job_description.h"

#include <QList>

// The sheets of a job in the order in which they come out: covers, inserts and the
// pages that are printed. Rules:
//
// - A page that the device sends before the document comes first of all. It is no sheet: what
//   sends it says what becomes of it.
// - The front cover comes before all pages, inserts after the page that they follow, the back
//   cover last. What would follow a page that is not printed comes nowhere.
// - Inserts, covers and exception ranges begin a new sheet, and so does what comes
//   after them: on paper that is printed on both sides a back may stay blank.
// - An exception range may have sides of its own.
// - Covers and inserts are blank: a ticket tells where their paper comes from, no more.
// - The pages of a booklet lie on sheets that are printed on both sides, four on each. A
//   cover goes around them as a sheet of its own. Where inserts go is the device's to know:
//   they are counted after the booklet. Exception ranges begin no sheets of their own in it.
namespace kelvo {

// What one looks at: a printed side, a whole sheet without print, or the leading page.
struct SheetSide
{
    enum class Kind { LeadingPage, FrontCover, Insert, Page, Booklet, BlankBack, BackCover };
    Kind kind = Kind::Page;
    qint64 sheet = 1; // its number, from 1; the first one of an insert
    int sheets = 1;   // of an insert
    // The page that is printed here, from 1, or the first of those in a booklet; on other
    // sides the last one before them, 0 for none.
    int page = 0;
    bool isTwoSided = false; // front and back are told apart
    bool isBack = false;
    bool isAnywhere = false; // an insert of a booklet: it does not come where it is counted
    // The ranges that its pages lie in, within the pages that are printed.
    QList<SpecialSheets::Exception> exceptions;
    BookletPages bookletPages{}; // of a side of a booklet
    int bookletSheet = 0;        // and its sheet, from 0 for the outer one
    friend bool operator==(const SheetSide &, const SheetSide &) = default;
};

// Kept as runs of like sides: it costs nothing to have 99,999 pages. Copies share
// what they hold.
class SheetSequence
{
public:
    SheetSequence() = default; // without sheets
    // For `pages` pages; none have no covers either, and nothing leads.
    SheetSequence(int pages, bool twoSided, const SpecialSheets &special,
                  const std::optional<Imposition> &imposition = {}, bool hasLeadingPage = false);

    // Sides to look at, one for all sheets of an insert. A back that stays blank is
    // one where something comes after it.
    int sides() const { return m_sides; }
    qint64 sheets() const { return m_sheets; }
    SheetSide side(int index) const; // from 0, below sides()
    int indexOfPage(int page) const; // from 1; -1 for one that is not printed

private:
    // Sides that lie one after the other: pages, those of a booklet, or one cover or insert.
    struct Run
    {
        SheetSide first;
        int index = 0; // of the first side
        int count = 1; // pages, sides of a booklet, or 1
    };
    void add(const SheetSide &first, int count, qint64 sheets);
    void addPages(bool twoSided, const SpecialSheets &special);
    void addBooklet(const SpecialSheets &special);
    SheetSide bookletSide(const Run &run, int at) const;

    int m_pages = 0;
    bool m_isBooklet = false;
    QList<SpecialSheets::Exception> m_exceptions; // of a booklet
    QList<Run> m_runs;
    int m_sides = 0;
    qint64 m_sheets = 0;
};

} // namespace kelvo
