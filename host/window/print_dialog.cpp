#include "print_dialog.h"

#include "accessible_role.h"
#include "audience.h"
#include "background_work.h"
#include "bundle_painters.h"
#include "caution_bar.h"
#include "dialog_foot.h"
#include "document_bar.h"
#include "document_chooser.h"
#include "document_preview.h"
#include "help_window.h"
#include "job_details_dialog.h"
#include "job_timing_dialog.h"
#include "modal_dialog.h"
#include "notice.h"
#include "options_pane.h"
#include "pane_scroll.h"
#include "panel_switch.h"
#include "password_dialog.h"
#include "pdf_chooser.h"
#include "preset_menu.h"
#include "printer_pane.h"
#include "session_words.h"
#include "spin_field.h"
#include "terminal.h"
#include "waiting_pane.h"
#include "window_columns.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QToolButton>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace kelvo {

namespace {

// So long after the user's last change, settings are written and checked.
constexpr int lookDelayMs = 150;

// So long the window waits for a print server that is near: no message that is
// gone before it can be read, and one frame less.
constexpr int graceMs = 40;

// So long the document waits for the first frame with the printer's settings.
constexpr int firstFrameMs = 300;
// So often a window looks whether its printer goes on.
constexpr int watchMs = 5000;

constexpr OSType kNextTab = fourCharCode("KFup");
constexpr OSType kPreviousTab = fourCharCode("KFdn");

} // namespace

