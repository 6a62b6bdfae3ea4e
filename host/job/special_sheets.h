#pragma once

#include "bundle.h"
#include "ppd_file.h"
#include "ticket.h"

#include <QList>
#include <QString>

#include <cstdint>
#include <optional>

// Covers, inserts and exception pages of a job, as far as one must know them to count
// and to show its sheets. Page numbers count the pages that are printed, from 1.
//
// The bundle's Info.plist says where they stand ("KelvoSpecialPages", a dictionary; what
// is missing there is not looked for):
//   FrontCover, BackCover  dictionary:
//     Option      PPD option
//     None        its choice for no cover; any other is a cover
//     LeftOut     what is to be said of a cover that has no choice, likewise a key
//   Inserts                dictionary:
//     Entry       entry of the print settings: an array of dictionaries
//     AfterPage   key in each of them: the page that the sheets follow; 0 is before page 1
//     Quantity    likewise: how many sheets; one where it is missing
//   Exceptions             dictionary:
//     Entry       likewise
//     FirstPage, LastPage   keys in each of them
//     Sides       likewise, and what it may hold:
//     OneSided, TwoSided    arrays of integers; with others the job decides
//   and in each of them
//     Label       what it is called, a key of the bundle's table "Localizable"; that of
//                 the exceptions has the pages as "%1"
namespace kelvo {

struct SpecialSheetKeys
{
    struct Cover
    {
        QString option, none, label;
        QString leftOut; // what is said of one that does not reach the device
    };
    Cover frontCover, backCover;
    struct
    {
        QString entry, afterPage, quantity, label;
    } inserts;
    struct
    {
        QString entry, firstPage, lastPage, sides, label;
        QList<std::int64_t> oneSided, twoSided;
    } exceptions;
};
SpecialSheetKeys specialSheetKeysOf(const Bundle *bundle); // empty for null; labels in words

// Lists are shared by copies.
struct SpecialSheets
{
    struct Insert
    {
        int afterPage = 0;
        int sheets = 1; // 1 to mostInsertSheets
        friend bool operator==(const Insert &, const Insert &) = default;
    };
    static constexpr int mostInsertSheets = 9999;
    struct Exception
    {
        int firstPage = 1, lastPage = 1;
        std::optional<bool> twoSided; // none: as the job
        friend bool operator==(const Exception &, const Exception &) = default;
    };

    bool hasFrontCover = false, hasBackCover = false;
    QList<Insert> inserts;       // by page; those after the same page as they are in the ticket
    QList<Exception> exceptions; // by page; no page lies in two
    friend bool operator==(const SpecialSheets &, const SpecialSheets &) = default;
};

// Reads them from tickets. A ticket may hold 99,999 of each: what it holds is read
// again only when it is another one.
class SpecialSheetsReader
{
public:
    explicit SpecialSheetsReader(SpecialSheetKeys keys);

    // Only what reaches the device: nothing that its PPD does not have, and no entries
    // where it reads no tickets. Entries of another form are ignored, and so are an
    // insert of no sheets, a range without pages and one that begins within another.
    const SpecialSheets &read(const Ticket &printSettings, const PpdFile *ppd);

    const SpecialSheetKeys &keys() const { return m_keys; }

private:
    SpecialSheetKeys m_keys;
    Array m_inserts, m_exceptions; // what was read last
    SpecialSheets m_sheets;
};

} // namespace kelvo
