#include "destination.h"

#include "cautions.h"
#include "printers.h"
#include "several_documents.h"

#include <QCoreApplication>

#include <algorithm>

namespace kelvo {

namespace {

using Code = Error::Code;

// What is wrong is on the way, but for what the queue turns out not to do.
ExitStatus statusOfDelivery(Code code)
{
    switch (code) {
    case Code::NotFound:
    case Code::Unreachable:
    case Code::TimedOut:
    case Code::Damaged: // the PPD that the server has for it
        return ExitStatus::NoDestination;
    case Code::Unsupported:
        return ExitStatus::NotOffered;
    case Code::Cancelled:
        return ExitStatus::Cancelled;
    default:
        return ExitStatus::Failed;
    }
}

class Queue : public Destination
{
    Q_DECLARE_TR_FUNCTIONS(kelvo::Queue)

public:
    Queue(const QString &queue, const QString &title, int timeoutMs)
        : m_queue(queue)
        , m_title(title)
        , m_timeoutMs(timeoutMs)
    {
    }

    PrintOutcome deliver(const PreparedJob &job, const std::atomic_bool &cancelled) const override
    {
        const auto delivered = deliverToQueue(job, m_queue, m_title, m_timeoutMs, cancelled);
        if (!delivered)
            return {statusOfDelivery(delivered.error().code), {}, whyNot(delivered.error())};
        return {ExitStatus::Printed, delivered.value().name(), {}, delivered.value()};
    }

    QString onTheWay() const override { return tr("Sending to %1…").arg(m_queue); }
    QString arrived(const QString &place) const override
    {
        return tr("%1 sent", "a job").arg(place);
    }

private:
    // A queue may have begun to reject jobs since the dialog looked at it. That is told as
    // the dialog tells it, with what the server said behind.
    QString whyNot(const Error &error) const
    {
        constexpr int patienceMs = 5000; // it has just answered
        if (error.code != Code::Refused)
            return error.text();
        const auto now = printerCondition(m_queue, std::min(m_timeoutMs, patienceMs));
        const auto caution = now ? printerCaution(m_queue, now.value()) : std::nullopt;
        return caution && caution->weight == Caution::Weight::Refused
            ? tr("%1 (%2)", "what is wrong, and what the server said")
                  .arg(caution->sentences(), error.text())
            : error.text();
    }

    const QString m_queue, m_title;
    const int m_timeoutMs;
};

class Folder : public Destination
{
    Q_DECLARE_TR_FUNCTIONS(kelvo::Folder)

public:
    // `outer`, which is made first; empty: it must be there.
    explicit Folder(const QString &folder, const QString &outer = {})
        : m_folder(folder)
        , m_outer(outer)
    {
    }

    PrintOutcome deliver(const PreparedJob &job, const std::atomic_bool &) const override
    {
        if (const auto made = m_outer.isEmpty() ? Result<void>() : provideFolder(m_outer); !made)
            return {ExitStatus::Failed, {}, made.error().text()};
        if (const auto delivered = deliverToFolder(job, m_folder); !delivered)
            return {ExitStatus::Failed, {}, delivered.error().text()};
        return {ExitStatus::Printed, m_folder, {}};
    }

    std::shared_ptr<const Destination> ofOne(int number, const QString &title) const override
    {
        return std::make_shared<Folder>(folderOfOne(m_folder, number, title), m_folder);
    }

    QString onTheWay() const override { return tr("Writing to %1…").arg(m_folder); }
    QString arrived(const QString &place) const override { return tr("Written to %1").arg(place); }

private:
    const QString m_folder, m_outer;
};

class PdfFile : public Destination
{
    Q_DECLARE_TR_FUNCTIONS(kelvo::Folder)

public:
    PdfFile(const QString &path, const QStringList &documents)
        : m_path(path)
        , m_documents(documents)
    {
    }

    PrintOutcome deliver(const PreparedJob &job, const std::atomic_bool &) const override
    {
        if (const auto delivered = deliverToPdf(job, m_path, m_documents); !delivered)
            return {ExitStatus::Failed, {}, delivered.error().text()};
        return {ExitStatus::Printed, m_path, {}};
    }

    bool isForPeople() const override { return true; }
    std::shared_ptr<const Destination> ofOne(int number, const QString &) const override
    {
        constexpr qsizetype ending = 4; // ".pdf"
        QString path = m_path;
        return std::make_shared<PdfFile>(
            path.insert(path.size() - ending, u'-' + QString::number(number)), m_documents);
    }
    QString onTheWay() const override { return tr("Writing to %1…").arg(m_path); }
    QString arrived(const QString &place) const override { return tr("Written to %1").arg(place); }

private:
    const QString m_path;
    const QStringList m_documents;
};

} // namespace

std::shared_ptr<const Destination> pdfDestination(const QString &path, const QStringList &documents)
{
    return std::make_shared<PdfFile>(path, documents);
}

std::shared_ptr<const Destination> Destination::ofOne(int, const QString &) const
{
    return nullptr;
}

std::shared_ptr<const Destination> queueDestination(const QString &queue, const QString &title,
                                                    int timeoutMs)
{
    return std::make_shared<Queue>(queue, title, timeoutMs);
}

std::shared_ptr<const Destination> folderDestination(const QString &folder)
{
    return std::make_shared<Folder>(folder);
}

} // namespace kelvo
