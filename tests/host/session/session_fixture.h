#pragma once

#include "bundle.h"
#include "dialog_session.h"
#include "file_store.h"
#include "sample_ppds.h"

#include <QTest>

#include <utility>

// What tests of a session need instead of a window.
namespace kelvo {

inline QString shared(const QString &name)
{
    return QStringLiteral(KELVO_BUILD_DIR "/share/kelvo-print/") + name;
}

// Panels without a window. They log what is asked of them, and keep one entry of the
// ticket: `note`, which the user types.
class NotedPanels : public DevicePanels
{
public:
    static inline const QString noteKey = QStringLiteral("com.kelvo.test.Note");

    QStringList calls;
    QString note;
    QString loadProblem;     // why they cannot be loaded
    QString beginProblem;    // why they cannot begin
    PPDDictionary insistsOn; // choices that they write whatever is read

    Result<void> load() override
    {
        calls << QStringLiteral("load");
        if (!loadProblem.isEmpty())
            return Error{Error::Code::NotReadable, loadProblem, {}};
        return {};
    }
    Result<void> begin(PrintSession &tickets) override
    {
        calls << QStringLiteral("begin");
        if (!beginProblem.isEmpty())
            return Error{Error::Code::Refused, beginProblem, {}};
        m_tickets = &tickets;
        return {};
    }
    bool isBegun() const override { return m_tickets; }
    void sync(SyncDirection direction) override
    {
        if (!m_tickets)
            return;
        calls << (direction == kSyncWrite ? QStringLiteral("write") : QStringLiteral("read"));
        const PMTicketRef ticket = m_tickets->printSettingsTicket();
        if (direction == kSyncRead) {
            note = PMTicketGetCFString(ticket, noteKey).value_or(QStringLiteral("default"));
            return;
        }
        PMTicketSetCFString(ticket, QStringLiteral("test"), noteKey, note);
        m_tickets->printSettings().ppdChoices.insert(insistsOn);
    }
    void end(OSStatus) override
    {
        if (std::exchange(m_tickets, nullptr))
            calls << QStringLiteral("end");
    }

private:
    PrintSession *m_tickets = nullptr;
};

// A session on a sample device without a queue, with the sample document.
inline SessionBeginning sampleBeginning(const QString &ppd = samplePpd("full"))
{
    SessionBeginning begin;
    begin.printer.device = PpdFile::open(ppd).value();
    begin.documents.sources = {DocumentSource{shared(QStringLiteral("demo/document.pdf")), {}}};
    // For what its Info.plist says; its module is never loaded.
    begin.bundle = Bundle::open(QStringLiteral(KELVO_BUILD_DIR "/lib/KelvoPDE.pde")).value();
    return begin;
}

// The same on a queue.
inline SessionBeginning queueBeginning(const QString &queue)
{
    SessionBeginning begin = sampleBeginning();
    begin.printer = {.name = queue};
    return begin;
}

// A session that has found its printer, or knows that it does not.
struct Running
{
    explicit Running(SessionBeginning begin, NotedPanels behaving = {})
        : panels(std::move(behaving))
        , session(std::move(begin), &panels)
    {
        session.start();
        session.openDocuments();
    }

    bool waitUntilIdle()
    {
        return QTest::qWaitFor(
            [this] {
                return session.stage() != DialogSession::Stage::Searching
                    && !session.document().isPending() && !session.search().isLooking();
            },
            15000);
    }
    SessionJob &job() { return session.job(); }
    QString choice(const char *option)
    {
        return job().tickets().printSettings().ppdChoices.value(QLatin1String(option));
    }
    void choose(const char *option, const char *choice)
    {
        job().tickets().printSettings().ppdChoices[QLatin1String(option)] = QLatin1String(choice);
        job().writeAll();
    }

    NotedPanels panels;
    DialogSession session;
};

} // namespace kelvo
