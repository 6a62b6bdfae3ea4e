#include "print_flow.h"

#include "device_offers.h"
#include "dialog_session.h"
#include "ppd_words.h"
#include "presets.h"
#include "session_cautions.h"
#include "session_words.h"
#include "terminal.h"
#include "texts.h"

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
    return tr("“%1” was not printed").arg(m_session.documents().title());
}

QString PrintFlow::whyNotReady() const
{
    if (m_session.stage() == Stage::Searching)
        return tr("The printer’s settings have not come yet.");
    if (m_session.stage() == Stage::Stuck)
        return tr("%1. %2", "a headline and what follows it")
            .arg(m_session.message().header, m_session.message().text);
    const SessionDocuments &documents = m_session.documents();
    if (documents.isPending())
        return documents.count() == 1 ? tr("The document is not open yet.")
                                      : tr("Not all documents are open yet.");
    if (const QString problem = documents.problem(); !problem.isEmpty())
        return problem;
    // That nobody has named this printer is told first.
    const bool isNamed = m_questions || !m_session.search().isAssumed();
    const Caution *refused = isNamed ? m_cautions.find(Caution::Weight::Refused) : nullptr;
    return refused ? refused->sentences() : QString();
}

void PrintFlow::refuse(Step step, ExitStatus status, const QString &header, const QString &problem)
{
    if (step == Step::Job)
        m_isPrinting = false;
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
    Q_ASSERT(!m_isPrinting);
    m_refusal.reset();
    m_aside.reset();
    m_isCalledOff = false;
    if (!hasDestination())
        return;
    m_session.job().writeAll();
    m_jobs = m_session.documents().unsent();
    const bool isForPeople = m_plan.elsewhere && m_plan.elsewhere->isForPeople();
    if (!havePages(unfinished) || !(isForPeople || goTogether()) || !areLetGo()
        || !areSettingsWritten())
        return;
    m_isPrinting = true;
    startNext();
    emit started();
}

void PrintFlow::pressTo(std::shared_ptr<const Destination> destination, const QString &unfinished)
{
    Q_ASSERT(!m_isPrinting);
    m_refusal.reset();
    m_isCalledOff = false;
    m_aside = std::move(destination);
    m_session.job().writeAll();
    m_jobs = {m_session.documents().shownIndex()};
    if (!havePages(unfinished))
        return;
    m_isPrinting = true;
    startNext();
    emit started();
}

