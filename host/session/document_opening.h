#pragma once

#include "background_task.h"
#include "document.h"

#include <QObject>

#include <atomic>
#include <functional>
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
    // One that is made of others, on a thread as well.
    using Make = std::function<Result<Document>(const std::atomic_bool &cancelled)>;
    DocumentOpening(Make make, const QString &title, QObject *parent = nullptr);
    ~DocumentOpening() override; // cancels

    // With `ahead`, it is printed as soon as the settings are there, and not when its user has seen
    // it, if at all. A second call does nothing.
    void start(std::shared_ptr<PdfAhead> ahead = {});
    void cancel();

    // Once it has ended and asks for a password. The answer is ended(): either it is open, or
    // problem() says what is wrong with this one. Not while isUnlocking().
    void unlock(const QString &password);
    // Whether a password would open it, or let it be printed.
    bool isLocked() const { return m_document.isNull() && !m_locked.isNull(); }
    bool asksForPassword() const { return isLocked() && m_code == Error::Code::Locked; }
    bool isUnlocking() const { return m_isUnlocking; }

    bool hasSource() const { return m_source.has_value() || m_make; }
    bool isStarted() const { return m_cancelled != nullptr; }
    bool isPending() const { return m_document.isNull() && m_problem.isEmpty(); }
    const Document &document() const { return m_document; } // null: not (yet) there
    const QString &problem() const { return m_problem; }    // a sentence
    QString title() const;                                  // also before it is open
    QString sourcePath() const;                             // of the user's file; empty: it is none

signals:
    void ended(); // the document is there, or known not to come

private:
    struct End
    {
        Result<Document> document;
        LockedDocument locked;
    };
    void take(const End &end);

    std::optional<DocumentSource> m_source;
    Make m_make;
    QString m_title;
    BackgroundTask<End> m_opening;
    std::shared_ptr<std::atomic_bool> m_cancelled; // null: not started
    Document m_document;
    LockedDocument m_locked;
    Error::Code m_code = Error::Code::NotFound; // of m_problem
    QString m_problem;
    bool m_isUnlocking = false;
};

} // namespace kelvo