PrintDialog::PrintDialog(DialogOptions options)
    : m_parts(this)
    , m_places(this, m_parts.panelSwitch)
    , m_bundle(options.session.bundle)
    , m_extension(m_bundle ? std::make_unique<Extension>(m_bundle, m_parts.panes) : nullptr)
    , m_session(std::make_unique<DialogSession>(std::move(options.session), m_extension.get(),
                                                m_parts.options))
    , m_cautions(*m_session, m_session->search().hasQueue() && !options.plan.elsewhere,
                 [this] { return place(); })
    , m_flow(*m_session, m_cautions, std::move(options.plan))
    , m_choices(this, m_session->job())
    , m_presets(new PresetMenu(m_session->job(), {options.preset, options.beginsWithLastUsed},
                               options.lastUsed ? options.lastUsed->settings : std::nullopt))
    , m_keepsLastUsed(options.lastUsed.has_value())
    , m_sent([this] { return isAttended(); })
{
    setAccessibleRole(this, QAccessible::Dialog);
    setObjectName(QStringLiteral("printDialog"));
    setPrintWindow(this);
    setWindowButtons(this, m_parts.foot->print(), m_parts.foot->cancel());
    m_parts.place(new PrinterPane(m_presets, m_parts.columns->left()),
                  new DocumentBar(m_session->documents(), m_parts.columns->left()));
    addShortcuts();
    m_parts.fitToFont();
    m_flow.setQuestions(this);

    m_look.setSingleShot(true);
    m_look.setInterval(lookDelayMs);
    connect(&m_look, &QTimer::timeout, this, &PrintDialog::lookAtSettings);
    m_grace.setSingleShot(true);
    m_grace.setInterval(graceMs);
    connect(&m_grace, &QTimer::timeout, this, &QWidget::show);
    m_firstFrame.setSingleShot(true);
    m_firstFrame.setInterval(firstFrameMs);
    connect(&m_firstFrame, &QTimer::timeout, this, [this] {
        m_session->openDocuments();
        if (audience() != Audience::Nobody)
            m_parts.printer->buildFolded();
        emit begun();
    });
    m_watch.setInterval(watchMs);
    connect(&m_watch, &QTimer::timeout, this, [this] {
        if (m_parts.printer->arePrintersListed())
            m_session->lookAtPrinters();
        else
            m_session->lookAtPrinter();
    });
    connect(&m_sent, &SentMessage::said, this, [this](const QString &text) {
        m_parts.foot->setText(text);
        m_parts.foot->showSent(m_sent.canCancel());
    });
    connect(&m_sent, &SentMessage::told, this, [this] { end(ExitStatus::Printed); });
    watchEvents([this](const Event &event) {
        if (!isReady())
            return;
        m_choices.note(event);
        m_look.start();
    });
    connect(qApp, &QApplication::focusChanged, this, [this] { showDefaultButton(); });
    showDefaultButton();
    connect(&m_flow, &PrintFlow::started, this, [this] {
        m_look.stop();
        m_printingSince.start();
        showPrinting(true);
        m_parts.foot->cancel()->setFocus();
    });
    connect(&m_flow, &PrintFlow::movedOn, this, &PrintDialog::updateFoot);
    connect(&m_flow, &PrintFlow::printed, this, &PrintDialog::takePrinted);
    connect(&m_flow, &PrintFlow::refused, this, &PrintDialog::takeRefusal);

    connect(m_session.get(), &DialogSession::printersChanged, this, [this] {
        showPrinters();
        m_parts.giveFirstFocus();
    });
    connect(m_session.get(), &DialogSession::conditionChanged, this, [this] {
        showPrinters();
        m_look.start();
    });
    connect(m_session.get(), &DialogSession::stageChanged, this, &PrintDialog::takeStage);
    connect(m_session.get(), &DialogSession::documentChanged, this, &PrintDialog::takeDocument);
    connect(m_session.get(), &DialogSession::documentsChanged, this, &PrintDialog::takeDocuments);
    connect(m_session.get(), &DialogSession::reloaded, this, &PrintDialog::takeSettings);
    connect(m_session.get(), &DialogSession::refused, this, [this](const Error &error) {
        printLine(stderr, QStringLiteral("kelvo-print: ") + error.text());
        end(error.code == Error::Code::Unsupported ? ExitStatus::WrongUsage
                                                   : ExitStatus::NotOffered);
    });

    connect(m_parts.printer, &PrinterPane::printersListed, m_session.get(),
            &DialogSession::lookAtPrinters);
    connect(m_parts.printer, &PrinterPane::printerChosen, this, [this](const QString &name) {
        commitTypedValues(this);
        if (const Extension *shown = panels())
            m_place = m_places.current(*shown);
        m_session->choosePrinter(name);
        showPrinters();
    });
    // Installed first, so asked last: the shell shows the tab and passes the command on.
    m_handler = installEventHandler(this, [this](const Event &event) -> OSStatus {
        if (event.kind == EventKind::ShowControl)
            showPanelOf(event.source);
        const bool isTab = event.kind == EventKind::Command
            && (event.command == kNextTab || event.command == kPreviousTab);
        if (!isTab || !panels())
            return eventNotHandledErr;
        m_parts.columns->showRight();
        return noErr;
    });
    connect(m_parts.printer, &PrinterPane::settingsEdited, this, &PrintDialog::changeSettings);
    connect(m_parts.documents, &DocumentBar::addRequested, this, &PrintDialog::chooseDocuments);
    connect(m_parts.documents, &DocumentBar::passwordRequested, this, &PrintDialog::askForPassword);
    connect(m_parts.printer, &PrinterPane::pageInSightWanted, this, [this] {
        m_parts.printer->setPageInSight(std::max(1, m_parts.preview->pageInSight()));
    });
    connect(m_parts.panelSwitch, &QTabBar::currentChanged, this, &PrintDialog::showPanelAt);
    connect(m_parts.options, &OptionsPane::built, this, [this] {
        m_parts.arrangeTabOrder();
        m_look.start(); // conflicts are marked there, too
    });
    connect(m_parts.waiting, &WaitingPane::retryRequested, m_session.get(), &DialogSession::retry);
    connect(m_parts.cautionBar, &CautionBar::fixRequested, this, &PrintDialog::fixConflicts);
    connect(m_parts.foot->details(), &QPushButton::clicked, this, &PrintDialog::showDetails);
    connect(m_parts.foot->timing(), &QPushButton::clicked, this, &PrintDialog::changeTiming);
    connect(m_parts.foot->cancelJob(), &QPushButton::clicked, &m_sent, &SentMessage::cancelJob);
    connect(m_parts.foot->help(), &QPushButton::clicked, this, &PrintDialog::showHelp);
    connect(m_parts.foot->savePdf(), &QPushButton::clicked, this, &PrintDialog::savePdf);
    connect(m_parts.foot->cancel(), &QPushButton::clicked, this, [this] {
        if (sendEvent({.kind = EventKind::ControlHit, .source = m_parts.foot->cancel()})
            == eventNotHandledErr)
            pressCancel();
    });
    connect(m_parts.foot->print(), &QPushButton::clicked, this, [this] {
        // What was typed last counts. Only when nobody takes the press does the
        // host print.
        m_flow.forgetRefusal();
        commitTypedValues(this);
        if (sendEvent({.kind = EventKind::ControlHit, .source = m_parts.foot->print()})
            == eventNotHandledErr)
            print();
    });
    takeStage();
    takeDocument();
    takeDocuments();
    setAcceptDrops(true);
}

