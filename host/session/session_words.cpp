#include "session_words.h"

#include "dialog_session.h"
#include "session_cautions.h"
#include "sheet_sequence.h"
#include "texts.h"

namespace kelvo {

JobWords jobInWords(DialogSession &session, SessionCautions &cautions)
{
    SessionJob &job = session.job();
    job.writeAll();
    JobWords words = describeJob(job.ticket(), job.settings(), job.ppd(), job.secretKeys(),
                                 job.description(), job.missing());
    if (session.document().hasSource() && !session.documents().problem().isEmpty())
        words.cautions << session.documents().problem();
    words.cautions += job.conflicts().sentences();
    cautions.look();
    words.cautions += cautions.inWords();
    return words;
}

QString pagesProblem(DialogSession &session)
{
    const auto pages = session.job().printedPages();
    if (pages)
        return {};
    const QString detail = pages.error().detail;
    return translate("Session", "%1.", "a clause that stands alone")
        .arg(detail.left(1).toUpper() + detail.mid(1));
}

QString leftToThePrinter(SessionJob &job)
{
    const JobDescription &description = job.description();
    QStringList parts;
    if (description.imposition)
        parts << translate("Session", "the booklet");
    if (!description.overlays.empty())
        parts << translate("Session", "the watermark");
    if (description.leadingPage)
        parts << description.leadingPage->name;
    const SpecialSheets &sheets = description.sheets;
    if (sheets.frontCover == SpecialSheets::Cover::Sheet
        || sheets.backCover == SpecialSheets::Cover::Sheet || !sheets.inserts.isEmpty())
        parts << translate("Session", "covers and inserts");
    return parts.isEmpty()
        ? QString()
        : translate("Session", "Only the printer adds this: %1.").arg(listed(parts));
}

QString jobInShort(DialogSession &session)
{
    SessionJob &job = session.job();
    const PrintedPages pages = job.printedPages().value();
    const JobDescription &description = job.description();
    const SheetSequence sequence(pages.count(), job.isTwoSided(), description.sheets,
                                 description.imposition);
    return shortSummary(job.ticket(), job.settings(), pages.documentPageCount(), sequence.sheets(),
                        job.secretKeys(), description.leadingPage);
}

} // namespace kelvo
