#pragma once

#include "ppd_file.h"
#include "printers.h"
#include "session_message.h"

#include <QObject>
#include <QSet>

#include <memory>
#include <optional>

namespace kelvo {

// The printers, and the PPD of the one that a job is for. Everything that can block
// runs on a thread of its own and answers by a signal.
class PrinterSearch : public QObject
{
    Q_OBJECT

public:
    struct Wanted
    {
        QString name;                    // of a queue; empty: the default one, else the first
        QString preferred = {};          // before the server's default, see PrinterDirectory
        std::shared_ptr<PpdFile> device; // in a queue's stead: a device without one
        // Asked already for the printers and the PPD of `name`, so that the server works
        // while a window is built. Null: it is asked when the search starts.
        std::shared_ptr<PrinterDirectory> directory;
        int timeoutMs = 30000; // for each question
    };
    explicit PrinterSearch(Wanted wanted, QObject *parent = nullptr);

    void start();
    void retry(); // after State::Stuck
    void stop();  // no answer comes any more

    enum class State {
        Searching, // printers or the PPD are on their way
        Stuck,     // no printer to print to: see message()
        Found,     // the printer, with its PPD where it has one
    };
    State state() const { return m_state; }
    const SessionMessage &message() const { return m_message; } // empty for Found

    const QList<Printer> &printers() const { return m_printers; }
    bool hasQueue() const { return !m_wanted.device; } // else a device without one
    // Nobody named the printer, and the system has no default one.
    bool isAssumed() const { return m_isAssumed; }
    const QString &name() const { return m_name; }
    const Printer *printer() const { return find(m_name); }       // null: none such
    const std::shared_ptr<PpdFile> &ppd() const { return m_ppd; } // null: none
    int timeoutMs() const { return m_wanted.timeoutMs; }
    const QString &noPpdReason() const { return m_noPpdReason; } // a sentence

    // Goes to another one. Nothing happens for the one that there is, unless it is Stuck.
    void choose(const QString &name);
    // Asks what the printer is doing now; conditionChanged() says when that is news.
    void look();
    bool isLooking() const { return m_lookedAt == m_name || m_isLookingAtAll; }
    // Asks the same of all, and which there are; the printer and its settings stay. One that has
    // gone meanwhile and is the chosen one stays in the list, and says that it has gone.
    void lookAtAll();

signals:
    void printersChanged();
    void conditionChanged(); // of printers in the list, or which there are
    void stateChanged();

private:
    void findPrinters();
    void listenTo(PrinterDirectory &directory);
    void takePrinters(const QList<Printer> &printers);
    void takePrintersProblem(const Error &error);
    void takeNews(QList<Printer> printers);
    void takeCondition(const QString &printer, const PrinterCondition &condition);
    void fetchPpd();
    void askForPpd();
    bool isPpdAwaited(const QString &printer) const;
    void takePpd(const std::shared_ptr<PpdFile> &ppd);
    void takeDamagedPpd(const Error &error);
    void takePpdProblem(const QString &why);
    void takeNoPpd();
    void endWhenComplete();
    void setState(State state, SessionMessage message = {});
    const Printer *find(const QString &name) const;

    Wanted m_wanted;
    State m_state = State::Searching;
    SessionMessage m_message;
    std::shared_ptr<PrinterDirectory> m_directory;
    QList<Printer> m_printers;
    bool m_arePrintersKnown = false;
    QString m_name;
    bool m_isAssumed = false;
    bool m_isChosen = false;           // by the user: the list may be old by then
    std::optional<QString> m_lookedAt; // whose condition is on its way
    bool m_isLookingAtAll = false;
    QSet<QString> m_askedFor;  // printers whose PPD is on its way
    bool m_isPpdKnown = false; // or known not to come
    QString m_noPpdReason;
    std::shared_ptr<PpdFile> m_ppd;
};

} // namespace kelvo
