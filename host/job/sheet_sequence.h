#pragma once

#include "job_description.h"

#include <QList>

// The sheets of a job in the order in which they come out: covers, inserts and the
// pages that are printed. Rules:
//
// - The front cover comes first, inserts after the page that they follow, the back
//   cover last. What would follow a page that is not printed comes nowhere.
// - Inserts, covers and exception ranges begin a new sheet, and so does what comes
//   after them: on paper that is printed on both sides a back may stay blank.
// - An exception range may have sides of its own.
// - Covers and inserts are blank: a ticket tells where their paper comes from, no more.
namespace kelvo {

// What one looks at: a printed side, or a whole sheet without print.
struct SheetSide
{
    enum class Kind { FrontCover, Insert, Page, BlankBack, BackCover };
    Kind kind = Kind::Page;
    qint64 sheet = 1; // its number, from 1; the first one of an insert
    int sheets = 1;   // of an insert
    // The page that is printed here, from 1; on other sides the last one before
    // them, 0 for none.
    int page = 0;
    bool isTwoSided = false; // front and back are told apart
    bool isBack = false;
    int exceptionFirst = 0, exceptionLast = 0; // the range that a page lies in; 0: none
    friend bool operator==(const SheetSide &, const SheetSide &) = default;
};

// Kept as runs of like sides: it costs nothing to have 99,999 pages. Copies share
// what they hold.
class SheetSequence
{
public:
    SheetSequence() = default; // without sheets
    // For `pages` pages; none have no covers either.
    SheetSequence(int pages, bool twoSided, const SpecialSheets &special);

    // Sides to look at, one for all sheets of an insert. A back that stays blank is
    // one where something comes after it.
    int sides() const { return m_sides; }
    qint64 sheets() const { return m_sheets; }
    SheetSide side(int index) const; // from 0, below sides()
    int indexOfPage(int page) const; // from 1; -1 for one that is not printed

private:
    // Sides that lie one after the other: pages, or one cover or insert.
    struct Run
    {
        SheetSide first;
        int index = 0; // of the first side
        int count = 1; // pages, or 1
    };
    void add(const SheetSide &first, int count, qint64 sheets);

    QList<Run> m_runs;
    int m_sides = 0;
    qint64 m_sheets = 0;
};

} // namespace kelvo