PrintDialog::~PrintDialog()
{
    watchEvents({});
    disconnect(qApp, nullptr, this, nullptr); // the focus goes with the window, after the members
    m_session->stop();                        // before the panes that its panels stand in
}

void PrintDialog::addShortcuts()
{
    const auto add = [this](const QKeySequence &keys, auto &&action) {
        auto *shortcut = new QShortcut(keys, this);
        connect(shortcut, &QShortcut::activated, this, action);
        return shortcut;
    };
    for (int i = 0; i < 9; ++i)
        m_panelKeys.push_back(add(QKeySequence(int(Qt::ALT) | (int(Qt::Key_1) + i)), [this, i] {
            m_parts.columns->showRight();
            m_parts.panelSwitch->setCurrentIndex(i);
        }));
    m_tabKeys = {add(Qt::CTRL | Qt::Key_PageUp, [this] { sendCommand(this, kPreviousTab); }),
                 add(Qt::CTRL | Qt::Key_PageDown, [this] { sendCommand(this, kNextTab); })};
    add(Qt::CTRL | Qt::Key_O, [this] { chooseDocuments(); });
    add(Qt::CTRL | Qt::Key_P, [this] { pressPrint(); });
    add(Qt::Key_F1, [this] { showHelp(); });
    add(Qt::Key_F6, [this] { m_parts.goToRegion(true); });
    add(Qt::SHIFT | Qt::Key_F6, [this] { m_parts.goToRegion(false); });
    add(Qt::Key_F9, [this] { m_parts.columns->toggle()->click(); });
}

// A key that would do nothing is left to others.
void PrintDialog::enableShortcuts()
{
    const PanelSwitch *panelSwitch = m_parts.panelSwitch;
    const int offered = panelSwitch->isHidden() ? 0 : panelSwitch->count();
    for (std::size_t i = 0; i < m_panelKeys.size(); ++i)
        m_panelKeys[i]->setEnabled(int(i) < offered);
    for (QShortcut *key : m_tabKeys)
        key->setEnabled(panels() != nullptr);
}

void PrintDialog::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange && m_session)
        m_parts.fitToFont();
}

void PrintDialog::start()
{
    m_firstFrame.start();
    m_session->start();
    updatePrintButton();
    m_parts.giveFirstFocus();
    if (m_session->stage() == DialogSession::Stage::Searching)
        m_grace.start();
    else if (!m_finished)
        show();
}

void PrintDialog::setDriven(bool driven)
{
    m_isDriven = driven;
    // A script waits for the look after each line.
    m_flow.setQuestions(driven ? nullptr : this);
    m_look.setInterval(driven ? 0 : lookDelayMs);
    m_firstFrame.setInterval(driven ? 0 : firstFrameMs);
}

// ---- what the session tells

Extension *PrintDialog::panels() const
{
    return isReady() && m_session->hasPanels() ? m_extension.get() : nullptr;
}

QString PrintDialog::place() const
{
    const Extension *shown = panels();
    return shown ? m_places.current(*shown).text() : QString();
}

void PrintDialog::showPrinters()
{
    const PrinterSearch &search = m_session->search();
    if (search.hasQueue())
        m_parts.printer->setPrinters(search.printers(), search.name());
    else
        m_parts.printer->setDevice(search.name());
}

void PrintDialog::takeStage()
{
    Extension *shown = panels();
    m_parts.noteReady();
    const bool hasOptions = isReady() && m_session->hasOptions();
    if (hasOptions)
        m_parts.options->setNote(m_session->message().text);
    else
        m_parts.waiting->setMessage(m_session->message());
    m_parts.stack->setCurrentWidget(shown            ? m_parts.panes
                                        : hasOptions ? static_cast<QWidget *>(m_parts.options)
                                                     : m_parts.waiting);
    if (shown)
        m_places.goTo(m_place, *shown);
    m_places.showSwitch(shown);
    enableShortcuts();
    m_parts.printer->setSettingsEnabled(isReady());
    if (!isReady())
        m_parts.cautionBar->setContents({}, {});
    m_parts.fitToPanels();
    m_parts.columns->arrange();
    m_parts.arrangeTabOrder();
    updatePrintButton();
    updateFoot();
    m_parts.giveFirstFocus();
    if (m_grace.isActive() && m_session->stage() != DialogSession::Stage::Searching)
        m_grace.start(0); // when all that this stage brings is in place
}

