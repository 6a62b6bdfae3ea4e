#include "conflicts.h"

#include "device_offers.h"
#include "ppd_words.h"
#include "texts.h"
#include "values.h"

#include <algorithm>
#include <set>

namespace kelvo {

namespace {

// What jobs do not change.
std::set<QString> equipmentOf(const PpdFile &ppd)
{
    std::set<QString> keywords;
    for (const PpdGroup &group : ppd.groups()) {
        if (!isInstallable(group))
            continue;
        for (const PpdOption &option : group.options)
            keywords.insert(option.keyword);
    }
    return keywords;
}

PpdSelection offeredChoices(const PpdSelection &choices, const PpdFile &ppd)
{
    PpdSelection offered;
    for (auto choice = choices.cbegin(); choice != choices.cend(); ++choice) {
        if (offers(ppd, choice.key(), choice.value()))
            offered.insert(ppd.findOption(choice.key())->keyword, choice.value());
    }
    return offered;
}

QString choiceOf(const PpdOption &option, const PpdSelection &selection)
{
    return selection.value(option.keyword, option.defaultChoice);
}

QString sentenceFor(const PpdConflict &conflict, const PpdSelection &selection, const PpdFile &ppd,
                    const std::set<QString> &equipment)
{
    QStringList settings, fitted;
    for (const QString &keyword : conflict.options) {
        const PpdOption *option = ppd.findOption(keyword);
        if (!option)
            continue;
        const QString words = settingWords(*option, choiceOf(*option, selection));
        if (equipment.contains(keyword))
            fitted << words;
        else
            settings << translate("Job", "“%1”").arg(words);
    }
    if (fitted.isEmpty())
        return translate("Job", "%1 cannot be used together.").arg(listed(settings));
    return translate("Job", "%1 cannot be used on this printer (%2).")
        .arg(listed(settings), separated(fitted));
}

// The choices of an option, what switches it off first: that is what a fix
// should rather do than pick another kind of the same.
QStringList choicesToTry(const PpdOption &option)
{
    QStringList choices;
    for (const char *off : {"None", "Off", "False"}) {
        if (option.findChoice(QLatin1String(off)))
            choices << QLatin1String(off);
    }
    choices << option.defaultChoice;
    for (const PpdChoice &choice : option.choices)
        choices << choice.keyword;
    choices.removeDuplicates();
    choices.removeAll(QString());
    return choices;
}

// A way of our own, where libcups finds none or the PPD's own way out changes the
// equipment: one option at a time, as long as conflicts become fewer.
std::optional<PpdSelection> searchFix(PpdFile &ppd, PpdSelection selection,
                                      const std::set<QString> &fixed)
{
    constexpr int rounds = 64; // more conflicts at once are not mended, only told
    int triesLeft = 2000;      // each costs about as much as a tab change's check
    PpdSelection fix;
    std::vector<PpdConflict> conflicts = ppd.conflicts(selection);
    for (int round = 0; round < rounds && !conflicts.empty(); ++round) {
        const std::size_t before = conflicts.size();
        // The last one first: page size and paper come first in PPDs, and what is
        // done with the paper gives way to the paper.
        QStringList candidates = conflicts.front().options;
        std::reverse(candidates.begin(), candidates.end());
        for (const QString &keyword : candidates) {
            const PpdOption *option = fixed.contains(keyword) ? nullptr : ppd.findOption(keyword);
            if (!option)
                continue;
            for (const QString &choice : choicesToTry(*option)) {
                if (triesLeft-- == 0)
                    return std::nullopt;
                PpdSelection tried = selection;
                tried.insert(keyword, choice);
                std::vector<PpdConflict> left = ppd.conflicts(tried);
                if (left.size() >= before)
                    continue;
                fix.insert(keyword, choice);
                selection = std::move(tried);
                conflicts = std::move(left);
                break;
            }
            if (conflicts.size() < before)
                break;
        }
        if (conflicts.size() >= before)
            return std::nullopt;
    }
    return conflicts.empty() ? std::optional(fix) : std::nullopt;
}

std::optional<PpdSelection> findFix(PpdFile &ppd, const PpdSelection &selection,
                                    const std::set<QString> &equipment, const QString &keep)
{
    const auto touches = [](const PpdSelection &fix, const std::set<QString> &keywords) {
        return std::any_of(keywords.begin(), keywords.end(),
                           [&](const QString &keyword) { return fix.contains(keyword); });
    };
    // Paper is more than one option, and half of another paper is none. It gives way
    // only where nothing else helps, and so does what the user has just set.
    const std::set<QString> paper{QStringLiteral("PageSize"), QStringLiteral("PageRegion"),
                                  QStringLiteral("MediaType"), QStringLiteral("MediaColor")};
    const auto found = ppd.resolve(selection, keep);
    for (const auto &[keepsPaper, kept] : {std::pair(true, keep), std::pair(true, QString()),
                                           std::pair(false, keep), std::pair(false, QString())}) {
        std::set<QString> fixed = equipment;
        if (keepsPaper)
            fixed.insert(paper.begin(), paper.end());
        if (!kept.isEmpty())
            fixed.insert(kept);
        if (found && !found->isEmpty() && !touches(*found, fixed))
            return found;
        if (auto own = searchFix(ppd, selection, fixed))
            return own;
    }
    return std::nullopt;
}

} // namespace

QStringList ConflictReport::sentences() const
{
    QStringList sentences;
    for (const Conflict &conflict : conflicts)
        sentences.append(conflict.sentence);
    return sentences;
}

QStringList ConflictReport::options() const
{
    QStringList keywords;
    for (const Conflict &conflict : conflicts)
        keywords += conflict.options;
    return keywords;
}

ConflictReport findConflicts(const PrintSession &session, PpdFile &ppd, const QStringList &lastSet)
{
    const PpdSelection selection = offeredChoices(session.printSettings().ppdChoices, ppd);
    const std::set<QString> equipment = equipmentOf(ppd);
    ConflictReport report;
    for (const PpdConflict &conflict : ppd.conflicts(selection))
        report.conflicts.push_back(
            {conflict.options, sentenceFor(conflict, selection, ppd, equipment)});
    if (report.isEmpty())
        return report;

    const auto kept =
        std::find_if(lastSet.begin(), lastSet.end(), [&report](const QString &option) {
            return std::any_of(
                report.conflicts.begin(), report.conflicts.end(),
                [&option](const Conflict &conflict) { return conflict.options.contains(option); });
        });
    const QString keep = kept == lastSet.end() ? QString() : *kept;
    report.fix = findFix(ppd, selection, equipment, keep).value_or(PpdSelection());
    for (const PpdGroup &group : ppd.groups()) {
        for (const PpdOption &option : group.options) {
            const auto change = report.fix.constFind(option.keyword);
            if (change != report.fix.constEnd())
                report.fixWords << translate("Job", "Set “%1” to “%2”")
                                       .arg(optionWords(option), choiceWords(option, *change));
        }
    }
    return report;
}

void applyFix(const ConflictReport &report, PrintSession &session)
{
    for (auto change = report.fix.cbegin(); change != report.fix.cend(); ++change)
        session.printSettings().ppdChoices.insert(change.key(), change.value());
}

QStringList missingOnDevice(const TicketFile &asked, const PpdFile *ppd)
{
    PPDDictionary choices = asked.printSettings.ppdChoices;
    const QString pageSize = QStringLiteral("PageSize");
    const auto paper = asked.pageFormat.entries.find(kPMPaperNameKey);
    if (!choices.contains(pageSize) && paper != asked.pageFormat.entries.end()) {
        if (const auto name = string(paper->second.value); name && !name->isEmpty())
            choices.insert(pageSize, *name);
    }
    QStringList missing;
    for (auto choice = choices.cbegin(); choice != choices.cend(); ++choice) {
        if (!lacks(ppd, choice.key(), *choice))
            continue;
        const auto words = asked.choiceWords.constFind(choice.key() + u'=' + *choice);
        if (words == asked.choiceWords.cend())
            missing << settingWords(choice.key(), *choice, ppd);
        else if (!words->isEmpty())
            missing << words->simplified();
    }
    return missing;
}

} // namespace kelvo
