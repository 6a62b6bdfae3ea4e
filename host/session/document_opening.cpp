#include "document_opening.h"

#include "texts.h"

namespace kelvo {

DocumentOpening::DocumentOpening(std::optional<DocumentSource> source, QObject *parent)
    : QObject(parent)
    , m_source(std::move(source))
    , m_title(titleOf(m_source.value_or(DocumentSource())))
{
    if (!m_source)
        m_problem = tr("There is no document to print.");
}

DocumentOpening::DocumentOpening(Make make, const QString &title, QObject *parent)
    : QObject(parent)
    , m_make(std::move(make))
    , m_title(title)
{
}

DocumentOpening::~DocumentOpening()
{
    cancel();
}

void DocumentOpening::cancel()
{
    if (m_cancelled)
        *m_cancelled = true;
    m_opening.drop();
}

QString DocumentOpening::sourcePath() const
{
    return m_source && m_source->path != QLatin1String("-") ? m_source->path : QString();
}

QString DocumentOpening::title() const
{
    return m_document.isNull() ? m_title : m_document.title();
}

void DocumentOpening::take(const End &end)
{
    m_isUnlocking = false;
    if (end.document) {
        m_document = end.document.value();
        m_locked = {};
        m_problem.clear();
        emit ended();
        return;
    }
    const Error &error = end.document.error();
    if (!end.locked.isNull())
        m_locked = end.locked;
    m_code = error.code;
    // Where the document came from a script or without a window, that is where it is given.
    const QString advice = error.code == Error::Code::Locked
        ? tr("type it in the window, or write it into a file of mode 0600 that "
             "--secret DOCUMENT=FILE names")
        : QString();
    m_problem = tr("The document cannot be opened: %1").arg(joined({error.text(), advice}));
    emit ended();
}

void DocumentOpening::start(std::shared_ptr<PdfAhead> ahead)
{
    if (m_cancelled || !hasSource())
        return;
    m_cancelled = std::make_shared<std::atomic_bool>(false);
    const bool isStarted = m_opening.start(
        [source = m_source.value_or(DocumentSource()), make = m_make, cancelled = m_cancelled,
         ahead = std::move(ahead)]() -> End {
            if (make)
                return {make(*cancelled), {}};
            LockedDocument locked;
            auto document = openDocument(source, *cancelled, ahead, &locked);
            return {std::move(document), std::move(locked)};
        },
        [this](const End &end) { take(end); });
    if (!isStarted)
        take({Error{Error::Code::NotReadable, title(), noThreadReason()}, {}});
}

void DocumentOpening::unlock(const QString &password)
{
    if (!isLocked() || m_isUnlocking)
        return;
    m_isUnlocking = true;
    const bool isStarted = m_opening.start(
        [locked = m_locked, password, cancelled = m_cancelled]() -> End {
            return {locked.unlocked(password, *cancelled), {}};
        },
        [this](const End &end) { take(end); });
    if (!isStarted)
        take({Error{Error::Code::NotReadable, title(), noThreadReason()}, {}});
}

} // namespace kelvo