bool PrintFlow::areSeveral() const
{
    const SessionDocuments &documents = m_session.documents();
    return !m_aside && documents.count() > 1 && !documents.areJoined();
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

bool PrintFlow::havePages(const QString &unfinished)
{
    QString problem = unfinished;
    for (std::size_t i = 0; problem.isEmpty() && i < m_jobs.size(); ++i) {
        m_session.documents().show(m_jobs[i]);
        problem = pagesProblem(m_session);
    }
    if (problem.isEmpty())
        return true;
    refuse(Step::Pages, ExitStatus::WrongUsage, notPrinted(),
           areSeveral() && unfinished.isEmpty()
               ? tr("Pages of %1: %2").arg(m_session.document().title(), problem)
               : tr("Pages: %1").arg(problem));
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
bool PrintFlow::areLetGo()
{
    QStringList answered;
    for (const int number : m_jobs) {
        m_session.documents().show(number);
        if (!isLetGo(answered))
            return false;
    }
    return true;
}

// What was `answered` with yes is not asked for another document.
bool PrintFlow::isLetGo(QStringList &answered)
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
    if (!asked || answered.contains(asked->sentences()))
        return true;
    answered << asked->sentences();
    return m_questions->printsAnyway(Caution(*asked));
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

void PrintFlow::startNext()
{
    const PrinterSearch &search = m_session.search();
    SessionJob &job = m_session.job();
    SessionDocuments &documents = m_session.documents();
    const int number = m_jobs.front();
    documents.show(number);
    if (areSeveral())
        job.writeAll(); // of this document
    const QString title = documents.title();
    m_destination = m_aside ? m_aside
        : m_plan.elsewhere  ? m_plan.elsewhere
                            : queueDestination(search.name(), title, search.timeoutMs());
    if (auto own =
            areSeveral() ? m_destination->ofOne(number + 1, documents.at(number).title()) : nullptr)
        m_destination = std::move(own);
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
}

QString PrintFlow::onTheWay() const
{
    const SessionDocuments &documents = m_session.documents();
    if (!areSeveral() || m_jobs.empty())
        return m_destination->onTheWay();
    const int number = m_jobs.front();
    return tr("Sending %1 of %2: %3")
        .arg(QString::number(number + 1), QString::number(documents.count()),
             documents.at(number).title());
}

QString PrintFlow::arrived(const QString &place) const
{
    if (!areSeveral())
        return m_destination->arrived(place);
    return m_plan.elsewhere
        ? tr("%n document(s) written", nullptr, m_session.documents().count())
        : tr("%n document(s) sent to %1", nullptr, m_session.documents().count())
              .arg(m_session.search().name());
}

void PrintFlow::cancel()
{
    m_isCalledOff = true;
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
    m_isInterrupted = true;
    QTimer::singleShot(interruptMs, this, [this] {
        if (!m_isPrinting)
            return;
        const QString problem = unknownOutcome();
        if (!areSeveral())
            printLine(stderr, QStringLiteral("kelvo-print: ") + problem);
        refuse(Step::Job, ExitStatus::Failed, notPrinted(), withTheOthers(problem));
    });
}

void PrintFlow::takeOutcome(const PrintOutcome &outcome)
{
    m_run.release()->deleteLater();
    if (outcome.status != ExitStatus::Printed) {
        refuse(Step::Job, outcome.status, notPrinted(), withTheOthers(outcome.problem));
        return;
    }
    if (outcome.job)
        m_sentJobs.push_back(*outcome.job);
    SessionDocuments &documents = m_session.documents();
    const std::vector<int> unsent = documents.unsent();
    if (!areSeveral() || int(unsent.size()) == documents.count())
        sayWhatWasNotSent();
    printLine(stdout, outcome.place + u' ' + documents.title());
    if (areSeveral())
        documents.noteSent(m_jobs.front(), outcome.place);
    m_jobs.erase(m_jobs.begin());
    if (m_jobs.empty()) {
        m_isPrinting = false;
        emit printed(outcome.place);
        return;
    }
    if (m_isCalledOff) {
        documents.show(m_jobs.front());
        refuse(Step::Job, ExitStatus::Cancelled, notPrinted(),
               withTheOthers(PrintRun::tr("The job was cancelled.")));
        return;
    }
    startNext();
    emit movedOn();
}

// What has gone of several documents, and what has not.
QString PrintFlow::withTheOthers(const QString &problem) const
{
    if (!areSeveral())
        return problem;
    const SessionDocuments &documents = m_session.documents();
    QStringList sent, unsent;
    for (int i = 0; i < documents.count(); ++i) {
        const QString title = documents.at(i).title();
        if (documents.placeOf(i).isEmpty())
            unsent << title;
        else
            sent << tr("%1 (%2)", "a document, and its job").arg(title, documents.placeOf(i));
    }
    QStringList sentences{problem};
    sentences << (sent.isEmpty() ? tr("No document was sent.")
                                 : tr("Sent: %1.").arg(separated(sent)));
    sentences << tr("Not sent: %1.").arg(separated(unsent));
    const QString all = sentences.join(m_questions ? u'\n' : u' ');
    // Nobody else says it then; a run that is driven ends with what was refused.
    if (m_questions || m_isInterrupted)
        printLine(stderr, QStringLiteral("kelvo-print: ") + sentences.join(u' '));
    return all;
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
