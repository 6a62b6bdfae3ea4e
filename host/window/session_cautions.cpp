#include "session_cautions.h"

#include "dialog_session.h"
#include "page_placement.h"
#include "page_ranges.h"
#include "ppd_words.h"
#include "terminal.h"

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

SessionCautions::SessionCautions(DialogSession &session, bool goesToQueue)
    : m_session(session)
    , m_goesToQueue(goesToQueue)
{
}

void SessionCautions::look(const QString &place)
{
    m_cautions.clear();
    const auto add = [this](std::optional<Caution> caution) {
        if (caution)
            m_cautions.push_back(std::move(*caution));
    };
    add(printer());
    add(cutPages());
    if (m_session.document().isRepaired())
        add(repairedCaution());
    if (const QString remark = m_session.document().remark(); !remark.isEmpty())
        add(Caution{.text = remark});
    if (m_session.panels()) {
        const JobDescription &job = m_session.description();
        m_covers.look(job.sheets, place);
        const auto addCover = [&](LeftOutCovers::Cover cover, const QString &text) {
            using enum LeftOutCovers::Cover;
            if (cover == LeftOut)
                add(Caution{.text = text});
            else if (cover == Gone)
                add(Caution{.text = text, .items = {text}, .hasHappened = true});
        };
        addCover(m_covers.front(), job.sheetWords.frontCoverLeftOut);
        addCover(m_covers.back(), job.sheetWords.backCoverLeftOut);
    }
    add(missingCaution(m_session.missing(), m_session.ppd() != nullptr));
    add(untoldCaution(m_session.untold()));
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
        if (caution.weight == Caution::Weight::Noted || (happenedOnly && !caution.hasHappened)
            || m_said.contains(caution.text))
            continue;
        m_said << caution.text;
        printLine(stderr, QStringLiteral("kelvo-print: caution: ") + caution.sentences());
    }
}

std::optional<Caution> SessionCautions::printer() const
{
    const Printer *printer = m_goesToQueue ? m_session.printer() : nullptr;
    return printer ? printerCaution(printer->name, *printer) : std::nullopt;
}

std::optional<Caution> SessionCautions::cutPages() const
{
    const PpdFile *ppd = m_session.ppd().get();
    const Document &document = m_session.document();
    if (!ppd || document.isNull())
        return std::nullopt;
    const JobSettings settings = m_session.settings();
    const auto paper = paperSize(settings.paperName, *ppd);
    const auto runs = pageRunsFrom(settings.pageRanges, document.pageCount());
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