// A window needs not say how a script is given the password.
QString PrintDialog::whyNotShown(const DocumentOpening &document)
{
    return document.asksForPassword() ? tr("“%1” is locked with a password.").arg(document.title())
                                      : document.problem();
}

void PrintDialog::takeDocument()
{
    updateTitle();
    const DocumentOpening &document = m_session->document();
    if (!document.document().isNull()) {
        m_parts.preview->setMessage({});
        m_parts.preview->setDocument(document.document());
    } else {
        m_parts.preview->setMessage(document.isPending() ? tr("Opening %1…").arg(document.title())
                                                         : whyNotShown(document));
        // Once the window is as it will be behind the question.
        if (document.asksForPassword() && !m_isDriven && m_passwordsAsked.insert(&document).second)
            QTimer::singleShot(0, this, &PrintDialog::askForPassword);
    }
    m_parts.documents->refresh();
    m_parts.arrangeTabOrder();
    // Its pages may be too large; the first look may still be to come.
    if (m_hasLooked)
        m_look.start();
    updatePreview();
    updatePrintButton();
    updateFoot();
}

void PrintDialog::takeDocuments()
{
    updateTitle();
    m_parts.documents->refresh();
    m_parts.arrangeTabOrder();
    updatePrintButton();
    updateFoot();
}

void PrintDialog::takeSettings()
{
    m_cautions.forget();
    m_parts.printer->dropTypedText();
    m_parts.printer->setSettings(m_session->job().settings(), m_session->job().ppd());
    if (!m_hasLooked) {
        // Conflicts take a reading of the whole description: the frame comes first.
        m_hasLooked = true;
        m_look.start();
        showWhatFollows();
        return;
    }
    m_look.stop();
    lookAtSettings();
}

void PrintDialog::updateTitle()
{
    setWindowTitle(tr("Print “%1”").arg(m_session->documents().title()));
}

void PrintDialog::updatePrintButton()
{
    const bool isBusy = m_flow.isPrinting() || m_sent.isTelling();
    m_parts.foot->print()->setEnabled(!isBusy && m_flow.whyNotReady().isEmpty());
    m_parts.foot->details()->setEnabled(!m_flow.isPrinting() && isReady());
    m_parts.foot->timing()->setEnabled(!isBusy && isReady());
    m_parts.foot->savePdf()->setEnabled(!isBusy && isReady()
                                        && !m_session->document().document().isNull());
}

void PrintDialog::updatePreview()
{
    if (m_session->document().document().isNull() || !isReady())
        return;
    SessionJob &job = m_session->job();
    const JobSettings settings = job.settings();
    DocumentPreview::Layout layout;
    if (auto pages = job.printedPages())
        layout.pages = std::move(pages).value();
    layout.orientation = settings.orientation;
    if (const PpdFile *ppd = job.ppd())
        layout.paper = paperSize(settings.paperName, *ppd).value_or(QSizeF());
    layout.twoSided = job.isTwoSided();
    const JobDescription &description = job.description();
    layout.special = description.sheets;
    layout.words = description.sheetWords;
    layout.imposition = description.imposition;
    layout.overlays = description.overlays;
    if (!layout.overlays.empty())
        m_parts.preview->setOverlayPainter(overlayPainter(BundleDrawer(m_bundle)));
    layout.leadingPage = description.leadingPage;
    if (layout.leadingPage)
        m_parts.preview->setLeadingPagePainter(leadingPagePainter(BundleDrawer(m_bundle)));
    m_parts.preview->setLayout(layout);
}

