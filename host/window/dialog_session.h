#pragma once

#include "asked_settings.h"
#include "background_task.h"
#include "command_line.h"
#include "conflicts.h"
#include "document.h"
#include "exit_status.h"
#include "extension.h"
#include "job_describer.h"
#include "job_settings.h"
#include "ppd_file.h"
#include "presets.h"
#include "printers.h"
#include "secret_keys.h"
#include "ticket_file.h"

#include <QObject>
#include <QSet>

#include <atomic>
#include <memory>
#include <optional>

namespace kelvo {

// What the dialog begins with. main() has read every file that the command line
// names, so that a wrong one is told before there is a window.
struct DialogOptions
{
    CommandLine line;
    Bundle *bundle = nullptr;        // null: no device panels
    QString bundleProblem;           // why there is no bundle, a sentence
    std::shared_ptr<PpdFile> device; // --ppd and --demo: a device without a queue
    // Asked already for the printers and the settings of the line's destination, so that
    // the server works while the window is built. Null: the dialog asks.
    std::shared_ptr<PrinterDirectory> directory;
    std::optional<DocumentSource> document; // none: there is nothing to print
    std::optional<TicketFile> preset, ticketIn;
};

// The dialog's life without its looks: printers, then the chosen one's PPD, then
// the tickets, then the device's panels; the document beside that. Everything
// that can block runs on a thread of its own and answers by a signal.
class DialogSession : public QObject
{
    Q_OBJECT

public:
    // Panels come below `panesParent`, which must outlive this.
    DialogSession(DialogOptions options, QWidget *panesParent, QObject *parent = nullptr);
    ~DialogSession() override;

    void start(); // printers and their settings
    // A second call does nothing. No part of start(): the first frame would wait
    // for the memory and the processor that this takes.
    void openTheDocument();
    void retry(); // after Stage::Stuck
    void stop();  // ends the panels; what is under way is left to itself

    enum class Stage {
        Searching, // printers or the PPD are on their way
        Stuck,     // no printer to print to: see message()
        Ready,     // tickets are there, and panels when the device has some
    };
    Stage stage() const { return m_stage; }
    // While there are no panels to show: what is going on or wrong, and what to do.
    struct Message
    {
        QString header, text;
        bool canRetry = false;
        QString advice; // for those who sit before the window
    };
    const Message &message() const { return m_message; }

    const QList<Printer> &printers() const { return m_printers; }
    bool hasQueue() const { return !m_options.device; } // else a device without one
    // Nobody named the printer, and the system has no default one.
    bool isPrinterAssumed() const { return m_isPrinterAssumed; }
    QString printerName() const { return m_printerName; }
    const Printer *printer() const { return findPrinter(m_printerName); } // null: none such
    // Asks what the printer is doing now; conditionChanged() says when that is news.
    void lookAtPrinter();
    bool isLookingAtPrinter() const { return m_lookedAtPrinter == m_printerName; }
    // Goes to another printer and takes the settings along. What the new device
    // does not have comes back with one that has it.
    void choosePrinter(const QString &name);

    PrintSession &tickets() { return *m_session; }                // Stage::Ready
    const std::shared_ptr<PpdFile> &ppd() const { return m_ppd; } // null: none
    Extension *panels();                                          // null: none
    const SecretKeys &secretKeys() const { return m_secretKeys; }
    // What the job means as its tickets stand, in words and sheets. Not asked for before
    // the first frame, which needs none of it. Stage::Ready; until the next call.
    const JobDescription &description();
    QStringList missing() const; // what is asked for and this printer lacks, in words
    QStringList untold();        // and what only a ticket says, where it reads none

    bool isDocumentPending() const { return m_document.isNull() && m_documentProblem.isEmpty(); }
    const Document &document() const { return m_document; }              // null: not (yet) there
    const QString &documentProblem() const { return m_documentProblem; } // a sentence
    QString title() const; // of the document, also before it is open

