#pragma once

#include "cautions.h"
#include "conflicts.h"
#include "destination.h"
#include "print_run.h"

#include <QObject>

#include <memory>
#include <optional>
#include <vector>

namespace kelvo {

class DialogSession;
class SessionCautions;

// Where jobs go, and what is written beside them.
struct PrintPlan
{
    std::shared_ptr<const Destination> elsewhere; // null: to the session's printer
    std::optional<QString> ticketOut, presetOut;  // files of the settings as they stand
};

// Why a press of Print did not send the job, and what the program would end with.
struct PrintRefusal
{
    enum class Step { Destination, Pages, Conflicts, Cautions, SettingsOut, Job };
    Step step = Step::Job; // which one found it
    ExitStatus status = ExitStatus::Failed;
    QString header;  // of a notice; empty before anything was tried
    QString problem; // what, where and what to do
};

// What must be decided on the way to a job. The calls come on the GUI thread, from within
// press(); each may run an event loop, and whoever answers must outlive it.
class PrintQuestions
{
public:
    virtual ~PrintQuestions() = default;

    // Settings are in conflict, and the report has a way out: take it and print, or do not
    // print. Nothing is told of a print that is called off so.
    virtual bool fixesConflicts(const QString &header, const ConflictReport &report) = 0;
    virtual bool printsAnyway(const Caution &caution) = 0; // one that is Asked
};

// From a press of Print to the job at its destination, in this order: is there somewhere
// to go, can these pages be printed, do the settings go together, is there something to
// know before, can the settings' files be written; then the job is made and delivered on
// a thread of its own. What comes of it is a signal.
//
// Of several documents that are a job each, all are asked about before the first is sent. They
// go one after the other, each looked at while it does; where one fails the others stay, and
// the next press sends what has not gone.
//
// On standard error stands what of a printed job was not sent; on standard output, where
// it is.
class PrintFlow : public QObject
{
    Q_OBJECT

public:
    // Borrowed.
    PrintFlow(DialogSession &session, SessionCautions &cautions, PrintPlan plan);

    // Null: nobody can be asked. What would be is refused, or said on standard error, and a
    // printer that nobody named is none.
    void setQuestions(PrintQuestions *questions) { m_questions = questions; }

    // Why there is nothing to press; empty when there is.
    QString whyNotReady() const;
    // Not while a job is on its way. `unfinished` is what the user has still to type of the
    // pages, a sentence; mostly empty.
    void press(const QString &unfinished = {});
    // The same to somewhere else than the plan says: a file for people, which no settings of a
    // printer can be wrong for.
    void pressTo(std::shared_ptr<const Destination> destination, const QString &unfinished = {});
    // A press that finds no button to press; refused() does not tell of it.
    void refuseUnready();
    void cancel(); // the outcome says whether it was in time
    // The same for whoever cannot wait long: where no outcome comes, the job is refused
    // after a few seconds, and standard error says that it may be out.
    void interrupt();
    // What is said of a job whose outcome nobody waits for.
    static QString unknownOutcome();

    bool isPrinting() const { return m_isPrinting; }
    bool isAside() const { return m_aside != nullptr; } // the last press was pressTo()
    QString onTheWay() const;                           // while it is; "Sending 2 of 5: b.txt"
    QString arrived(const QString &place) const;        // once it has printed(); "Hall-3-17 sent"
    const std::vector<SentJob> &sentJobs() const { return m_sentJobs; } // to queues, in order
    // Of the last press; none when it went out or was called off.
    const std::optional<PrintRefusal> &refusal() const { return m_refusal; }
    void forgetRefusal() { m_refusal.reset(); } // the next press begins

    // Writes the files of the plan; nothing where there are none.
    Result<void> writeSettingsOut();

signals:
    void started();                     // the job is on its way
    void movedOn();                     // of several, the next one
    void printed(const QString &place); // of several, the last one
    void refused(const kelvo::PrintRefusal &refusal);

private:
    bool hasDestination();
    bool havePages(const QString &unfinished);
    bool goTogether();
    bool areLetGo();
    bool isLetGo(QStringList &answered);
    bool areSettingsWritten();
    bool areSeveral() const;
    void startNext();
    void takeOutcome(const PrintOutcome &outcome);
    QString withTheOthers(const QString &problem) const;
    void sayWhatWasNotSent();
    void refuse(PrintRefusal::Step step, ExitStatus status, const QString &header,
                const QString &problem);
    QString notPrinted() const;

    DialogSession &m_session;
    SessionCautions &m_cautions;
    const PrintPlan m_plan;
    PrintQuestions *m_questions = nullptr;
    std::shared_ptr<const Destination> m_aside; // of this press; null: as the plan says
    std::vector<int> m_jobs;                    // of this press: the documents still to be sent
    std::unique_ptr<PrintRun> m_run;
    std::shared_ptr<const Destination> m_destination; // of the last job
    bool m_isPrinting = false;
    bool m_isCalledOff = false;
    bool m_isInterrupted = false;
    std::vector<SentJob> m_sentJobs;
    std::optional<PrintRefusal> m_refusal;
};

} // namespace kelvo
