#include "cautions.h"

namespace kelvo {

namespace {

using Weight = Caution::Weight;

// "2 and 4–6"; of many the first few.
QString pagesInWords(const QList<int> &pages)
{
    constexpr qsizetype mostListed = 8;
    QStringList runs;
    qsizetype told = 0;
    for (qsizetype first = 0; first < pages.size() && runs.size() < mostListed; first = told) {
        told = first + 1;
        while (told < pages.size() && pages[told] == pages[told - 1] + 1)
            ++told;
        const QString begin = QString::number(pages[first]);
        runs << (told == first + 1 ? begin : begin + u'–' + QString::number(pages[told - 1]));
    }
    if (told < pages.size())
        runs << QStringLiteral("%1 more").arg(pages.size() - told);
    const QString last = runs.takeLast();
    return runs.isEmpty() ? last : runs.join(QStringLiteral(", ")) + QStringLiteral(" and ") + last;
}

} // namespace

QString Caution::sentences() const
{
    return advice.isEmpty() ? text : text + u' ' + advice;
}

std::optional<Caution> printerCaution(const QString &printer, const PrinterCondition &condition)
{
    const auto withReason = [&](const char *what) {
        const QString reason = condition.stateMessage.isEmpty()
            ? QString()
            : QStringLiteral(": ") + condition.stateMessage;
        return QStringLiteral("“%1” %2%3.").arg(printer, QLatin1String(what), reason);
    };
    if (!condition.acceptsJobs)
        return Caution{
            Weight::Refused, withReason("takes no jobs"),
            QStringLiteral("Choose another printer, or wait until it takes jobs again.")};
    if (condition.state == PrinterCondition::State::Stopped)
        return Caution{Weight::Asked, withReason("is stopped"),
                       QStringLiteral("A job waits there until the printer is started again.")};
    return std::nullopt;
}

std::optional<Caution> cutPagesCaution(const QList<int> &pages, const QString &paper)
{
    if (pages.isEmpty())
        return std::nullopt;
    return Caution{Weight::Told,
                   QStringLiteral("%1 %2 larger than the paper, %3: what does not fit is cut off.")
                       .arg((pages.size() == 1 ? QStringLiteral("Page ") : QStringLiteral("Pages "))
                                + pagesInWords(pages),
                            pages.size() == 1 ? QStringLiteral("is") : QStringLiteral("are"),
                            paper),
                   QStringLiteral("Choose larger paper; jobs are not scaled.")};
}

Caution repairedCaution()
{
    return {Weight::Told,
            QStringLiteral("The document is damaged; what could be read of it was put together, "
                           "and parts may be missing."),
            QStringLiteral("Compare the preview with the original, or save the document again "
                           "from the program that made it.")};
}

std::optional<Caution> missingCaution(const QStringList &settings, bool hasPpd)
{
    if (settings.isEmpty())
        return std::nullopt;
    const QString text = hasPpd
        ? QStringLiteral("This printer does not have: %1.")
        : QStringLiteral("Not sent, for the print server has no description of this printer: %1.");
    return Caution{Weight::Noted, text.arg(settings.join(QStringLiteral(", "))),
                   QStringLiteral("They are kept, and come back with a printer that has them."),
                   settings};
}

std::optional<Caution> untoldCaution(const QStringList &settings)
{
    if (settings.isEmpty())
        return std::nullopt;
    return Caution{Weight::Noted,
                   QStringLiteral("Not sent, for this printer reads no job tickets: %1.")
                       .arg(settings.join(QStringLiteral(", "))),
                   QStringLiteral("They are kept; choose a printer that reads them."), settings};
}

} // namespace kelvo