void PrintDialog::updateFoot()
{
    if (m_flow.isPrinting()) {
        m_parts.foot->setText(m_flow.onTheWay());
        return;
    }
    QString text;
    if (isReady() && !m_session->document().document().isNull()) {
        // Pages that are still to be typed are no mistake yet.
        const QString unfinished = unfinishedPages();
        const QString problem = unfinished.isEmpty() ? pagesProblem(*m_session) : unfinished;
        m_parts.printer->setPagesProblem(unfinished.isEmpty() ? problem : QString());
        text = problem.isEmpty() ? jobInShort(*m_session)
                                 : tr("Not to be printed like this. Pages: %1").arg(problem);
    }
    // Of several, it may be another one than is looked at.
    if (const DocumentOpening *faulty = m_session->documents().findFaulty();
        isReady() && faulty && m_session->documents().count() > 1)
        text = whyNotShown(*faulty);
    m_parts.foot->setText(text);
}

// ---- panels and settings

void PrintDialog::showPanelAt(int index)
{
    Extension *shown = panels();
    if (!shown || index < 0 || index >= int(shown->panels().size()))
        return;
    commitTypedValues(this);
    shown->show(index);
    m_parts.arrangeTabOrder();
    m_look.start();
}

void PrintDialog::showPanelOf(QWidget *control)
{
    if (!panels() || !m_places.goTo(control, *panels()))
        return;
    m_parts.columns->showRight();
    m_parts.scroll->ensureWidgetVisible(control);
}

void PrintDialog::changeSettings()
{
    if (!isReady())
        return;
    m_session->job().change(m_parts.printer->settings());
    m_look.start();
}

void PrintDialog::noteSet(QWidget *control)
{
    m_choices.note({.kind = EventKind::ControlHit, .source = control});
    m_look.start();
}

void PrintDialog::lookAtSettings()
{
    // While a dialog is open its panel is in the middle of something; the event
    // that opened it ends with the dialog, and is looked at then.
    if (m_flow.isPrinting() || m_sent.isTelling() || !isReady()
        || QApplication::activeModalWidget())
        return;
    m_session->job().writeAll();
    m_cautions.look();
    if (m_isDriven)
        m_cautions.sayWhatHappened();
    const ConflictReport conflicts = m_session->job().conflicts();
    m_parts.cautionBar->setContents(conflicts, m_cautions.all());
    m_parts.options->setConflicts(conflicts.options());
    showWhatFollows();
}

void PrintDialog::showWhatFollows()
{
    m_parts.printer->setSettings(m_session->job().settings(), m_session->job().ppd());
    m_presets->updateStar();
    m_parts.arrangeTabOrder();
    m_parts.scroll->updateScrollBar();
    updatePreview();
    updateFoot();
    updatePrintButton();
}

void PrintDialog::fixConflicts()
{
    SessionJob &job = m_session->job();
    commitTypedValues(this);
    job.writeAll();
    job.fix(job.conflicts());
    m_look.stop();
    lookAtSettings();
}

void PrintDialog::showDetails()
{
    commitTypedValues(this);
    runJobDetailsDialog(kelvo::jobInWords(*m_session, m_cautions), this);
}

void PrintDialog::changeTiming()
{
    commitTypedValues(this);
    SessionJob &job = m_session->job();
    const auto timing = askForJobTiming(job.timing(), this);
    if (!timing || !isReady())
        return;
    job.setTiming(*timing);
    m_look.start();
}

void PrintDialog::addDocuments(const QStringList &paths)
{
    // One that is on its way has been asked about.
    if (m_flow.isPrinting() || m_sent.isTelling() || m_finished)
        return;
    std::vector<DocumentSource> sources;
    for (const QString &path : paths)
        sources.push_back({path, {}});
    m_session->documents().add(std::move(sources));
}

void PrintDialog::chooseDocuments()
{
    if (m_flow.isPrinting() || m_sent.isTelling())
        return;
    const auto chooser = documentChooser({}, this);
    if (runChooser(*chooser) == QDialog::Accepted)
        addDocuments(chooser->selectedFiles());
}

void PrintDialog::askForPassword()
{
    if (m_finished || m_flow.isPrinting() || QApplication::activeModalWidget())
        return;
    runPasswordDialog(m_session->documents(), this);
}

void PrintDialog::showHelp()
{
    // The shown panel's own page; the contents where it has none.
    Event event;
    event.kind = EventKind::Command;
    event.command = fourCharCode("help");
    event.source = this;
    if (m_session->hasOptions())
        event.source = m_parts.options;
    else if (const Extension *shown = panels(); shown && shown->shownPanel() >= 0)
        event.source = shown->panels()[static_cast<std::size_t>(shown->shownPanel())].pane;
    if (sendEvent(event) == eventNotHandledErr)
        kelvo::showHelp(helpPageOf(event.source), this);
}

