#include "document_opening.h"

namespace kelvo {

DocumentOpening::DocumentOpening(std::optional<DocumentSource> source, QObject *parent)
    : QObject(parent)
    , m_source(std::move(source))
{
    if (!m_source)
        m_problem = tr("There is no document to print.");
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
    if (!m_document.isNull())
        return m_document.title();
    return titleOf(m_source.value_or(DocumentSource()));
}

void DocumentOpening::start(std::shared_ptr<PdfAhead> ahead)
{
    if (m_cancelled || !m_source)
        return;
    m_cancelled = std::make_shared<std::atomic_bool>(false);
    const auto take = [this](Result<Document> opened) {
        if (opened)
            m_document = std::move(opened).value();
        else
            m_problem = tr("The document cannot be opened: %1").arg(opened.error().text());
        emit ended();
    };
    const bool isStarted = m_opening.start(
        [source = *m_source, cancelled = m_cancelled, ahead = std::move(ahead)] {
            return openDocument(source, *cancelled, ahead);
        },
        take);
    if (!isStarted)
        take(Error{Error::Code::NotReadable, title(), noThreadReason()});
}

} // namespace kelvo
