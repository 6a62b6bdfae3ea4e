#pragma once

#include "choice_notes.h"
#include "dialog_parts.h"
#include "dialog_session.h"
#include "event.h"
#include "extension.h"
#include "last_used.h"
#include "panel_places.h"
#include "print_flow.h"
#include "script_target.h"
#include "sent_message.h"
#include "session_cautions.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <set>
#include <vector>

class QShortcut;

namespace kelvo {

class PresetMenu;

// What a print dialog begins with.
struct DialogOptions
{
    SessionBeginning session;
    PrintPlan plan;
    QString preset; // the name of the one in session.job; empty: none
    // What was printed with last, for a window in which it can be chosen, and which keeps it when
    // it has printed. None: it does neither.
    std::optional<LastUsed> lastUsed = {};
    bool beginsWithLastUsed = false; // session.job.lastUsed is that
};

// The print dialog's window. It shows what the session has, and answers what is asked on
// the way to a job; it ends once, with the status that the program ends with.
class PrintDialog : public QWidget, public ScriptTarget, private PrintQuestions
{
    Q_OBJECT

public:
    explicit PrintDialog(DialogOptions options);
    ~PrintDialog() override;

    // Asks for printers and shows the window, with real values in its first frame
    // where the print server is quick; the document follows.
    void start();
    // A script drives the dialog: what would ask the user ends the print instead.
    void setDriven(bool driven);
    // Texts of --secret, by name.
    void setSecrets(QMap<QString, QString> secrets) { m_secrets = std::move(secrets); }
    // The files of the plan, as the settings stand; nothing without them.
    Result<void> writeSettingsOut() { return m_flow.writeSettingsOut(); }
    const std::vector<SentJob> &sentJobs() const { return m_flow.sentJobs(); }
    bool isInterrupted() const { return m_isInterrupted; }
    // Ends as Cancel does. A job that is on its way is cancelled and waited for, for
    // a few seconds: the status says what became of it.
    void interrupt();

    bool isIdle() const override;
    bool isDrawing(const QWidget *part) const override;
    void drawPutOff() override;
    QWidget *window() override { return this; }
    Result<void> showPanel(const QString &name) override;
    Result<void> showTab(int tab) override;
    QString placeOf(const QWidget *control) const override;
    QString placeOfUnshown(const inspector::ControlName &control) const override;
    void sync(SyncDirection direction) override;
    void pressPrint() override;
    void pressCancel() override;
    bool isPrinting() const override { return m_flow.isPrinting(); }
    std::optional<ExitStatus> finished() const override { return m_finished; }
    QString lastPrintProblem() const override;
    ExitStatus lastPrintStatus() const override;
    const PrintSession &sessionForReading() override;
    QString jobInWords() override;
    TicketFile withSecretsMasked(TicketFile file) const override;
    std::optional<QString> secret(const QString &name) const override;
    QStringList secretValues() override;
    void noteSet(QWidget *control) override;

signals:
    void begun(); // once: the first frame, which nothing may delay, is painted
    void ended(kelvo::ExitStatus status); // once

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void addShortcuts();
    void enableShortcuts();

    // The session tells.
    void showPrinters();
    void takeStage();
    void takeDocument();
    void takeDocuments();
    static QString whyNotShown(const DocumentOpening &document);
    void takeSettings();

    // The user tells.
    void showPanelAt(int index);
    void showPanelOf(QWidget *control);
    void changeSettings();
    void lookAtSettings();  // writes, checks, and shows what follows
    void showWhatFollows(); // all but conflicts
    void fixConflicts();
    void showDetails();
    void changeTiming();
    void addDocuments(const QStringList &paths);
    void chooseDocuments();
    void askForPassword();
    void showHelp();

    // Print.
    void pressReturn();
    void showDefaultButton();
    void print();
    void savePdf();
    bool fixesConflicts(const QString &header, const ConflictReport &report) override;
    bool printsAnyway(const Caution &caution) override;
    void showPrinting(bool printing);
    void takePrinted(const QString &place);
    bool isAttended();
    void keepWhatWasUsed();
    void takeRefusal(const PrintRefusal &refusal);
    QString unfinishedPages() const;
    void end(ExitStatus status);

    bool isReady() const { return m_session->stage() == DialogSession::Stage::Ready; }
    Extension *panels() const; // null: there are none to show
    QString place() const;     // where the user is among them
    Result<void> findPanels() const;
    void updatePrintButton();
    void updatePreview();
    void updateFoot();
    void updateTitle();

    DialogParts m_parts;
    PanelPlaces m_places;
    Bundle *const m_bundle;                 // null: there is none
    std::unique_ptr<Extension> m_extension; // null: there is no bundle
    std::unique_ptr<DialogSession> m_session;
    SessionCautions m_cautions;
    PrintFlow m_flow;
    ChoiceNotes m_choices;
    PresetMenu *m_presets;
    const bool m_keepsLastUsed;

    QTimer m_look;            // lookAtSettings() soon
    QTimer m_grace;           // until then the window is not shown
    QTimer m_firstFrame;      // until then the document is not opened
    bool m_hasLooked = false; // at the settings of any printer
    bool m_isDriven = false;
    std::set<const DocumentOpening *> m_passwordsAsked; // once each, but for the button
    bool m_isInterrupted = false;                       // what is under way is the last
    QElapsedTimer m_printingSince;
    QMap<QString, QString> m_secrets;

    PanelPlaces::Place m_place; // among the panels that were shown last
    QTimer m_watch;             // asks what the printer is doing

    SentMessage m_sent;
    QPoint m_pointer; // where it was when it was looked for last
    std::optional<ExitStatus> m_finished;
    EventHandlerRef m_handler; // takes what the shell does and passes on
    std::vector<QShortcut *> m_panelKeys, m_tabKeys;
};

} // namespace kelvo
