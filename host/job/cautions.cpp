#include "cautions.h"

#include "layout_words.h"
#include "texts.h"

namespace kelvo {

namespace {

using Weight = Caution::Weight;

} // namespace

QString Caution::sentences() const
{
    return advice.isEmpty() ? text : text + u' ' + advice;
}

std::optional<Caution> printerCaution(const QString &printer, const PrinterCondition &condition)
{
    const QString &reason = condition.stateMessage;
    if (!condition.acceptsJobs)
        return Caution{
            Weight::Refused,
            reason.isEmpty() ? translate("Job", "“%1” takes no jobs.").arg(printer)
                             : translate("Job", "“%1” takes no jobs: %2.").arg(printer, reason),
            translate("Job", "Choose another printer, or wait until it takes jobs again.")};
    if (condition.state == PrinterCondition::State::Stopped)
        return Caution{Weight::Asked,
                       reason.isEmpty()
                           ? translate("Job", "“%1” is stopped.").arg(printer)
                           : translate("Job", "“%1” is stopped: %2.").arg(printer, reason),
                       translate("Job", "A job waits there until the printer is started again.")};
    return std::nullopt;
}

std::optional<Caution> cutPagesCaution(const QList<int> &pages, const QString &paper)
{
    if (pages.isEmpty())
        return std::nullopt;
    return Caution{Weight::Told,
                   translate("Job",
                             "Page(s) %1 larger than the paper, %2: what does not fit is cut off.",
                             nullptr, pages.size())
                       .arg(pageListInWords(pages), paper),
                   translate("Job", "Choose larger paper, or let the pages be made to fit.")};
}

std::optional<Caution> cutPlacesCaution(const QList<int> &pages)
{
    if (pages.isEmpty())
        return std::nullopt;
    return Caution{
        Weight::Told,
        translate("Job",
                  "Page(s) %1 larger than the places on the sheet: what does not fit is "
                  "cut off.",
                  nullptr, pages.size())
            .arg(pageListInWords(pages)),
        translate("Job", "Choose fewer pages per sheet, or let the pages be made to fit.")};
}

std::optional<Caution> shrunkPagesCaution(const QList<int> &pages, const QString &paper)
{
    if (pages.isEmpty())
        return std::nullopt;
    return Caution{Weight::Noted,
                   translate("Job",
                             "Page(s) %1 larger than the paper, %2, and made smaller to fit.",
                             nullptr, pages.size())
                       .arg(pageListInWords(pages), paper)};
}

Caution countedPagesCaution(const QList<int> &onFirst)
{
    return {Weight::Noted,
            translate("Job",
                      "Covers, inserts, exception pages and booklets count what is printed: "
                      "the first page there has page(s) %1 of the document.",
                      nullptr, onFirst.size())
                .arg(pageListInWords(onFirst))};
}

Caution repairedCaution()
{
    return {Weight::Told,
            translate("Job",
                      "The document is damaged; what could be read of it was put together, "
                      "and parts may be missing."),
            translate("Job",
                      "Compare the preview with the original, or save the document again "
                      "from the program that made it.")};
}

std::optional<Caution> missingCaution(const QStringList &settings, bool hasPpd)
{
    if (settings.isEmpty())
        return std::nullopt;
    const QString list = separated(settings);
    return Caution{
        Weight::Noted,
        hasPpd ? translate("Job", "This printer does not have: %1.").arg(list)
               : translate("Job",
                           "Not sent, for the print server has no description of this printer: "
                           "%1.")
                     .arg(list),
        translate("Job", "%n setting(s) kept, to come back with a printer that has them.", nullptr,
                  settings.size()),
        settings};
}

std::optional<Caution> untoldCaution(const QStringList &settings)
{
    if (settings.isEmpty())
        return std::nullopt;
    return Caution{Weight::Noted,
                   translate("Job", "Not sent, for this printer reads no job tickets: %1.")
                       .arg(separated(settings)),
                   translate("Job", "%n setting(s) kept; choose a printer that reads them.",
                             nullptr, settings.size()),
                   settings};
}

} // namespace kelvo
