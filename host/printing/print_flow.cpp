#include "print_flow.h"

#include "device_offers.h"
#include "dialog_session.h"
#include "ppd_words.h"
#include "presets.h"
#include "session_cautions.h"
#include "session_words.h"
#include "terminal.h"

#include <QTimer>

#include <utility>

namespace kelvo {

using Step = PrintRefusal::Step;
using Stage = DialogSession::Stage;

namespace {

// So long an interrupted job may still tell what became of it.
constexpr int interruptMs = 5000;

} // namespace

PrintFlow::PrintFlow(DialogSession &session, SessionCautions &cautions, PrintPlan plan)
    : m_session(session)
    , m_cautions(cautions)
    , m_plan(std::move(plan))
{
}

QString PrintFlow::notPrinted() const
{
    return tr("“%1” was not printed").arg(m_session.document().title());
}

QString PrintFlow::whyNotReady() const
{
    if (m_session.stage() == Stage::Searching)
        return tr("The printer’s settings have not come yet.");
    if (m_session.stage() == Stage::Stuck)
        return tr("%1. %2", "a headline and what follows it")
            .arg(m_session.message().header, m_session.message().text);
    const DocumentOpening &document = m_session.document();
    if (document.isPending())
        return tr("The document is not open yet.");
    if (document.document().isNull())
        return document.problem();
    // That nobody has named this printer is told first.
    const bool isNamed = m_questions || !m_session.search().isAssumed();
    const Caution *refused = isNamed ? m_cautions.find(Caution::Weight::Refused) : nullptr;
    return refused ? refused->sentences() : QString();
}

void PrintFlow::refuse(Step step, ExitStatus status, const QString &header, const QString &problem)
{
    m_refusal = PrintRefusal{step, status, header, problem};
    emit refused(PrintRefusal(*m_refusal)); // whoever hears it may press again
}

void PrintFlow::refuseUnready()
{
    const ExitStatus status =
        m_session.stage() == Stage::Ready ? ExitStatus::Failed : ExitStatus::NoDestination;
    m_refusal = PrintRefusal{Step::Destination, status, {}, whyNotReady()};
}

void PrintFlow::press(const QString &unfinished)
{
    Q_ASSERT(!m_run);
    m_refusal.reset();
    m_isAside = false;
    if (!hasDestination())
        return;
    m_session.job().writeAll();
    if (!hasPages(unfinished))
        return;
    const auto &elsewhere = m_plan.elsewhere;
    if (elsewhere && elsewhere->isForPeople()) {
        if (isLetGo() && areSettingsWritten())
            start(elsewhere);
        return;
    }
    if (goTogether() && isLetGo() && areSettingsWritten()) {
        const PrinterSearch &search = m_session.search();
        start(elsewhere ? elsewhere
                        : queueDestination(search.name(), m_session.document().title(),
                                           search.timeoutMs()));
    }
}

void PrintFlow::pressTo(std::shared_ptr<const Destination> destination, const QString &unfinished)
{
    Q_ASSERT(!m_run);
    m_refusal.reset();
    m_isAside = true;
    m_session.job().writeAll();
    if (hasPages(unfinished))
        start(std::move(destination));
}

bool PrintFlow::hasDestination()
{
    if (m_plan.elsewhere)
        return true;
    const PrinterSearch &search = m_session.search();
    if (!search.hasQueue()) {
        refuse(Step::Destination, ExitStatus::NoDestination, notPrinted(),
               tr("“%1” is a device without a queue. Start kelvo-print with --to DIR to write "
                  "the job into a folder, or with -d to print to a queue.")
                   .arg(search.name()));
        return false;
    }
    if (!m_questions && search.isAssumed()) {
        refuse(Step::Destination, ExitStatus::NoDestination, notPrinted(),
               tr("No printer was named, and there is no default printer. Name one with -d; "
                  "--list-printers says which there are."));
        return false;
    }
    return true;
}

bool PrintFlow::hasPages(const QString &unfinished)
{
    const QString problem = unfinished.isEmpty() ? pagesProblem(m_session) : unfinished;
    if (problem.isEmpty())
        return true;
    refuse(Step::Pages, ExitStatus::WrongUsage, notPrinted(), tr("Pages: %1").arg(problem));
    return false;
}

bool PrintFlow::goTogether()
{
    SessionJob &job = m_session.job();
    const ConflictReport report = job.conflicts();
    if (report.isEmpty())
        return true;
    const QString header = tr("These settings cannot be used together");
    if (m_questions && !report.fix.isEmpty()) {
        if (!m_questions->fixesConflicts(header, report))
            return false;
        const auto before = job.snapshot();
        job.fix(report);
        job.writeAll();
        if (job.conflicts().isEmpty())
            return true;
        // What did not help is taken back: what is told is how things stand.
        job.restore(before);
    }
    refuse(Step::Conflicts, ExitStatus::NotOffered, header,
           report.sentences().join(m_questions ? u'\n' : u' '));
    return false;
}

// What the user would want to know before, not after.
bool PrintFlow::isLetGo()
{
    m_cautions.look();
    if (const Caution *refused = m_cautions.find(Caution::Weight::Refused)) {
        refuse(Step::Cautions, ExitStatus::Failed, refused->text, refused->advice);
        return false;
    }
    if (!m_questions) {
        m_cautions.sayAll();
        return true;
    }
    const Caution *asked = m_cautions.find(Caution::Weight::Asked);
    return !asked || m_questions->printsAnyway(Caution(*asked));
}

bool PrintFlow::areSettingsWritten()
{
    const auto written = writeSettingsOut();
    if (!written)
        refuse(Step::SettingsOut, ExitStatus::Failed, notPrinted(),
               tr("The settings could not be written. %1").arg(written.error().text()));
    return bool(written);
}

Result<void> PrintFlow::writeSettingsOut()
{
    if (m_session.stage() != Stage::Ready || !(m_plan.ticketOut || m_plan.presetOut))
        return {};
    SessionJob &job = m_session.job();
    job.writeAll();
    auto written =
        m_plan.ticketOut ? writeTicketFile(*m_plan.ticketOut, job.ticketToKeep()) : Result<void>();
    if (!written || !m_plan.presetOut)
        return written;
    return writeTicketFile(*m_plan.presetOut, presetFrom(job.preset(), job.secretKeys(), false));
}

void PrintFlow::start(std::shared_ptr<const Destination> destination)
{
    const PrinterSearch &search = m_session.search();
    SessionJob &job = m_session.job();
    m_destination = std::move(destination);
    PrintRun::Order order;
    order.request.isForPeople = m_destination->isForPeople();
    order.request.document = m_session.document().document();
    order.request.ticket = job.ticket();
    order.request.settings = job.settings();
    // A device that reads tickets finds there how pages are turned.
    const bool isUpsideDown = !order.request.isForPeople && !readsTickets(search.ppd().get())
        && isReverse(order.request.settings.orientation);
    order.request.layout = job.printedPages().value().pdfLayout(isUpsideDown);
    order.request.secretKeys = job.secretKeys();
    if (const Printer *printer = search.printer())
        order.request.queueDefaults = printer->defaults;
    order.ppd = search.ppd();
    order.destination = m_destination;
    m_run = std::make_unique<PrintRun>();
    connect(m_run.get(), &PrintRun::finished, this, &PrintFlow::takeOutcome);
    m_run->start(std::move(order));
    emit started();
}

void PrintFlow::cancel()
{
    if (m_run)
        m_run->cancel();
}

QString PrintFlow::unknownOutcome()
{
    return tr("interrupted while the job was being sent; it may have been accepted: "
              "look at the printer’s queue before you print again");
}

void PrintFlow::interrupt()
{
    cancel();
    QTimer::singleShot(interruptMs, this, [this] {
        if (!m_run)
            return;
        const QString problem = unknownOutcome();
        printLine(stderr, QStringLiteral("kelvo-print: ") + problem);
        refuse(Step::Job, ExitStatus::Failed, notPrinted(), problem);
    });
}

void PrintFlow::takeOutcome(const PrintOutcome &outcome)
{
    m_run.release()->deleteLater();
    if (outcome.status != ExitStatus::Printed) {
        refuse(Step::Job, outcome.status, notPrinted(), outcome.problem);
        return;
    }
    if (outcome.job)
        m_sentJobs.push_back(*outcome.job);
    sayWhatWasNotSent();
    printLine(stdout, outcome.place + u' ' + m_session.document().title());
    emit printed(outcome.place);
}

void PrintFlow::sayWhatWasNotSent()
{
    SessionJob &job = m_session.job();
    if (m_destination->isForPeople()) {
        if (const QString sentence = leftToThePrinter(job); !sentence.isEmpty())
            printLine(stderr, QStringLiteral("kelvo-print: ") + sentence);
        return;
    }
    for (const QString &setting : job.missing())
        printLine(stderr,
                  QStringLiteral("kelvo-print: ")
                      + (job.ppd() ? tr("%1: not sent, this printer does not have it")
                                   : tr("%1: not sent, the print server has no description of "
                                        "this printer"))
                            .arg(setting));
    for (const QString &setting : job.untold())
        printLine(stderr,
                  QStringLiteral("kelvo-print: ")
                      + tr("%1: not sent, this printer reads no tickets").arg(setting));
}

} // namespace kelvo
