#include "dialog_session.h"

#include "terminal.h"
#include "values.h"

namespace kelvo {

namespace {

const QString deviceMakerKey = QStringLiteral("KelvoDeviceMaker");

} // namespace

DialogSession::DialogSession(SessionBeginning beginning, DevicePanels *panels,
                             DevicePanels *options, QObject *parent)
    : QObject(parent)
    , m_bundle(beginning.bundle)
    , m_bundleProblem(std::move(beginning.bundleProblem))
    , m_panels(panels)
    , m_options(options)
    , m_search(std::move(beginning.printer))
    , m_documents(std::move(beginning.documents))
    , m_job(std::move(beginning.job), beginning.bundle, panels)
{
    m_job.setTitle(m_documents.title());
    connect(&m_search, &PrinterSearch::printersChanged, this, &DialogSession::printersChanged);
    connect(&m_search, &PrinterSearch::conditionChanged, this, &DialogSession::conditionChanged);
    connect(&m_search, &PrinterSearch::stateChanged, this, &DialogSession::takeSearch);
    connect(&m_documents, &SessionDocuments::shownChanged, this, &DialogSession::takeDocument);
    connect(&m_documents, &SessionDocuments::listChanged, this, &DialogSession::documentsChanged);
    connect(&m_job, &SessionJob::reloaded, this, &DialogSession::reloaded);
}

DialogSession::~DialogSession()
{
    stop();
}

void DialogSession::start()
{
    m_search.start();
}

void DialogSession::stop()
{
    m_documents.cancel();
    endPanels();
    m_search.stop();
}

DialogSession::Stage DialogSession::stage() const
{
    if (m_job.isSettled())
        return Stage::Ready;
    return m_search.state() == PrinterSearch::State::Stuck ? Stage::Stuck : Stage::Searching;
}

const SessionMessage &DialogSession::message() const
{
    return m_job.isSettled() ? m_message : m_search.message();
}

void DialogSession::takeSearch()
{
    if (m_search.state() == PrinterSearch::State::Found)
        begin();
    else
        emit stageChanged();
}

void DialogSession::takeDocument()
{
    m_job.setTitle(m_documents.title());
    if (const Document &shown = document().document(); !shown.isNull())
        m_job.setDocument(shown);
    emit documentChanged();
}

void DialogSession::choosePrinter(const QString &name)
{
    if (m_job.isSettled() && name != m_search.name()) {
        m_job.leave();
        endPanels();
    }
    m_search.choose(name);
}

void DialogSession::begin()
{
    const Printer *printer = m_search.printer();
    const auto begun = m_job.beginOn(
        {m_search.name(), m_search.ppd(), printer ? printer->defaults : QMap<QString, QString>()});
    if (!begun) {
        emit refused(begun.error());
        return;
    }
    beginPanels();
    m_job.settle();
    emit stageChanged();
    emit reloaded();
}

// ---- the device's panels

bool DialogSession::isOfAnotherMaker() const
{
    const QString maker = m_search.ppd()->manufacturer();
    return m_bundle && !maker.isEmpty() && maker != string(m_bundle->info(), deviceMakerKey);
}

QString DialogSession::whyPanelsDidNotBegin(const Error &error) const
{
    const QString model = m_search.ppd()->modelName();
    const QString maker = m_search.ppd()->manufacturer();
    if (maker.isEmpty())
        return tr("The panels are not made for this device (%1).").arg(model);
    if (isOfAnotherMaker())
        return tr("The panels are not made for this device (%1, made by %2).").arg(model, maker);
    return tr("The panels could not start (%1). Installing them again may help.").arg(error.text());
}

// Empty when they have begun.
QString DialogSession::whyNoPanels()
{
    if (!m_panels)
        return m_bundleProblem;
    if (isOfAnotherMaker()) // the bundle says whose devices it is for, without its module
        return whyPanelsDidNotBegin({});
    if (!m_panelsLoaded) {
        m_panelsLoaded = m_panels->load();
        if (!*m_panelsLoaded)
            printLine(stderr, QStringLiteral("kelvo-print: ") + m_panelsLoaded->reason());
    }
    if (!*m_panelsLoaded)
        return tr("The panels cannot be loaded: %1").arg(m_panelsLoaded->reason());
    const auto begun = m_panels->begin(m_job.tickets());
    return begun ? QString() : whyPanelsDidNotBegin(begun.error());
}

void DialogSession::beginPanels()
{
    m_message = {};
    QString why;
    QString works;
    if (m_search.ppd()) {
        why = whyNoPanels();
        works = tr("Copies, pages, paper size and orientation work as usual.");
    } else {
        why = m_search.noPpdReason();
        works = tr("Copies and pages work as usual. Paper size, orientation and collating are "
                   "passed on; whether they are heeded is up to the printer.");
    }
    const bool isWithout = m_search.ppd() && !hasPanels();
    if (isWithout && m_options && m_options->begin(m_job.tickets())) {
        m_job.setPanels(m_options);
        if (!isOfAnotherMaker()) // nobody misses panels there
            m_message.text = why;
        return;
    }
    m_job.setPanels(m_panels);
    if (!hasPanels())
        m_message = {tr("No device panels for “%1”").arg(m_search.name()), why + u'\n' + works};
}

void DialogSession::endPanels()
{
    for (DevicePanels *panels : {m_panels, m_options}) {
        if (panels)
            panels->end(noErr);
    }
}

} // namespace kelvo