// ---- print

// The mark of a default button says what Return presses: another button that has the focus is
// that itself.
void PrintDialog::showDefaultButton()
{
    QPushButton *print = m_parts.foot->print();
    const auto *focus = qobject_cast<QPushButton *>(focusWidget());
    print->setDefault(!focus || focus == print);
}

QString PrintDialog::unfinishedPages() const
{
    return m_parts.printer->arePagesMissing() ? tr("Type the pages to print.") : QString();
}

void PrintDialog::pressPrint()
{
    m_flow.forgetRefusal();
    if (m_parts.foot->print()->isEnabled())
        m_parts.foot->print()->click();
    else if (!m_flow.isPrinting() && !m_finished && m_isDriven)
        m_flow.refuseUnready();
}

void PrintDialog::print()
{
    if (m_finished)
        return; // by a signal, while the press was asking something
    m_flow.press(unfinishedPages());
}

void PrintDialog::savePdf()
{
    m_flow.forgetRefusal();
    commitTypedValues(this);
    const SessionDocuments &documents = m_session->documents();
    QStringList files;
    for (int i = 0; i < documents.count(); ++i)
        files << documents.at(i).sourcePath();
    files.removeAll(QString());
    const auto chooser =
        pdfChooser(documents.shown().title(), documents.shown().sourcePath(), this);
    connect(chooser.get(), &QFileDialog::fileSelected, this, [this, files](const QString &path) {
        if (!m_finished)
            m_flow.pressTo(pdfDestination(path, files), unfinishedPages());
    });
    runChooser(*chooser);
}

bool PrintDialog::fixesConflicts(const QString &header, const ConflictReport &report)
{
    const int answer =
        CFUserNotificationDisplayAlert(NoticeLevel::Caution, header, conflictText(report),
                                       {tr("Fix and Print"), tr("Cancel")}, this);
    return answer == 1 && !m_finished;
}

bool PrintDialog::printsAnyway(const Caution &caution)
{
    const int answer =
        CFUserNotificationDisplayAlert(NoticeLevel::Caution, caution.text, caution.advice,
                                       {tr("Print Anyway"), tr("Cancel")}, this);
    m_look.start(); // what came meanwhile
    return answer == 1 && !m_finished;
}

void PrintDialog::showPrinting(bool printing)
{
    m_parts.setEnabled(!printing);
    m_parts.foot->setBusy(printing);
    updatePrintButton();
    updateFoot();
}

// The dialog stays, and a script reads the refusal.
void PrintDialog::takeRefusal(const PrintRefusal &refusal)
{
    if (refusal.step == PrintRefusal::Step::Pages)
        m_parts.printer->focusPages();
    m_look.start(); // what was typed last counts now, and conflicts may be found
    if (refusal.step == PrintRefusal::Step::Job) {
        showPrinting(false);
        m_parts.foot->print()->setFocus();
        if (m_isInterrupted) {
            end(refusal.status);
            return;
        }
        // What was left alone meanwhile: a fix before the print, say. The printer may have
        // become another one, too.
        m_look.stop();
        lookAtSettings();
        if (!m_isDriven)
            m_session->lookAtPrinter();
    }
    if (m_isDriven && m_flow.isAside()) // no line of a script waits for it
        printLine(stderr, QStringLiteral("kelvo-print: ") + refusal.problem);
    if (!m_isDriven)
        CFUserNotificationDisplayNotice(NoticeLevel::Stop, refusal.header, refusal.problem, {},
                                        this);
    if (refusal.step == PrintRefusal::Step::Job && !m_finished)
        m_look.start(); // what came while it was told
}

