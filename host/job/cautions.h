#pragma once

#include "printer_condition.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

// What the user should know of a job before it goes out. One list of these is what the
// window's bar shows, `summary` prints, and a driven run says on standard error.
// Settings in conflict are no cautions: they have a way out of their own (conflicts.h).
namespace kelvo {

struct Caution
{
    enum class Weight {
        Refused, // such a job would be refused: there is no Print
        Asked,   // whoever presses Print is asked first
        Told,    // what comes out is less than what was wanted
        Noted,   // nothing that was wanted here is lost: shown, and not said when driven
    };
    Weight weight = Weight::Told;
    QString text;              // one sentence
    QString advice = {};       // what to do, or what becomes of it; may be empty
    QStringList items = {};    // what may be put away, until there is more of it
    bool hasHappened = false;  // a driven run says it at once, and not only when it prints
    bool isOfDocument = false; // of several, each has its own

    QString sentences() const; // both
    friend bool operator==(const Caution &, const Caution &) = default;
};

// A queue that is stopped, or takes no jobs.
std::optional<Caution> printerCaution(const QString &printer, const PrinterCondition &condition);

// `pages` of the document, ascending, do not fit on `paper`, which is called so, and are cut off,
// or made smaller.
std::optional<Caution> cutPagesCaution(const QList<int> &pages, const QString &paper);
// The same where several share a sheet.
std::optional<Caution> cutPlacesCaution(const QList<int> &pages);
std::optional<Caution> shrunkPagesCaution(const QList<int> &pages, const QString &paper);
// Pages that go out are not the document's: covers, inserts, exceptions count what is printed.
// `onFirst` are the document's pages on the first one.
Caution countedPagesCaution(const QList<int> &onFirst);

// The document was damaged (Document::isRepaired): what could not be read is not there.
Caution repairedCaution();

// The device lacks these settings, or nobody knows what it has: a queue without a PPD.
std::optional<Caution> missingCaution(const QStringList &settings, bool hasPpd);
// Settings that only a ticket can tell, of a job for a device that reads none.
std::optional<Caution> untoldCaution(const QStringList &settings);

} // namespace kelvo
