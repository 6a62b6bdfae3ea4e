#include "session_documents.h"

#include "several_documents.h"

#include <algorithm>

namespace kelvo {

namespace {

// Helpers that read documents; what waits for the disk leaves the other one the processor.
constexpr int openedAtOnce = 2;

bool isThere(const DocumentOpening &opening)
{
    return !opening.document().isNull();
}

} // namespace

SessionDocuments::SessionDocuments(Beginning beginning, QObject *parent)
    : QObject(parent)
    , m_title(std::move(beginning.title))
    , m_areJoined(beginning.areJoined)
{
    if (beginning.opening) {
        watch(*beginning.opening);
        m_all.push_back({std::move(beginning.opening), {}});
    }
    for (std::size_t i = m_all.size(); i < beginning.sources.size(); ++i)
        append(std::move(beginning.sources[i]));
    if (m_all.empty())
        append(std::nullopt);
}

SessionDocuments::~SessionDocuments()
{
    cancel();
}

void SessionDocuments::append(const std::optional<DocumentSource> &source)
{
    m_all.push_back({std::make_shared<DocumentOpening>(source), {}});
    watch(*m_all.back().opening);
}

void SessionDocuments::watch(DocumentOpening &opening)
{
    connect(&opening, &DocumentOpening::ended, this, &SessionDocuments::takeEnd);
}

void SessionDocuments::open()
{
    m_areOpened = true;
    openNext();
}

void SessionDocuments::cancel()
{
    for (const Entry &entry : m_all)
        entry.opening->cancel();
    if (m_joined)
        m_joined->cancel();
}

void SessionDocuments::openNext()
{
    if (!m_areOpened)
        return;
    auto running = std::ranges::count_if(m_all, [](const Entry &entry) {
        return entry.opening->isStarted() && entry.opening->isPending();
    });
    for (const Entry &entry : m_all) {
        if (running >= openedAtOnce)
            break;
        if (!entry.opening->isStarted() && entry.opening->hasSource()) {
            entry.opening->start();
            ++running;
        }
    }
    joinAnew();
}

void SessionDocuments::joinAnew()
{
    const bool areThere =
        std::ranges::all_of(m_all, [](const Entry &entry) { return isThere(*entry.opening); });
    if (!areJoined() || !areThere || m_joined)
        return;
    std::vector<Document> parts;
    for (const Entry &entry : m_all)
        parts.push_back(entry.opening->document());
    m_joined = std::make_shared<DocumentOpening>(
        [parts = std::move(parts), title = title()](const std::atomic_bool &cancelled) {
            return joinDocuments(parts, title, cancelled);
        },
        title());
    watch(*m_joined);
    m_joined->start();
}

void SessionDocuments::takeEnd()
{
    openNext();
    emit listChanged();
    if (areJoined() || sender() == m_all[std::size_t(m_shown)].opening.get())
        emit shownChanged();
}

const DocumentOpening &SessionDocuments::shown() const
{
    if (!areJoined())
        return at(m_shown);
    // What they wait for, or what is wrong.
    const auto missing =
        std::ranges::find_if(m_all, [](const Entry &entry) { return !isThere(*entry.opening); });
    if (missing != m_all.cend())
        return *missing->opening;
    return m_joined ? *m_joined : at(m_shown);
}

void SessionDocuments::show(int index)
{
    if (index == m_shown || index < 0 || index >= count())
        return;
    m_shown = index;
    if (!areJoined())
        emit shownChanged();
}

QString SessionDocuments::title() const
{
    const QString asked = askedTitle(m_title);
    if (areJoined() && asked.isEmpty()) {
        QStringList titles;
        for (const Entry &entry : m_all)
            titles << entry.opening->title();
        return titleOfAll(titles);
    }
    const QString own = at(m_shown).title();
    if (asked.isEmpty())
        return own;
    return areJoined() || count() == 1 ? asked : titleOfOne(asked, own);
}

void SessionDocuments::join(bool joins)
{
    if (joins == m_areJoined)
        return;
    m_areJoined = joins;
    m_joined.reset();
    openNext();
    emit listChanged();
    emit shownChanged();
}

void SessionDocuments::add(std::vector<DocumentSource> sources)
{
    if (sources.empty())
        return;
    m_joined.reset();
    for (DocumentSource &source : sources)
        append(std::move(source));
    openNext();
    emit listChanged();
    emit shownChanged(); // called otherwise, now that it is one of several
}

void SessionDocuments::remove(int index)
{
    if (count() == 1 || index < 0 || index >= count())
        return;
    m_joined.reset();
    m_all.erase(m_all.begin() + index);
    if (m_shown > index || m_shown == count())
        --m_shown;
    openNext();
    emit listChanged();
    emit shownChanged();
}

void SessionDocuments::unlockShown(const QString &password)
{
    for (const Entry &entry : m_all) {
        if (entry.opening.get() == &shown()) {
            entry.opening->unlock(password);
            return;
        }
    }
}

bool SessionDocuments::isPending() const
{
    const auto isOnItsWay = [](const DocumentOpening &opening) {
        return opening.isPending() || opening.isUnlocking();
    };
    return std::ranges::any_of(m_all,
                               [&](const Entry &entry) { return isOnItsWay(*entry.opening); })
        || (areJoined() && isOnItsWay(shown()));
}

const DocumentOpening *SessionDocuments::findFaulty() const
{
    for (const Entry &entry : m_all) {
        if (!entry.opening->problem().isEmpty())
            return entry.opening.get();
    }
    return areJoined() && !shown().problem().isEmpty() ? &shown() : nullptr;
}

QString SessionDocuments::problem() const
{
    const DocumentOpening *faulty = findFaulty();
    return faulty ? faulty->problem() : QString();
}

void SessionDocuments::noteSent(int index, const QString &place)
{
    m_all[std::size_t(index)].place = place;
    emit listChanged();
}

std::vector<int> SessionDocuments::unsent() const
{
    if (areJoined())
        return {m_shown};
    std::vector<int> numbers;
    for (int i = 0; i < count(); ++i) {
        if (placeOf(i).isEmpty() || count() == 1)
            numbers.push_back(i);
    }
    return numbers;
}

} // namespace kelvo
