#include "session_cautions.h"

#include "dialog_session.h"
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
    const auto ofAll = static_cast<std::ptrdiff_t>(m_cautions.size());
    lookAtPages();
    if (document.isRepaired())
        add(repairedCaution());
    if (const QString remark = document.remark(); !remark.isEmpty())
        add(Caution{.text = remark});
    for (auto caution = m_cautions.begin() + ofAll; caution != m_cautions.end(); ++caution)
        caution->isOfDocument = true;
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

// What becomes of pages on the paper, and who counts them.
void SessionCautions::lookAtPages()
{
    SessionJob &job = m_session.job();
    if (m_session.document().document().isNull())
        return;
    const auto printed = job.printedPages();
    if (!printed)
        return;
    const PrintedPages &pages = printed.value();
    const JobSettings settings = job.settings();
    const bool isScaledDown = settings.layout.scaling == PageScaling::Shrink;
    std::set<int> cut; // a page may be printed twice
    std::set<int> shrunk;
    for (int page = 1; page <= pages.count(); ++page) {
        if (pages.isAsItIs(page))
            continue;
        const SidePlacement side = pages.placement(page);
        const QList<int> onPage = pages.onPage(page);
        for (qsizetype place = 0; place < onPage.size(); ++place) {
            const PagePlacement &placed = side.pages[place];
            if (placed.isCut())
                cut.insert(onPage[place]);
            else if (isScaledDown && onPage.size() == 1 && placed.scale < 1)
                shrunk.insert(onPage[place]);
        }
    }
    const PpdFile *ppd = job.ppd();
    const QString paper = ppd ? paperWords(settings.paperName, *ppd) : QString();
    const auto add = [this](std::optional<Caution> caution) {
        if (caution)
            m_cautions.push_back(std::move(*caution));
    };
    const QList<int> cutPages(cut.begin(), cut.end());
    if (settings.layout.scaling != PageScaling::Fill) // that was asked for
        add(settings.layout.pagesPerSide > 1 ? cutPlacesCaution(cutPages)
                                             : cutPagesCaution(cutPages, paper));
    add(shrunkPagesCaution(QList<int>(shrunk.begin(), shrunk.end()), paper));

    const JobDescription &description = job.description();
    const bool isCounted = description.sheets != SpecialSheets() || description.imposition;
    const bool isOtherCount =
        settings.layout.pagesPerSide > 1 || settings.isReversed || settings.pageSet != PageSet::All;
    if (isCounted && isOtherCount) {
        QList<int> first = pages.onPage(1);
        first.removeAll(0);
        add(countedPagesCaution(first));
    }
}

} // namespace kelvo
