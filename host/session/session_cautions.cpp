#include "session_cautions.h"

#include "dialog_session.h"
#include "page_placement.h"
#include "ppd_words.h"
#include "terminal.h"
#include "texts.h"

#include <algorithm>
#include <set>

namespace kelvo {

namespace {

// The paper as the PPD calls it, or its measures where it has no name.
QString paperWords(const QString &name, const PpdFile &ppd)
{
    const PpdOption *sizes = ppd.findOption(QStringLiteral("PageSize"));
    return sizes && sizes->findChoice(name) ? choiceWords(*sizes, name) : name.section(u'.', 1);
}

} // namespace

SessionCautions::SessionCautions(DialogSession &session, bool goesToPrinter,
                                 std::function<QString()> place)
    : m_session(session)
    , m_goesToPrinter(goesToPrinter)
    , m_place(std::move(place))
{
}

void SessionCautions::look()
{
    m_cautions.clear();
    const auto add = [this](std::optional<Caution> caution) {
        if (caution)
            m_cautions.push_back(std::move(*caution));
    };
    const Document &document = m_session.document().document();
    SessionJob &job = m_session.job();
    add(printer());
    const auto addOfDocument = [&add](std::optional<Caution> caution) {
        if (caution)
            caution->isOfDocument = true;
        add(std::move(caution));
    };
    addOfDocument(cutPages());
    if (document.isRepaired())
        addOfDocument(repairedCaution());
    if (const QString remark = document.remark(); !remark.isEmpty())
        addOfDocument(Caution{.text = remark});
    if (m_session.hasPanels())
        lookAtCovers();
    for (const QString &sentence : job.lost())
        add(Caution{.text = sentence, .items = {sentence}, .hasHappened = true});
    add(missingCaution(job.missing(), job.ppd() != nullptr));
    add(untoldCaution(job.untold()));
}

void SessionCautions::lookAtCovers()
{
    using enum LeftOutCovers::Cover;
    const JobDescription &description = m_session.job().description();
    m_covers.look(description.sheets, m_place ? m_place() : QString());
    const SpecialSheetWords &words = description.sheetWords;
    for (const auto &[cover, text] : {std::pair{m_covers.front(), words.frontCoverLeftOut},
                                      std::pair{m_covers.back(), words.backCoverLeftOut}}) {
        if (cover == LeftOut)
            m_cautions.push_back({.text = text});
        else if (cover == Gone)
            m_cautions.push_back({.text = text, .items = {text}, .hasHappened = true});
    }
}

void SessionCautions::forget()
{
    m_covers.forget();
    m_cautions.clear();
}

const Caution *SessionCautions::find(Caution::Weight weight) const
{
    const auto found = std::ranges::find(m_cautions, weight, &Caution::weight);
    return found == m_cautions.cend() ? nullptr : &*found;
}

QStringList SessionCautions::inWords() const
{
    QStringList words;
    for (const Caution &caution : m_cautions)
        words << caution.sentences();
    return words;
}

void SessionCautions::say(bool happenedOnly)
{
    for (const Caution &caution : m_cautions) {
        const SessionDocuments &documents = m_session.documents();
        const bool isNamed =
            caution.isOfDocument && documents.count() > 1 && !documents.areJoined();
        const QString said = isNamed ? documents.title() + u'\n' + caution.text : caution.text;
        if (caution.weight == Caution::Weight::Noted || (happenedOnly && !caution.hasHappened)
            || m_said.contains(said))
            continue;
        m_said << said;
        const QString sentences = isNamed
            ? translate("Session", "%1: %2", "a document, and what is to be said of it")
                  .arg(documents.title(), caution.sentences())
            : caution.sentences();
        printLine(stderr,
                  QStringLiteral("kelvo-print: ")
                      + translate("Session", "caution: %1").arg(sentences));
    }
}

std::optional<Caution> SessionCautions::printer() const
{
    const Printer *printer = m_goesToPrinter ? m_session.search().printer() : nullptr;
    return printer ? printerCaution(printer->name, *printer) : std::nullopt;
}

std::optional<Caution> SessionCautions::cutPages() const
{
    const PpdFile *ppd = m_session.job().ppd();
    const Document &document = m_session.document().document();
    // Pages of a booklet are made to fit.
    if (!ppd || document.isNull() || m_session.job().description().imposition)
        return std::nullopt;
    const JobSettings settings = m_session.job().settings();
    const auto paper = paperSize(settings.paperName, *ppd);
    const auto runs = m_session.pages();
    if (!paper || !runs)
        return std::nullopt;
    std::set<int> pages; // a page may be printed twice
    for (const PageRun &run : runs.value()) {
        for (int page = run.first; page <= run.last; ++page) {
            if (placePage(document.pageSize(page), *paper, settings.orientation).isCut())
                pages.insert(page);
        }
    }
    return cutPagesCaution(QList<int>(pages.begin(), pages.end()),
                           paperWords(settings.paperName, *ppd));
}

} // namespace kelvo
