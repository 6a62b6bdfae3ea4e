#pragma once

#include "background_task.h"
#include "document.h"

#include <QObject>

#include <atomic>
#include <memory>
#include <optional>

namespace kelvo {

class PdfAhead;

// The document of a job, which is opened on a thread of its own.
class DocumentOpening : public QObject
{
    Q_OBJECT

public:
    // No source: there is nothing to print, which problem() says.
    explicit DocumentOpening(std::optional<DocumentSource> source, QObject *parent = nullptr);
    ~DocumentOpening() override; // cancels

    // With `ahead`, it is printed as soon as the settings are there, and not when its user has seen
    // it, if at all. A second call does nothing.
    void start(std::shared_ptr<PdfAhead> ahead = {});
    void cancel();

    bool hasSource() const { return m_source.has_value(); }
    bool isPending() const { return m_document.isNull() && m_problem.isEmpty(); }
    const Document &document() const { return m_document; } // null: not (yet) there
    const QString &problem() const { return m_problem; }    // a sentence
    QString title() const;                                  // also before it is open
    QString sourcePath() const;                             // of the user's file; empty: it is none

signals:
    void ended(); // the document is there, or known not to come

private:
    std::optional<DocumentSource> m_source;
    BackgroundTask<Result<Document>> m_opening;
    std::shared_ptr<std::atomic_bool> m_cancelled; // null: not started
    Document m_document;
    QString m_problem;
};

} // namespace kelvo