    // Every panel writes, the shown one last. Nothing where there are no panels.
    // What is different then, the user has set.
    void writeAll();
    void readAll();
    JobSettings settings() const; // Stage::Ready
    // The host's own settings; panels write before. They do not read: a ticket may
    // hold less of a panel's setting than the user chose there, and more copies must
    // not take it away. A panel looks at the page format when it writes.
    void change(const JobSettings &settings);
    TicketFile ticket() const;       // as it stands
    TicketFile ticketToKeep() const; // the same, for another day and device
    TicketFile preset() const;       // the part of it that a preset keeps; secrets are in it

    // Begins again on `preset`, or on the defaults for null. The job's own pages
    // and name stay.
    void usePreset(const TicketFile *preset);
    // Whether anything differs from what was chosen as preset.
    bool isChanged() const;
    // The settings as they stand are what the preset says, or are not any more.
    void takeAsUnchanged();
    // By hand or by a script; taken up when the panels write next.
    void choose(const TicketPlaces &places) { m_asked.choose(places); }
    void takeAsChanged() { m_asked.takeAsChanged(); }

    ConflictReport conflicts(); // as the ticket stands
    void fix(const ConflictReport &report);

signals:
    void printersChanged();
    void conditionChanged(); // of a printer in the list
    void stageChanged();
    void documentChanged();
    void reloaded(); // every setting may have changed
    // The command line asks for what this device cannot do.
    void refused(kelvo::ExitStatus status, const QString &message);

private:
    void findPrinters();
    void listenTo(PrinterDirectory &directory);
    void takePrinters(const QList<Printer> &printers);
    void takeCondition(const QString &printer, const PrinterCondition &condition);
    void fetchPpd();
    void askForPpd();
    bool isPpdAwaited(const QString &printer) const;
    void takePpd(const QString &path);
    void takePpdProblem(const QString &why);
    void beginWithoutPpd(const QString &why);
    void beginWhenComplete();
    void begin();
    Result<void> askFirst();
    void askForSiteDefaults();
    void ask(const TicketFile &file, AskedSettings::Kind kind);
    Result<void> askForOption(const QString &name, const QString &value);
    void askForPages(const QString &pages);
    void nameJob();
    TicketFile queueDefaults();
    TicketFile firstWrites();
    void settle();
    void sync(SyncDirection direction);
    void beginPanels();
    QString whyPanelsDidNotBegin(const Error &error) const;
    void endPanels();
    void setStage(Stage stage, Message message);
    const Printer *findPrinter(const QString &name) const;

    DialogOptions m_options;
    QWidget *m_panesParent;
    Stage m_stage = Stage::Searching;
    Message m_message;

    std::shared_ptr<PrinterDirectory> m_directory;
    QList<Printer> m_printers;
    bool m_arePrintersKnown = false;
    QString m_printerName;
    bool m_isPrinterAssumed = false;
    bool m_isPrinterChosen = false;           // by the user: the list may be old by then
    std::optional<QString> m_lookedAtPrinter; // whose condition is on its way
    QSet<QString> m_askedFor;                 // printers whose PPD is on its way
    bool m_isPpdKnown = false;                // or known not to come
    QString m_noPpdReason;
    std::shared_ptr<PpdFile> m_ppd;

    PresetStore m_presets;
    SecretKeys m_secretKeys;
    JobDescriber m_describer;
    RepeatedChoices m_repeatedChoices; // of this printer
    JobDescription m_description;      // as it was last asked for
    std::unique_ptr<PrintSession> m_session;
    std::unique_ptr<Extension> m_extension; // made once, begun for each printer
    QString m_extensionProblem;             // why it cannot be loaded
    AskedSettings m_asked;
    bool m_hasBegun = false;  // on this printer or an earlier one
    PPDDictionary m_lookedAt; // when conflicts were looked for the last time
    QStringList m_lastSet;    // options, the one set last first
    Dictionary m_unknown;     // root entries of the preset and --ticket-in

    BackgroundTask<Result<Document>> m_opening;
    std::shared_ptr<std::atomic_bool> m_openingCancelled;
    Document m_document;
    QString m_documentProblem;
};

} // namespace kelvo
