#pragma once

#include "printer_search.h"
#include "session_documents.h"
#include "session_job.h"

#include <QObject>

#include <memory>
#include <optional>
#include <vector>

namespace kelvo {

// What a session begins with: plain values, read and checked by whoever starts it.
struct SessionBeginning
{
    PrinterSearch::Wanted printer;
    SessionDocuments::Beginning documents;
    SessionJob::Wishes job;
    Bundle *bundle = nullptr; // null: no device panels
    QString bundleProblem;    // why there is no bundle, a sentence
};

// A print dialog's life without its looks: the printer with its PPD is searched, then
// the tickets are made, then the device's panels begin; the document beside that.
class DialogSession : public QObject
{
    Q_OBJECT

public:
    // Both borrowed: `panels` are the bundle's, `options` the host's own, for devices that those
    // are not made for. Null: none.
    DialogSession(SessionBeginning beginning, DevicePanels *panels, DevicePanels *options = nullptr,
                  QObject *parent = nullptr);
    ~DialogSession() override;

    void start(); // the search; the document is no part of it
    // A second call does nothing. The first frame would wait for the memory and the
    // processor that this takes.
    void openDocuments() { m_documents.open(); }
    void retry() { m_search.retry(); } // after Stage::Stuck
    void stop();                       // ends the panels; what is under way is left to itself

    enum class Stage {
        Searching, // printers or the PPD are on their way
        Stuck,     // no printer to print to: see message()
        Ready,     // tickets are there, and panels when the device has some
    };
    Stage stage() const;
    // While there are no panels to show; of the host's own, only why they are, where that is news.
    const SessionMessage &message() const;

    const PrinterSearch &search() const { return m_search; }
    void lookAtPrinter() { m_search.look(); }
    void lookAtPrinters() { m_search.lookAtAll(); }
    // Goes to another printer and takes the settings along. What the new device
    // does not have comes back with one that has it.
    void choosePrinter(const QString &name);

    SessionDocuments &documents() { return m_documents; }
    const SessionDocuments &documents() const { return m_documents; }
    // The one that is looked at, which the job is about.
    const DocumentOpening &document() const { return m_documents.shown(); }
    SessionJob &job() { return m_job; } // Stage::Ready
    const SessionJob &job() const { return m_job; }
    bool hasPanels() const { return m_panels && m_panels->isBegun(); }    // the device's
    bool hasOptions() const { return m_options && m_options->isBegun(); } // the host's own

signals:
    void printersChanged();
    void conditionChanged(); // as PrinterSearch has it
    void stageChanged();
    void documentChanged();
    void documentsChanged(); // SessionDocuments::listChanged()
    void reloaded();         // every setting may have changed
    // An option that was asked for is one that this device cannot do, or that there is not
    // (Unsupported). The session goes no further.
    void refused(const kelvo::Error &error);

private:
    void takeSearch();
    void takeDocument();
    void begin();
    void beginPanels();
    QString whyNoPanels();
    QString whyPanelsDidNotBegin(const Error &error) const;
    bool isOfAnotherMaker() const;
    void endPanels();

    Bundle *m_bundle;
    QString m_bundleProblem;
    DevicePanels *const m_panels, *const m_options;
    std::optional<Result<void>> m_panelsLoaded; // once, when they are first needed
    SessionMessage m_message;                   // of Stage::Ready
    PrinterSearch m_search;
    SessionDocuments m_documents;
    SessionJob m_job;
};

} // namespace kelvo
