#include "printer_search.h"

#include "nearest_name.h"

#include <algorithm>
#include <utility>

namespace kelvo {

using Code = Error::Code;

PrinterSearch::PrinterSearch(Wanted wanted, QObject *parent)
    : QObject(parent)
    , m_wanted(std::move(wanted))
{
}

void PrinterSearch::start()
{
    if (m_wanted.device) {
        m_ppd = m_wanted.device;
        m_name = m_ppd->modelName();
        emit printersChanged();
        setState(State::Found);
        return;
    }
    m_name = m_wanted.name;
    findPrinters();
}

void PrinterSearch::retry()
{
    if (m_state == State::Stuck)
        findPrinters();
}

void PrinterSearch::stop()
{
    m_directory.reset();
}

void PrinterSearch::setState(State state, SessionMessage message)
{
    m_state = state;
    m_message = std::move(message);
    emit stateChanged();
}

const Printer *PrinterSearch::find(const QString &name) const
{
    for (const Printer &printer : m_printers) {
        if (printer.name == name)
            return &printer;
    }
    return nullptr;
}

// ---- the list

void PrinterSearch::findPrinters()
{
    m_arePrintersKnown = m_isPpdKnown = false;
    m_askedFor.clear(); // answers to the last directory do not come any more
    m_lookedAt.reset();
    m_isLookingAtAll = false;
    setState(State::Searching,
             {tr("Looking for printers"), tr("The print server has not answered yet.")});
    if (m_wanted.directory) {
        m_directory = std::move(m_wanted.directory);
        if (!m_name.isEmpty())
            m_askedFor.insert(m_name);
        listenTo(*m_directory);
        return;
    }
    m_directory = std::make_shared<PrinterDirectory>();
    listenTo(*m_directory);
    m_directory->refresh(m_wanted.timeoutMs,
                         m_name.isEmpty() ? PrinterDirectory::Ahead::PpdOfFirst
                                          : PrinterDirectory::Ahead::Nothing,
                         m_wanted.preferred);
    // Both questions at once: the second need not wait for the first.
    if (!m_name.isEmpty())
        askForPpd();
}

void PrinterSearch::listenTo(PrinterDirectory &directory)
{
    connect(&directory, &PrinterDirectory::printersFound, this, &PrinterSearch::takePrinters);
    connect(&directory, &PrinterDirectory::printersFailed, this,
            &PrinterSearch::takePrintersProblem);
    connect(&directory, &PrinterDirectory::conditionFound, this, &PrinterSearch::takeCondition);
    // What the list said stands then.
    connect(&directory, &PrinterDirectory::conditionFailed, this, [this](const QString &printer) {
        if (m_lookedAt == printer)
            m_lookedAt.reset();
    });
    connect(&directory, &PrinterDirectory::ppdFetched, this,
            [this](const QString &printer, const std::shared_ptr<PpdFile> &ppd) {
                m_askedFor.remove(printer);
                if (isPpdAwaited(printer))
                    takePpd(ppd);
            });
    connect(&directory, &PrinterDirectory::ppdUnreadable, this,
            [this](const QString &printer, const Error &error) {
                m_askedFor.remove(printer);
                if (isPpdAwaited(printer))
                    takeDamagedPpd(error);
            });
    connect(&directory, &PrinterDirectory::ppdFailed, this,
            [this](const QString &printer, const Error &error) {
                m_askedFor.remove(printer);
                if (!isPpdAwaited(printer))
                    return;
                if (error.code == Code::NotFound) {
                    takeNoPpd();
                } else if (!m_arePrintersKnown || find(printer)) {
                    // A name that the server does not know is told as such, with the list.
                    takePpdProblem(error.detail);
                }
            });
}

void PrinterSearch::takePrintersProblem(const Error &error)
{
    if (std::exchange(m_isLookingAtAll, false))
        return; // what the last list said stands then
    const bool isSilent = error.code == Code::TimedOut || error.code == Code::Unreachable;
    setState(
        State::Stuck,
        {isSilent ? tr("The print server does not answer") : tr("The printers cannot be listed"),
         error.detail, true});
}

void PrinterSearch::takePrinters(const QList<Printer> &printers)
{
    if (std::exchange(m_isLookingAtAll, false)) {
        takeNews(printers);
        return;
    }
    m_printers = printers;
    m_arePrintersKnown = true;
    if (m_printers.isEmpty()) {
        emit printersChanged();
        setState(State::Stuck,
                 {tr("There is no printer"),
                  tr("Add one in the system’s printer settings, then try again."), true});
        return;
    }
    if (m_name.isEmpty()) {
        m_name = m_printers.first().name;
        m_isAssumed = !m_printers.first().isDefault;
        emit printersChanged();
        fetchPpd();
        return;
    }
    emit printersChanged();
    if (!find(m_name)) {
        QStringList names;
        for (const Printer &printer : m_printers)
            names.append(printer.name);
        setState(State::Stuck,
                 {tr("There is no printer “%1”").arg(m_name),
                  nearestName(m_name, names).isEmpty()
                      ? tr("The print server does not know it.")
                      : didYouMean(tr("The print server does not know it"), m_name, names),
                  true, tr("Choose another printer, or try again.")});
        return;
    }
    endWhenComplete();
}

void PrinterSearch::choose(const QString &name)
{
    m_isAssumed = false;
    m_isChosen = true;
    if (name == m_name && m_state != State::Stuck)
        return;
    m_name = name;
    fetchPpd();
}

// ---- what the printer is doing

void PrinterSearch::look()
{
    if (!m_directory || !printer() || isLooking())
        return;
    m_lookedAt = m_name;
    m_directory->fetchCondition(m_name, m_wanted.timeoutMs);
}

void PrinterSearch::lookAtAll()
{
    if (!m_directory || !m_arePrintersKnown || m_isLookingAtAll)
        return;
    m_isLookingAtAll = true;
    m_directory->refresh(m_wanted.timeoutMs, PrinterDirectory::Ahead::Nothing, m_wanted.preferred);
}

void PrinterSearch::takeNews(QList<Printer> printers)
{
    const Printer *now = printer();
    if (now && std::ranges::find(printers, m_name, &Printer::name) == printers.end()) {
        // Its settings are the user's work, and a server that begins anew may bring it back.
        Printer gone = *now;
        gone.isDefault = false;
        gone.acceptsJobs = false;
        gone.stateMessage = tr("the print server does not know it any more");
        printers.append(gone);
    }
    if (printers == m_printers)
        return;
    m_printers = std::move(printers);
    emit conditionChanged();
}

void PrinterSearch::takeCondition(const QString &printer, const PrinterCondition &condition)
{
    if (m_lookedAt == printer)
        m_lookedAt.reset();
    for (Printer &known : m_printers) {
        if (known.name != printer || static_cast<PrinterCondition &>(known) == condition)
            continue;
        static_cast<PrinterCondition &>(known) = condition;
        emit conditionChanged();
    }
}

// ---- its PPD

void PrinterSearch::fetchPpd()
{
    m_isPpdKnown = false;
    m_ppd.reset();
    setState(State::Searching,
             {tr("Asking for the settings of “%1”").arg(m_name),
              tr("The print server has not answered yet.")});
    askForPpd();
}

// A printer that is chosen again while its answer is on its way is not asked
// twice: each answer would begin the panels.
void PrinterSearch::askForPpd()
{
    if (m_askedFor.contains(m_name))
        return;
    m_askedFor.insert(m_name);
    m_directory->fetchPpd(m_name, m_wanted.timeoutMs);
}

bool PrinterSearch::isPpdAwaited(const QString &printer) const
{
    return printer == m_name && !m_isPpdKnown;
}

void PrinterSearch::takeDamagedPpd(const Error &error)
{
    takePpdProblem(tr("The print server’s description of them is damaged (%1).").arg(error.detail));
}

void PrinterSearch::takePpd(const std::shared_ptr<PpdFile> &ppd)
{
    m_ppd = ppd;
    m_noPpdReason.clear();
    m_isPpdKnown = true;
    endWhenComplete();
}

// Not the same as a printer without a PPD: whoever printed all the same would lose
// every setting without a word.
void PrinterSearch::takePpdProblem(const QString &why)
{
    setState(State::Stuck,
             {tr("The settings of “%1” cannot be read").arg(m_name), why, true,
              tr("Try again, or choose another printer.")});
}

void PrinterSearch::takeNoPpd()
{
    m_ppd.reset();
    m_noPpdReason = tr("The print server has no description of its settings.");
    m_isPpdKnown = true;
    endWhenComplete();
}

void PrinterSearch::endWhenComplete()
{
    const Printer *now = printer();
    if (m_state == State::Found || !m_arePrintersKnown || !m_isPpdKnown || !now)
        return;
    if (m_isChosen)
        look();
    setState(State::Found);
}

} // namespace kelvo