void PrintDialog::takePrinted(const QString &place)
{
    showPrinting(false);
    // The user may go on and print.
    if (m_flow.isAside() && !m_isInterrupted) {
        m_parts.foot->setText(m_flow.arrived(place));
        m_parts.foot->savePdf()->setFocus();
        return;
    }
    keepWhatWasUsed();
    if (m_isDriven || m_isInterrupted) {
        end(ExitStatus::Printed);
        return;
    }
    // Of several the desktop has no room to tell one by one.
    std::optional<SentJob> job;
    if (const auto &jobs = m_flow.sentJobs(); jobs.size() == 1 && jobs.back().name() == place)
        job = jobs.back();
    m_pointer = QCursor::pos();
    m_sent.tell(m_flow.arrived(place), m_session->documents().title(), job,
                m_session->search().timeoutMs());
    m_parts.setEnabled(false);
    updatePrintButton();
    m_parts.foot->cancel()->setText(tr("Close"));
    m_parts.foot->cancel()->setAccessibleName({});
    m_parts.foot->cancel()->setFocus();
}

// Of a job that went to a printer. The disk keeps nobody waiting: where it takes long, the end of
// the program does for a moment.
void PrintDialog::keepWhatWasUsed()
{
    if (!m_keepsLastUsed || m_isDriven || m_flow.sentJobs().empty())
        return;
    LastUsed used;
    used.printer = m_session->search().name();
    used.settings = lastUsedFrom(m_session->job().preset(), m_session->job().secretKeys());
    const SessionPresets &presets = m_presets->presets();
    used.beginning = presets.picked();
    if (const Preset *chosen = presets.chosen())
        used.preset = chosen->name;
    startBackgroundWork([used] {
        if (const auto kept = keepLastUsed(used); !kept)
            printLine(stderr,
                      QStringLiteral("kelvo-print: ")
                          + tr("What was printed with is not kept: %1").arg(kept.error().text()));
    });
}

// Whoever moves the pointer over the window, or has gone to the button with it or by keys, is
// about to do something with the job.
bool PrintDialog::isAttended()
{
    const QPushButton *cancelJob = m_parts.foot->cancelJob();
    const QPoint before = std::exchange(m_pointer, QCursor::pos());
    return cancelJob->hasFocus() || cancelJob->underMouse()
        || (before != m_pointer && frameGeometry().contains(m_pointer));
}

void PrintDialog::pressCancel()
{
    if (m_flow.isPrinting()) {
        // The outcome says whether it was in time.
        m_flow.cancel();
        m_parts.foot->setText(tr("Cancelling…"));
        return;
    }
    if (m_sent.isTelling()) {
        end(ExitStatus::Printed);
        return;
    }
    // After a print that failed, giving up is that failure.
    end(m_flow.refusal() ? m_flow.refusal()->status : ExitStatus::Cancelled);
}

void PrintDialog::interrupt()
{
    m_isInterrupted = true;
    if (!m_flow.isPrinting()) {
        end(m_sent.isTelling() ? ExitStatus::Printed : ExitStatus::Cancelled);
        return;
    }
    m_flow.interrupt();
}

void PrintDialog::end(ExitStatus status)
{
    if (m_finished)
        return;
    m_finished = status;
    m_look.stop();
    m_grace.stop();
    m_firstFrame.stop();
    m_watch.stop();
    // A panel that is asking the user something, or shows a menu, is not ended below its
    // own hands, but with this window.
    if (!QApplication::activeModalWidget() && !QApplication::activePopupWidget())
        m_session->stop();
    hide();
    emit ended(status);
}

void PrintDialog::closeEvent(QCloseEvent *event)
{
    event->ignore(); // end() closes it
    m_parts.foot->cancel()->click();
}

void PrintDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        m_parts.foot->cancel()->click();
        return;
    }
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || event->modifiers() & ~Qt::KeypadModifier)
        QWidget::keyPressEvent(event);
    else if (!event->isAutoRepeat()) // held down, it would go on with whatever comes next
        pressReturn();
}

// As in every dialog: the button that has the focus, else the default one.
void PrintDialog::pressReturn()
{
    // Cancel has the focus while there is nothing else to give it to. The second half of a double
    // press on Print is not meant for it, nor is what comes before the printer is there.
    const bool isMeantForPrint = m_flow.isPrinting()
        ? !m_printingSince.hasExpired(QApplication::doubleClickInterval())
        : m_session->stage() == DialogSession::Stage::Searching;
    if (isMeantForPrint && focusWidget() == m_parts.foot->cancel())
        return;
    if (!pressFocusedButton(this))
        pressPrint();
}

// ---- how it is laid out

void PrintDialog::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    // The frame that shows the panels, or why there are none, is on its way.
    if (m_firstFrame.isActive() && m_session->stage() != DialogSession::Stage::Searching)
        m_firstFrame.start(0);
}

