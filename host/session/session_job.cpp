#include "session_job.h"

#include "ipp_options.h"
#include "job_words.h"
#include "page_ranges.h"
#include "ppd_words.h"
#include "secrets.h"
#include "texts.h"
#include "ticket_attachment.h"
#include "ticket_layers.h"

#include <algorithm>

namespace kelvo {

namespace {

const QString hostClient = QStringLiteral("com.kelvo.printingmanager");

} // namespace

SessionJob::SessionJob(Wishes wishes, Bundle *bundle, DevicePanels *panels, QObject *parent)
    : QObject(parent)
    , m_wishes(std::move(wishes))
    , m_panels(panels)
    , m_secretKeys(secretKeysOf(bundle))
    , m_describer(bundle)
    , m_session(std::make_unique<PrintSession>())
{
    for (const auto *given : {&m_wishes.preset, &m_wishes.ticketIn}) {
        if (*given && holdsSecret(**given, m_secretKeys))
            protectSecrets();
    }
}

// ---- a device's life

Result<void> SessionJob::beginOn(Device device)
{
    m_device = std::move(device);
    m_hasProposedPaper = false;
    m_session = std::make_unique<PrintSession>();
    m_session->setPrinter({m_device.name, {}, m_device.ppd});
    nameJob();
    const TicketFile defaults = queueDefaults();
    m_repeatedChoices = m_describer.repeatedChoices(
        ppd(), m_wishes.preset || m_wishes.ticketIn || m_wishes.lastUsed);
    m_edits.asked.beginOn(defaults, m_repeatedChoices);
    if (!m_areWishesAsked) {
        if (auto asked = askFirst(); !asked)
            return asked;
        m_areWishesAsked = true;
    }
    load(defaults, *m_session);
    return {};
}

void SessionJob::settle()
{
    m_edits.asked.setBeginning(firstWrites());
    layAsked();
    m_isSettled = true;
}

void SessionJob::leave()
{
    writeAll();
    if (isChanged())
        takeAsChanged();
    if (ppd())
        m_edits.asked.learnWords(*ppd());
    m_isSettled = false;
}

void SessionJob::setTitle(const QString &title)
{
    if (title == m_title)
        return;
    m_title = title;
    nameJob();
}

void SessionJob::nameJob()
{
    PMTicketSetCFString(m_session->printSettingsTicket(), hostClient, kPMJobNameKey, m_title);
}

// Also where the ranges name no page: something has to be seen until they do.
void SessionJob::tellFirstPage()
{
    const auto pages = m_document.isNull() ? Result<PrintedPages>(PrintedPages()) : printedPages();
    const int first = pages ? pages.value().firstOnPage(1) : 0;
    m_session->setFirstPage({m_document.pdfPath(), std::max(1, first)});
}

void SessionJob::setDocument(const Document &document)
{
    m_document = document;
    if (m_isSettled)
        proposePaper();
    tellFirstPage();
}

// The document's own size, where the device has it and nobody says another one.
void SessionJob::proposePaper()
{
    if (m_document.isNull() || !ppd() || namesPaper(m_device.defaults, *ppd()))
        return;
    const TicketFile asked = m_edits.asked.asked();
    if (std::ranges::any_of(paperPlaces(),
                            [&](const TicketPlace &place) { return isSet(place, asked); }))
        return;
    QString paper = paperAsLargeAs(m_document.pageSize(1), *ppd());
    if (paper.isEmpty() && m_hasProposedPaper) // that of another document
        paper = defaultPaper(*ppd());
    JobSettings settings = this->settings();
    if (paper.isEmpty() || paper == settings.paperName)
        return;
    if (m_isSettled)
        writeAll();
    const TicketFile before = ticketFileFrom(*m_session);
    settings.paperName = paper;
    writeJobSettings(settings, ppd(), *m_session);
    readAll();
    sync(kSyncWrite);
    m_hasProposedPaper = true;
    m_edits.asked.propose(before, ticketFileFrom(*m_session));
}

Result<PrintedPages> SessionJob::printedPages()
{
    const JobSettings settings = this->settings();
    const auto runs = pageRunsFrom(settings.pageRanges, m_document.pageCount());
    if (!runs)
        return runs.error();
    PagesToPrint request;
    request.chosen = pagesIn(runs.value());
    request.set = settings.pageSet;
    request.sizeOf = [document = m_document](int page) { return document.pageSize(page); };
    request.layout = settings.layout;
    request.isReversed = settings.isReversed;
    // A device that puts pages together makes them fit, and knows which share a sheet.
    if (!description().imposition) {
        request.pairsSides = isTwoSided();
        if (ppd())
            request.paper = paperNamed(settings.paperName, *ppd()).value_or(Paper());
    }
    PrintedPages pages(std::move(request));
    if (pages.count() == 0)
        return Error{Error::Code::OutOfRange, m_document.title(),
                     settings.pageSet == PageSet::Odd
                         ? translate("Job", "none of these pages has an odd number")
                         : translate("Job", "none of these pages has an even number")};
    return pages;
}

// The device's own defaults stand in its PPD; a queue's are laid over them. What they
// say of the PPD's options beats the print server's own names for the same.
TicketFile SessionJob::queueDefaults()
{
    const QMap<QString, QString> &defaults = m_device.defaults;
    for (const bool ofPpd : {false, true}) {
        for (auto option = defaults.cbegin(); option != defaults.cend(); ++option) {
            if ((ppd() && ppd()->findOption(option.key())) != ofPpd)
                continue;
            // cupsd has a default for some of these also where nobody has set one, and says "black
            // and white" of a queue that it knows nothing of.
            if (!ofPpd && option.key() != QLatin1String("sides")
                && ippAttributes().contains(option.key()))
                continue;
            // Most of what the server lists is no setting of a job: passed over.
            static_cast<void>(bool(applyOption({option.key(), option.value()}, ppd(), *m_session)));
        }
    }
    return ticketFileFrom(*m_session);
}

// What the panels make of these defaults.
TicketFile SessionJob::firstWrites()
{
    writeJobSettings(settings(), ppd(), *m_session);
    readAll();
    sync(kSyncWrite);
    return ticketFileFrom(*m_session);
}

// The ticket as this device has it, before the user touches anything.
void SessionJob::layAsked()
{
    if (!m_edits.asked.isEmpty()) {
        load(m_edits.asked.wanted(), *m_session);
        nameJob();
        writeJobSettings(settings(), ppd(), *m_session);
        readAll();
        sync(kSyncWrite);
    }
    m_edits.asked.settle(ticketFileFrom(*m_session));
    proposePaper();
    tellFirstPage();
    m_edits.lookedAt = m_session->printSettings().ppdChoices;
    m_edits.lastSet.clear();
}

// ---- what is asked for

void SessionJob::askForSiteDefaults()
{
    if (const auto site = m_presets.siteDefaults())
        m_edits.asked.lay(*site, AskedSettings::Kind::Given);
}

void SessionJob::ask(const TicketFile &file, AskedSettings::Kind kind)
{
    if (holdsSecret(file, m_secretKeys))
        protectSecrets();
    m_edits.asked.lay(file, kind);
    m_edits.unknown.insert(file.unknown);
    m_edits.unknown.remove(kTicketNonceKey); // of one sent job, and of no other
}

// An option may mean several settings, and change one by another: it is tried on what
// is wanted so far.
Result<void> SessionJob::askForOption(const AskedOption &option)
{
    load(m_edits.asked.wanted(), *m_session);
    const auto places = applyOption(option, ppd(), *m_session);
    if (!places) {
        Error error = places.error();
        // No slip of the pen, where another of these devices has it.
        const auto isElsewhere = [this](const QString &name) {
            return m_describer.knowsOption(name);
        };
        if (error.code == Error::Code::Unsupported
            && isElsewhere(meaningOf(option, isElsewhere).name)) {
            error.code = Error::Code::Refused;
            error.detail = translate("Job", "this printer does not have this option");
        }
        return error;
    }
    m_edits.asked.lay(part(ticketFileFrom(*m_session), places.value()),
                      AskedSettings::Kind::Chosen);
    return {};
}

void SessionJob::askForCopies(int copies)
{
    TicketFile asked;
    asked.printSettings.entries[kPMCopiesKey] = {qint64(copies), hostClient};
    m_edits.asked.lay(asked, AskedSettings::Kind::Chosen);
}

// An empty text takes the entry away.
void SessionJob::askForEntry(const QString &key, const QString &text)
{
    TicketFile asked;
    asked.isPart = true;
    if (text.isEmpty())
        asked.removed.insert({kPMPrintSettingsTicket, key});
    else
        asked.printSettings.entries[key] = {text, hostClient};
    m_edits.asked.lay(asked, AskedSettings::Kind::Given);
}

Result<void> SessionJob::askFirst()
{
    using Kind = AskedSettings::Kind;
    askForSiteDefaults();
    if (m_wishes.lastUsed)
        ask(*m_wishes.lastUsed, Kind::Chosen);
    if (m_wishes.preset)
        ask(*m_wishes.preset, Kind::Chosen);
    if (const auto &ticket = m_wishes.ticketIn) // of a whole one nobody chose all
        ask(*ticket, ticket->isPart ? Kind::Chosen : Kind::Given);
    for (const AskedOption &option : m_wishes.options) {
        if (auto asked = askForOption(option); !asked)
            return asked;
    }
    if (m_wishes.copies)
        askForCopies(*m_wishes.copies);
    if (m_wishes.pages)
        askForEntry(kPMPageRangesKey, *m_wishes.pages);
    return {};
}

void SessionJob::usePreset(const TicketFile *preset)
{
    const JobSettings before = settings();
    const QString holdUntil = timing().holdUntil;
    m_edits.asked.clear();
    m_edits.unknown.clear();
    askForSiteDefaults();
    if (preset)
        ask(*preset, AskedSettings::Kind::Chosen);
    // The user's: no other printer takes them away.
    askForEntry(kPMPageRangesKey, before.pageRanges);
    askForEntry(kPMPageSetKey, before.pageSet == PageSet::All ? QString() : nameOf(before.pageSet));
    askForEntry(kJobHoldUntilKey, holdUntil);
    layAsked();
    emit reloaded();
}

// ---- as it stands

void SessionJob::sync(SyncDirection direction)
{
    if (m_panels)
        m_panels->sync(direction);
}

void SessionJob::writeAll()
{
    sync(kSyncWrite);
    if (m_isSettled)
        m_edits.asked.take(ticketFileFrom(*m_session), ppd());
}

void SessionJob::readAll()
{
    sync(kSyncRead);
}

JobSettings SessionJob::settings() const
{
    return jobSettingsFrom(*m_session, ppd());
}

bool SessionJob::isTwoSided() const
{
    return kelvo::isTwoSided(m_session->printSettings().ppdChoices, ppd());
}

void SessionJob::change(const JobSettings &settings)
{
    writeAll();
    writeJobSettings(settings, ppd(), *m_session);
    tellFirstPage();
}

JobTiming SessionJob::timing() const
{
    return jobTimingFrom(m_session->printSettings());
}

void SessionJob::setTiming(const JobTiming &timing)
{
    writeAll();
    writeJobTiming(timing, *m_session);
}

TicketFile SessionJob::ticket() const
{
    TicketFile file = ticketFileFrom(*m_session);
    file.unknown = m_edits.unknown;
    return file;
}

TicketFile SessionJob::ticketToKeep() const
{
    const TicketFile asked = preset();
    TicketFile file = ticket();
    file.asked = placesOf(asked);
    file.choiceWords = asked.choiceWords;
    return file;
}

TicketFile SessionJob::preset() const
{
    TicketFile file = m_edits.asked.preset(ticketFileFrom(*m_session), ppd());
    file.unknown = m_edits.unknown;
    return file;
}

bool SessionJob::isChanged() const
{
    return m_edits.asked.isChanged(ticketFileFrom(*m_session));
}

void SessionJob::takeAsUnchanged()
{
    m_edits.asked.takeAsUnchanged(ticketFileFrom(*m_session));
}

QStringList SessionJob::missing() const
{
    return missingOnDevice(m_edits.asked.asked(), ppd());
}

QStringList SessionJob::untold()
{
    if (readsTickets(ppd()))
        return {};
    const TicketFile asked = m_edits.asked.asked();
    return entriesInWords(describe(m_asAsked, asked.printSettings, asked.pageFormat));
}

QStringList SessionJob::lost()
{
    const TicketFile asked = m_edits.asked.asked();
    QStringList sentences;
    for (const DescribedSetting &line :
         describe(m_asAsked, asked.printSettings, asked.pageFormat).settings) {
        if (line.isLost)
            sentences << translate("Job", "%1: %2.").arg(line.label, line.words);
    }
    return sentences;
}

ConflictReport SessionJob::conflicts()
{
    if (!m_device.ppd)
        return {};
    // Whoever has just set something wants to keep that.
    const PPDDictionary &choices = m_session->printSettings().ppdChoices;
    for (auto choice = choices.cbegin(); choice != choices.cend(); ++choice) {
        if (m_edits.lookedAt.value(choice.key()) == *choice)
            continue;
        m_edits.lastSet.removeAll(choice.key());
        m_edits.lastSet.prepend(choice.key());
    }
    m_edits.lookedAt = choices;
    if (m_conflicts.ppd != m_device.ppd || m_conflicts.choices != choices
        || m_conflicts.lastSet != m_edits.lastSet)
        m_conflicts = {m_device.ppd, choices, m_edits.lastSet,
                       findConflicts(*m_session, *m_device.ppd, m_edits.lastSet)};
    return m_conflicts.report;
}

void SessionJob::fix(const ConflictReport &report)
{
    dropRepeats(m_session->printSettings(), report.fix, m_repeatedChoices);
    applyFix(report, *m_session);
    writeJobSettings(settings(), ppd(), *m_session); // the size of another paper
    readAll();
}

SessionJob::Snapshot SessionJob::snapshot() const
{
    return {m_session->printSettings(), m_session->pageFormat(), m_edits};
}

void SessionJob::restore(const Snapshot &snapshot)
{
    m_session->printSettings() = snapshot.printSettings;
    m_session->pageFormat() = snapshot.pageFormat;
    m_edits = snapshot.edits;
    tellFirstPage();
    readAll();
    emit reloaded();
}

const JobDescription &SessionJob::description()
{
    return describe(m_asItStands, m_session->printSettings(), m_session->pageFormat());
}

const JobDescription &SessionJob::describe(Described &known, const Ticket &printSettings,
                                           const Ticket &pageFormat)
{
    const auto isOther = [](const StampedFile &file) { return stampOf(file.path) != file.stamp; };
    if (!known.isKnown || known.printSettings != printSettings || known.pageFormat != pageFormat
        || known.ppd != m_device.ppd || std::ranges::any_of(known.description.files, isOther)) {
        m_describer.describe(printSettings, pageFormat, ppd(), known.description);
        known.printSettings = printSettings;
        known.pageFormat = pageFormat;
        known.ppd = m_device.ppd;
        known.isKnown = true;
    }
    return known.description;
}

} // namespace kelvo
