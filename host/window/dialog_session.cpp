#include "dialog_session.h"

#include "cautions.h"
#include "job_words.h"
#include "nearest_name.h"
#include "ppd_words.h"
#include "secrets.h"
#include "terminal.h"
#include "ticket_attachment.h"
#include "ticket_layers.h"
#include "values.h"

namespace kelvo {

namespace {

using Code = Error::Code;

const QString deviceMakerKey = QStringLiteral("KelvoDeviceMaker");
const QString hostClient = QStringLiteral("com.kelvo.printingmanager");

} // namespace

DialogSession::DialogSession(DialogOptions options, QWidget *panesParent, QObject *parent)
    : QObject(parent)
    , m_options(std::move(options))
    , m_panesParent(panesParent)
    , m_secretKeys(secretKeysOf(m_options.bundle))
    , m_describer(m_options.bundle)
    , m_session(std::make_unique<PrintSession>())
{
    if (!m_options.document)
        m_documentProblem = tr("There is no document to print.");
    for (const auto *given : {&m_options.preset, &m_options.ticketIn}) {
        if (*given && holdsSecret(**given, m_secretKeys))
            protectSecrets();
    }
}

DialogSession::~DialogSession()
{
    stop();
}

void DialogSession::start()
{
    if (m_options.device) {
        m_ppd = m_options.device;
        m_printerName = m_ppd->modelName();
        m_arePrintersKnown = m_isPpdKnown = true;
        emit printersChanged();
        begin();
        return;
    }
    m_printerName = m_options.line.destination.value_or(QString());
    findPrinters();
}

void DialogSession::retry()
{
    if (m_stage == Stage::Stuck)
        findPrinters();
}

void DialogSession::stop()
{
    if (m_openingCancelled)
        *m_openingCancelled = true;
    m_opening.drop();
    endPanels();
    m_directory.reset();
}

void DialogSession::setStage(Stage stage, Message message)
{
    m_stage = stage;
    m_message = std::move(message);
    emit stageChanged();
}

// ---- printers and their PPDs

void DialogSession::findPrinters()
{
    m_arePrintersKnown = m_isPpdKnown = false;
    m_askedFor.clear(); // answers to the last directory do not come any more
    m_lookedAtPrinter.reset();
    setStage(Stage::Searching,
             {tr("Looking for printers"), tr("The print server has not answered yet."), false});
    if (m_options.directory) {
        m_directory = std::move(m_options.directory);
        if (!m_printerName.isEmpty())
            m_askedFor.insert(m_printerName);
        listenTo(*m_directory);
        return;
    }
    m_directory = std::make_shared<PrinterDirectory>();
    listenTo(*m_directory);
    m_directory->refresh(m_options.line.timeoutSeconds * 1000);
    // Both questions at once: the second need not wait for the first.
    if (!m_printerName.isEmpty())
        askForPpd();
}

void DialogSession::listenTo(PrinterDirectory &directory)
{
    connect(&directory, &PrinterDirectory::printersFound, this, &DialogSession::takePrinters);
    connect(&directory, &PrinterDirectory::printersFailed, this, [this](const Error &error) {
        const bool isSilent = error.code == Code::TimedOut || error.code == Code::Unreachable;
        setStage(Stage::Stuck,
                 {isSilent ? tr("The print server does not answer")
                           : tr("The printers cannot be listed"),
                  error.detail, true});
    });
    connect(&directory, &PrinterDirectory::conditionFound, this, &DialogSession::takeCondition);
    // What the list said stands then.
    connect(&directory, &PrinterDirectory::conditionFailed, this, [this](const QString &printer) {
        if (m_lookedAtPrinter == printer)
            m_lookedAtPrinter.reset();
    });
    connect(&directory, &PrinterDirectory::ppdFetched, this,
            [this](const QString &printer, const QString &path) {
                m_askedFor.remove(printer);
                if (isPpdAwaited(printer))
                    takePpd(path);
            });
    connect(&directory, &PrinterDirectory::ppdFailed, this,
            [this](const QString &printer, const Error &error) {
                m_askedFor.remove(printer);
                if (!isPpdAwaited(printer))
                    return;
                if (error.code == Code::NotFound) {
                    beginWithoutPpd(tr("The print server has no description of its settings."));
                } else if (!m_arePrintersKnown || findPrinter(printer)) {
                    // A name that the server does not know is told as such, with the list.
                    takePpdProblem(error.detail);
                }
            });
}

// A printer that is chosen again while its answer is on its way is not asked
// twice: each answer would begin the panels.
void DialogSession::askForPpd()
{
    if (m_askedFor.contains(m_printerName))
        return;
    m_askedFor.insert(m_printerName);
    m_directory->fetchPpd(m_printerName, m_options.line.timeoutSeconds * 1000);
}

bool DialogSession::isPpdAwaited(const QString &printer) const
{
    return printer == m_printerName && !m_isPpdKnown;
}

void DialogSession::lookAtPrinter()
{
    if (!m_directory || !printer() || isLookingAtPrinter())
        return;
    m_lookedAtPrinter = m_printerName;
    m_directory->fetchCondition(m_printerName, m_options.line.timeoutSeconds * 1000);
}

void DialogSession::takeCondition(const QString &printer, const PrinterCondition &condition)
{
    if (m_lookedAtPrinter == printer)
        m_lookedAtPrinter.reset();
    for (Printer &known : m_printers) {
        if (known.name != printer || static_cast<PrinterCondition &>(known) == condition)
            continue;
        static_cast<PrinterCondition &>(known) = condition;
        emit conditionChanged();
    }
}

const Printer *DialogSession::findPrinter(const QString &name) const
{
    for (const Printer &printer : m_printers) {
        if (printer.name == name)
            return &printer;
    }
    return nullptr;
}

void DialogSession::takePrinters(const QList<Printer> &printers)
{
    m_printers = printers;
    m_arePrintersKnown = true;
    if (m_printers.isEmpty()) {
        emit printersChanged();
        setStage(Stage::Stuck,
                 {tr("There is no printer"),
                  tr("Add one in the system's printer settings, then try again."), true});
        return;
    }
    if (m_printerName.isEmpty()) {
        m_printerName = m_printers.first().name;
        m_isPrinterAssumed = !m_printers.first().isDefault;
        emit printersChanged();
        fetchPpd();
        return;
    }
    emit printersChanged();
    if (!findPrinter(m_printerName)) {
        QStringList names;
        for (const Printer &printer : m_printers)
            names.append(printer.name);
        const QString nearest = didYouMean(m_printerName, names);
        setStage(Stage::Stuck,
                 {tr("There is no printer “%1”").arg(m_printerName),
                  tr("The print server does not know it%1")
                      .arg(nearest.isEmpty() ? QStringLiteral(".") : nearest),
                  true, tr("Choose another printer, or try again.")});
        return;
    }
    beginWhenComplete();
}

void DialogSession::fetchPpd()
{
    m_isPpdKnown = false;
    m_ppd.reset();
    setStage(Stage::Searching,
             {tr("Asking for the settings of “%1”").arg(m_printerName),
              tr("The print server has not answered yet."), false});
    askForPpd();
}

void DialogSession::takePpd(const QString &path)
{
    auto opened = PpdFile::open(path);
    if (!opened) {
        // The copy's path means nothing to the user.
        takePpdProblem(tr("The print server’s description of them is damaged (%1).")
                           .arg(opened.error().detail));
        return;
    }
    m_ppd = std::move(opened).value();
    m_noPpdReason.clear();
    m_isPpdKnown = true;
    beginWhenComplete();
}

// Not the same as a printer without a PPD: whoever printed all the same would lose
// every setting without a word.
void DialogSession::takePpdProblem(const QString &why)
{
    setStage(Stage::Stuck,
             {tr("The settings of “%1” cannot be read").arg(m_printerName), why, true,
              tr("Try again, or choose another printer.")});
}

void DialogSession::beginWithoutPpd(const QString &why)
{
    m_ppd.reset();
    m_noPpdReason = why;
    m_isPpdKnown = true;
    beginWhenComplete();
}

void DialogSession::beginWhenComplete()
{
    if (m_stage != Stage::Ready && m_arePrintersKnown && m_isPpdKnown && findPrinter(m_printerName))
        begin();
}

void DialogSession::choosePrinter(const QString &name)
{
    m_isPrinterAssumed = false;
    m_isPrinterChosen = true;
    if (name == m_printerName && m_stage != Stage::Stuck)
        return;
    if (m_stage == Stage::Ready) {
        writeAll();
        if (isChanged())
            takeAsChanged();
        if (m_ppd)
            m_asked.learnWords(*m_ppd);
        endPanels();
    }
    m_printerName = name;
    fetchPpd();
}

// ---- tickets

// What was asked for on an earlier printer is laid over what this one begins with.
void DialogSession::begin()
{
    m_session = std::make_unique<PrintSession>();
    m_session->setPrinter({m_printerName, m_ppd ? m_ppd->path() : QString()});
    nameJob();
    const TicketFile defaults = queueDefaults();
    m_repeatedChoices = m_describer.repeatedChoices(m_ppd.get());
    m_asked.beginOn(defaults, m_repeatedChoices);
    if (const auto asked = m_hasBegun ? Result<void>() : askFirst(); !asked) {
        emit refused(ExitStatus::NotOffered, asked.error().text());
        return;
    }
    m_hasBegun = true;
    load(defaults, *m_session);
    beginPanels();
    m_asked.setBeginning(firstWrites());
    settle();
    // A queue in trouble has a message of its own, which the list does not have.
    if (const Printer *now = printer();
        now && (m_isPrinterChosen || printerCaution(now->name, *now)))
        lookAtPrinter();
    setStage(Stage::Ready, m_message);
    emit reloaded();
}

void DialogSession::nameJob()
{
    PMTicketSetCFString(m_session->printSettingsTicket(), hostClient, kPMJobNameKey, title());
}

// The device's own defaults stand in its PPD; a queue's are laid over them. What they
// say of the PPD's options beats the print server's own names for the same.
TicketFile DialogSession::queueDefaults()
{
    const Printer *printer = findPrinter(m_printerName);
    const QMap<QString, QString> defaults = printer ? printer->defaults : QMap<QString, QString>();
    for (const bool ofPpd : {false, true}) {
        for (auto option = defaults.cbegin(); option != defaults.cend(); ++option) {
            if ((m_ppd && m_ppd->findOption(option.key())) != ofPpd)
                continue;
            // Most of what the server lists is no setting of a job: passed over.
            static_cast<void>(
                bool(applyOption(option.key(), option.value(), m_ppd.get(), *m_session)));
        }
    }
    return ticketFileFrom(*m_session);
}

// What the panels make of these defaults.
TicketFile DialogSession::firstWrites()
{
    writeJobSettings(settings(), m_ppd.get(), *m_session);
    readAll();
    sync(kSyncWrite);
    return ticketFileFrom(*m_session);
}

void DialogSession::askForSiteDefaults()
{
    if (const auto site = m_presets.siteDefaults())
        m_asked.lay(*site, AskedSettings::Kind::Given);
}

void DialogSession::ask(const TicketFile &file, AskedSettings::Kind kind)
{
    if (holdsSecret(file, m_secretKeys))
        protectSecrets();
    m_asked.lay(file, kind);
    m_unknown.insert(file.unknown);
    m_unknown.remove(kTicketNonceKey); // of one sent job, and of no other
}

// An option may mean several settings, and change one by another: it is tried on what
// is wanted so far.
Result<void> DialogSession::askForOption(const QString &name, const QString &value)
{
    load(m_asked.wanted(), *m_session);
    const auto places = applyOption(name, value, m_ppd.get(), *m_session);
    if (!places)
        return places.error();
    m_asked.lay(part(ticketFileFrom(*m_session), places.value()), AskedSettings::Kind::Chosen);
    return {};
}

void DialogSession::askForPages(const QString &pages)
{
    TicketFile asked;
    asked.isPart = true;
    if (pages.isEmpty())
        asked.removed.insert({kPMPrintSettingsTicket, kPMPageRangesKey});
    else
        asked.printSettings.entries[kPMPageRangesKey] = {pages, hostClient};
    m_asked.lay(asked, AskedSettings::Kind::Given);
}

Result<void> DialogSession::askFirst()
{
    using Kind = AskedSettings::Kind;
    const CommandLine &line = m_options.line;
    askForSiteDefaults();
    if (m_options.preset)
        ask(*m_options.preset, Kind::Chosen);
    if (const auto &ticket = m_options.ticketIn) // of a whole one nobody chose all
        ask(*ticket, ticket->isPart ? Kind::Chosen : Kind::Given);
    for (const auto &[name, value] : line.options) {
        if (auto asked = askForOption(name, value); !asked)
            return asked;
    }
    if (line.copies) {
        TicketFile copies;
        copies.printSettings.entries[kPMCopiesKey] = {qint64(*line.copies), hostClient};
        m_asked.lay(copies, Kind::Chosen);
    }
    if (line.pages)
        askForPages(*line.pages);
    return {};
}

// The ticket as this device has it, before the user touches anything.
void DialogSession::settle()
{
    if (!m_asked.isEmpty()) {
        load(m_asked.wanted(), *m_session);
        nameJob();
        writeJobSettings(settings(), m_ppd.get(), *m_session);
        readAll();
        sync(kSyncWrite);
    }
    m_asked.settle(ticketFileFrom(*m_session));
    m_lookedAt = m_session->printSettings().ppdChoices;
    m_lastSet.clear();
}

JobSettings DialogSession::settings() const
{
    return jobSettingsFrom(*m_session, m_ppd.get());
}

void DialogSession::change(const JobSettings &settings)
{
    writeAll();
    writeJobSettings(settings, m_ppd.get(), *m_session);
}

TicketFile DialogSession::ticket() const
{
    TicketFile file = ticketFileFrom(*m_session);
    file.unknown = m_unknown;
    return file;
}

TicketFile DialogSession::ticketToKeep() const
{
    const TicketFile asked = preset();
    TicketFile file = ticket();
    file.asked = placesOf(asked);
    file.choiceWords = asked.choiceWords;
    return file;
}

TicketFile DialogSession::preset() const
{
    TicketFile file = m_asked.preset(ticketFileFrom(*m_session), m_ppd.get());
    file.unknown = m_unknown;
    return file;
}

void DialogSession::usePreset(const TicketFile *preset)
{
    const QString pages = settings().pageRanges;
    m_asked.clear();
    m_unknown.clear();
    askForSiteDefaults();
    if (preset)
        ask(*preset, AskedSettings::Kind::Chosen);
    askForPages(pages); // the user's: no other printer takes them away
    settle();
    emit reloaded();
}

bool DialogSession::isChanged() const
{
    return m_asked.isChanged(ticketFileFrom(*m_session));
}

void DialogSession::takeAsUnchanged()
{
    m_asked.takeAsUnchanged(ticketFileFrom(*m_session));
}

const JobDescription &DialogSession::description()
{
    m_describer.describe(m_session->printSettings(), m_session->pageFormat(), m_ppd.get(),
                         m_description);
    return m_description;
}

QStringList DialogSession::missing() const
{
    return missingOnDevice(m_asked.asked(), m_ppd.get());
}

QStringList DialogSession::untold()
{
    if (readsTickets(m_ppd.get()))
        return {};
    const TicketFile asked = m_asked.asked();
    JobDescription description;
    m_describer.describe(asked.printSettings, asked.pageFormat, m_ppd.get(), description);
    return entriesInWords(description);
}

ConflictReport DialogSession::conflicts()
{
    if (!m_ppd)
        return {};
    // Whoever has just set something wants to keep that.
    const PPDDictionary &choices = m_session->printSettings().ppdChoices;
    for (auto choice = choices.cbegin(); choice != choices.cend(); ++choice) {
        if (m_lookedAt.value(choice.key()) == *choice)
            continue;
        m_lastSet.removeAll(choice.key());
        m_lastSet.prepend(choice.key());
    }
    m_lookedAt = choices;
    return findConflicts(*m_session, *m_ppd, m_lastSet);
}

void DialogSession::fix(const ConflictReport &report)
{
    dropRepeats(m_session->printSettings(), report.fix, m_repeatedChoices);
    applyFix(report, *m_session);
    writeJobSettings(settings(), m_ppd.get(), *m_session); // the size of another paper
    readAll();
}

// ---- the device's panels

Extension *DialogSession::panels()
{
    return m_extension && m_extension->isBegun() ? m_extension.get() : nullptr;
}

QString DialogSession::whyPanelsDidNotBegin(const Error &error) const
{
    const QString maker = m_ppd->manufacturer();
    if (maker.isEmpty())
        return tr("The panels are not made for this device (%1).").arg(m_ppd->modelName());
    if (maker != string(m_options.bundle->info(), deviceMakerKey))
        return tr("The panels are not made for this device (%1, made by %2).")
            .arg(m_ppd->modelName(), maker);
    return tr("The panels could not start (%1). Installing them again may help.").arg(error.text());
}

void DialogSession::beginPanels()
{
    const QString stays = tr("Copies, pages, paper and orientation work as usual.");
    const QString none = tr("No device panels for “%1”").arg(m_printerName);
    m_message = {};
    if (!m_ppd) {
        m_message = {
            none,
            m_noPpdReason + u'\n'
                + tr("Copies and pages work as usual. Paper, orientation and collating are "
                     "passed on; whether they are heeded is up to the printer.")};
        return;
    }
    if (!m_options.bundle) {
        m_message = {none, m_options.bundleProblem + u'\n' + stays};
        return;
    }
    if (!m_extension && m_extensionProblem.isEmpty()) {
        m_extension = std::make_unique<Extension>(m_options.bundle);
        if (const auto loaded = m_extension->load(); !loaded) {
            m_extensionProblem = loaded.error().text();
            printLine(stderr, QStringLiteral("kelvo-print: ") + m_extensionProblem);
            m_extension.reset();
        }
    }
    if (!m_extension) {
        m_message = {none,
                     tr("The panels cannot be loaded: %1").arg(m_extensionProblem) + u'\n' + stays};
        return;
    }
    if (const auto begun = m_extension->begin(*m_session, m_panesParent); !begun) {
        m_message = {none, whyPanelsDidNotBegin(begun.error()) + u'\n' + stays};
        return;
    }
    m_extension->show(0);
}

void DialogSession::endPanels()
{
    if (m_extension)
        m_extension->end(noErr);
}

void DialogSession::sync(SyncDirection direction)
{
    if (Extension *begun = panels())
        begun->sync(direction);
}

void DialogSession::writeAll()
{
    sync(kSyncWrite);
    if (m_stage == Stage::Ready)
        m_asked.take(ticketFileFrom(*m_session), m_ppd.get());
}

void DialogSession::readAll()
{
    sync(kSyncRead);
}

// ---- the document

QString DialogSession::title() const
{
    if (!m_document.isNull())
        return m_document.title();
    return titleOf(m_options.document.value_or(DocumentSource()));
}

void DialogSession::openTheDocument()
{
    if (m_openingCancelled || !m_options.document)
        return;
    m_openingCancelled = std::make_shared<std::atomic_bool>(false);
    const auto take = [this](Result<Document> opened) {
        if (opened)
            m_document = std::move(opened).value();
        else
            m_documentProblem = tr("The document cannot be opened: %1").arg(opened.error().text());
        emit documentChanged();
    };
    const bool isStarted = m_opening.start(
        [source = *m_options.document, cancelled = m_openingCancelled] {
            return openDocument(source, *cancelled);
        },
        take);
    if (!isStarted)
        take(Error{Code::NotReadable, title(), noThreadReason()});
}

} // namespace kelvo