void PrintDialog::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_parts.noteShown();
    if (!m_isDriven && m_session->search().hasQueue())
        m_watch.start();
}

namespace {

// The files that are dragged; none where there is anything else among them.
QStringList filesOf(const QMimeData &dragged)
{
    QStringList paths;
    const auto urls = dragged.urls();
    for (const QUrl &url : urls) {
        if (!url.isLocalFile())
            return {};
        paths << url.toLocalFile();
    }
    return paths;
}

} // namespace

void PrintDialog::dragEnterEvent(QDragEnterEvent *event)
{
    if (!filesOf(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void PrintDialog::dropEvent(QDropEvent *event)
{
    addDocuments(filesOf(*event->mimeData()));
    event->acceptProposedAction();
}

// ---- what scripts ask

bool PrintDialog::isIdle() const
{
    const bool isUnderWay = !m_finished
        && (m_session->stage() == DialogSession::Stage::Searching
            || m_session->documents().isPending() || (m_isDriven && m_session->search().isLooking())
            || m_look.isActive() || m_firstFrame.isActive()
            || (m_flow.isPrinting() && m_flow.isAside()));
    return !isUnderWay && m_parts.isAtRest();
}

bool PrintDialog::isDrawing(const QWidget *part) const
{
    const DocumentPreview *preview = m_parts.preview;
    return part && (part == preview || part->isAncestorOf(preview) || preview->isAncestorOf(part))
        && preview->isVisible() && preview->isDrawing();
}

void PrintDialog::drawPutOff()
{
    m_parts.preview->drawPutOff();
}

// An error is the printer's: there are none to be had.
Result<void> PrintDialog::findPanels() const
{
    const SessionMessage &message = m_session->message();
    if (m_session->stage() == DialogSession::Stage::Stuck)
        return Error{Error::Code::Unreachable, message.header, message.text};
    return {};
}

Result<void> PrintDialog::showPanel(const QString &name)
{
    if (auto found = findPanels(); !found)
        return found;
    Extension *shown = panels();
    if (!shown)
        return Error{Error::Code::NotFound, name, tr("there are no panels")};
    m_parts.columns->showRight();
    return m_places.showPanel(*shown, name);
}

Result<void> PrintDialog::showTab(int tab)
{
    if (auto found = findPanels(); !found)
        return found;
    m_parts.columns->showRight();
    return m_places.showTab(tab);
}

QString PrintDialog::placeOf(const QWidget *control) const
{
    if (m_parts.columns->left()->isAncestorOf(control))
        return tr("the left column");
    const Extension *shown = panels();
    return shown ? PanelPlaces::placeOf(control, *shown) : QString();
}

QString PrintDialog::placeOfUnshown(const inspector::ControlName &control) const
{
    const Extension *shown = panels();
    return shown ? PanelPlaces::placeOf(control, *shown) : QString();
}

void PrintDialog::sync(SyncDirection direction)
{
    if (direction == kSyncWrite)
        m_session->job().writeAll();
    else
        m_session->job().readAll();
}

const PrintSession &PrintDialog::sessionForReading()
{
    if (isReady())
        m_session->job().writeAll();
    return m_session->job().tickets();
}

QString PrintDialog::jobInWords()
{
    if (!isReady())
        return {};
    commitTypedValues(this);
    return kelvo::jobInWords(*m_session, m_cautions).asText();
}

QString PrintDialog::lastPrintProblem() const
{
    return m_flow.refusal() ? m_flow.refusal()->problem : QString();
}

ExitStatus PrintDialog::lastPrintStatus() const
{
    return m_flow.refusal() ? m_flow.refusal()->status : ExitStatus::Cancelled;
}

std::optional<QString> PrintDialog::secret(const QString &name) const
{
    const auto found = m_secrets.constFind(name);
    if (found == m_secrets.cend())
        return std::nullopt;
    return *found;
}

TicketFile PrintDialog::withSecretsMasked(TicketFile file) const
{
    return masked(std::move(file), m_session->job().secretKeys());
}

QStringList PrintDialog::secretValues()
{
    QStringList values = m_secrets.values();
    values += kelvo::secretValues(m_session->job().ticket(), m_session->job().secretKeys());
    return values;
}

} // namespace kelvo
