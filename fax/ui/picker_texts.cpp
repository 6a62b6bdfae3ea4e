#include "picker_texts.h"

#include "fax_texts.h"
#include "string_table.h"
#include "texts.h"

#include <QFileInfo>
#include <QLocale>

namespace kelvo {

namespace {

constexpr qsizetype namesShown = 3;
constexpr qsizetype problemsShown = 8; // lines of a notice

enum Column { NameColumn, OrganizationColumn, NumberColumn, StateColumn };

QString numberText(qint64 number)
{
    return QLocale().toString(number);
}

// Empty for nobody.
QString countText(CFBundleRef bundle, qint64 count, const char *oneKey, const char *severalKey)
{
    if (count == 0)
        return {};
    return count == 1 ? faxText(bundle, oneKey)
                      : formatted(faxText(bundle, severalKey), {numberText(count)});
}

QString numberCell(CFBundleRef bundle, const PeopleRow &row)
{
    if (row.isGroup)
        return row.recipients.empty()
            ? faxText(bundle, "People Group")
            : countText(bundle, static_cast<qint64>(row.recipients.size()), "People Group of One",
                        "People Group of Several");
    const FaxRecipient &recipient = row.recipients.front();
    const QString number = recipient.faxNumber().value_or(QString());
    const QString label = recipient.faxNumberLabel().value_or(QString());
    return label.isEmpty() ? number
                           : formatted(faxText(bundle, "People Number With Label"),
                                       {number, shownFaxLabel(bundle, label)});
}

QString namesText(CFBundleRef bundle, const QStringList &names)
{
    // One more name is no longer than saying that there is one more.
    if (names.size() <= namesShown + 1)
        return separated(names);
    return formatted(faxText(bundle, "Names and Others"),
                     {separated(names.mid(0, namesShown)), numberText(names.size() - namesShown)});
}

QString problemText(CFBundleRef bundle, const CardProblem &problem)
{
    const QString name = QFileInfo(problem.path).fileName();
    if (problem.damaged == 0)
        return QStringLiteral("%1: %2").arg(name, problem.reason);
    return formatted(
        faxText(bundle, problem.damaged == 1 ? "Cards Damaged One" : "Cards Damaged Several"),
        {name, numberText(problem.damaged)});
}

} // namespace

std::vector<ListView::Column> pickerColumns(CFBundleRef bundle)
{
    return {{faxText(bundle, "People Name Column"), 150},
            {faxText(bundle, "People Organization Column"), 110},
            {faxText(bundle, "People Number Column"), 165},
            {faxText(bundle, "People State Column"), 55, {faxText(bundle, "People In List")}}};
}

QString pickerCell(CFBundleRef bundle, const PeopleRow &row, int column, bool isInList)
{
    switch (column) {
    case NameColumn:
        return row.name.trimmed().isEmpty() ? faxText(bundle, "Person Without Name") : row.name;
    case OrganizationColumn:
        return row.organization;
    case NumberColumn:
        return numberCell(bundle, row);
    case StateColumn:
        return isInList ? faxText(bundle, "People In List") : QString();
    default:
        return {};
    }
}

QString notShownText(CFBundleRef bundle, int withoutNumber, const QStringList &unread)
{
    QStringList sentences{
        countText(bundle, withoutNumber, "One Without Fax Number", "People Without Fax Number")};
    if (!unread.isEmpty())
        sentences << formatted(faxText(bundle, "Books Unread"), {joined(unread)});
    sentences.removeAll(QString());
    return sentences.join(u' ');
}

QString addedText(CFBundleRef bundle, const PeopleToAdd &adding, int added, int declined)
{
    QStringList sentences{
        added == 0 ? faxText(bundle, "Nobody Added")
                   : countText(bundle, added, "One Person Added", "People Added"),
        countText(bundle, adding.alreadyThere, "One Already There", "People Already There"),
        countText(bundle, declined, "One Not Added Again", "Not Added Again")};
    if (!adding.withoutNumber.isEmpty())
        sentences.append(formatted(faxText(bundle, "Members Without Number"),
                                   {namesText(bundle, adding.withoutNumber)}));
    sentences.removeAll(QString());
    return sentences.join(u' ');
}

QString cardProblemsText(CFBundleRef bundle, const std::vector<CardProblem> &problems,
                         const QStringList &notLocal)
{
    QStringList lines;
    for (const CardProblem &problem : problems)
        lines.append(problemText(bundle, problem));
    for (const QString &address : notLocal)
        lines.append(formatted(faxText(bundle, "Cards Not Local"), {address}));
    const qsizetype more = lines.size() - problemsShown;
    if (more > 0) {
        lines.resize(problemsShown);
        lines.append(formatted(faxText(bundle, "Cards More Problems"), {numberText(more)}));
    }
    return lines.join(u'\n');
}

} // namespace kelvo
