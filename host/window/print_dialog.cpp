#include "print_dialog.h"

#include "caution_bar.h"
#include "control.h"
#include "device_offers.h"
#include "document_preview.h"
#include "focus_regions.h"
#include "help_window.h"
#include "job_details_dialog.h"
#include "modal_dialog.h"
#include "notice.h"
#include "page_ranges.h"
#include "pane_scroll.h"
#include "panel_switch.h"
#include "ppd_words.h"
#include "preset_menu.h"
#include "printer_pane.h"
#include "sheet_sequence.h"
#include "spin_field.h"
#include "terminal.h"
#include "ticket_places.h"
#include "tool_tip.h"
#include "waiting_pane.h"
#include "window_columns.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace kelvo {

namespace {

// Logical pixels at the usual font; they grow with a larger one.
constexpr QSize paneSize(540, 491);
constexpr QSize windowSize(900, 660);
constexpr int lowestWindow = 420;

constexpr int margin = 10;
constexpr int gap = 6; // between rows

// So long after the user's last change, settings are written and checked.
constexpr int lookDelayMs = 150;

// So long the window waits for a print server that is near: no message that is
// gone before it can be read, and one frame less.
constexpr int graceMs = 40;

// So long scripts wait for panels of hidden tabs; one may fail to be built.
constexpr int panelsWaitMs = 1000;
// So long the document waits for the first frame with the printer's settings.
constexpr int firstFrameMs = 300;
// So long an interrupted job may still tell what became of it.
constexpr int interruptMs = 5000;
constexpr int activationWaitMs = 1000; // a window manager takes less
// So often a window looks whether its printer goes on.
constexpr int watchMs = 5000;

constexpr OSType kNextTab = fourCharCode("KFup");
constexpr OSType kPreviousTab = fourCharCode("KFdn");

// What a window may take of its screen. Without a screen that anybody sees the
// window is as large as it likes: scripts meet the same window everywhere.
QSize availableSize(const QWidget *window)
{
    if (QGuiApplication::platformName() == QLatin1String("offscreen") || !window->screen())
        return {QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
    // A window's frame is known only once it is shown.
    constexpr int usualFrame = 40;
    QMargins frame;
    if (const QWindow *shown = window->windowHandle())
        frame = shown->frameMargins();
    const int bars = std::max(frame.top() + frame.bottom(), usualFrame);
    return window->screen()->availableSize() - QSize(frame.left() + frame.right(), bars);
}

QPushButton *button(const char *name, const QString &text, QWidget *parent)
{
    auto *made = new QPushButton(text, parent);
    made->setObjectName(QString::fromLatin1(name));
    // Return presses no button but Print.
    made->setAutoDefault(false);
    return made;
}

} // namespace

PrintDialog::PrintDialog(DialogOptions options)
    : m_options(options)
    , m_columns(new WindowColumns(this))
    , m_switch(new PanelSwitch(m_columns->right()))
    , m_places(this, m_switch)
    , m_scroll(new PaneScroll(m_columns->right()))
    , m_stack(new QStackedWidget)
    , m_waiting(new WaitingPane(m_stack))
    , m_panes(new QWidget(m_stack))
    , m_session(std::make_unique<DialogSession>(std::move(options), m_panes))
    , m_cautions(*m_session, m_session->hasQueue() && !m_options.line.toFolder)
    , m_presets(new PresetMenu(*m_session, m_options.line.preset.value_or(QString())))
    , m_printer(new PrinterPane(m_presets, m_columns->left()))
    , m_preview(new DocumentPreview(m_columns->left()))
    , m_cautionBar(new CautionBar(this))
    , m_foot(new QLabel(this))
    , m_progress(new QProgressBar(this))
    , m_details(button("whatWillBeSent", tr("&What Will Be Sent…"), this))
    , m_help(button("help", tr("&Help"), this))
    , m_cancel(button("cancel", tr("Cancel"), this))
    , m_print(button("print", tr("&Print"), this))
{
    m_options.directory.reset(); // the session's alone, which ends it
    setObjectName(QStringLiteral("printDialog"));
    setPrintWindow(this);
    setWindowButtons(this, m_print, m_cancel);
    buildWindow();
    addShortcuts();
    fitToFont();

    m_look.setSingleShot(true);
    m_look.setInterval(lookDelayMs);
    connect(&m_look, &QTimer::timeout, this, &PrintDialog::lookAtSettings);
    m_grace.setSingleShot(true);
    m_grace.setInterval(graceMs);
    connect(&m_grace, &QTimer::timeout, this, &QWidget::show);
    m_firstFrame.setSingleShot(true);
    m_firstFrame.setInterval(firstFrameMs);
    connect(&m_firstFrame, &QTimer::timeout, this, [this] {
        m_session->openTheDocument();
        emit begun();
    });
    m_watch.setInterval(watchMs);
    connect(&m_watch, &QTimer::timeout, m_session.get(), &DialogSession::lookAtPrinter);
    connect(&m_sent, &SentMessage::told, this, [this] { end(ExitStatus::Printed); });
    watchEvents([this](const Event &event) {
        if (m_session->stage() != DialogSession::Stage::Ready)
            return;
        noteChoice(event);
        m_look.start();
    });

    connect(m_session.get(), &DialogSession::printersChanged, this, [this] {
        if (m_session->hasQueue())
            m_printer->setPrinters(m_session->printers(), m_session->printerName());
        else
            m_printer->setDevice(m_session->printerName());
        giveFirstFocus();
    });
    connect(m_session.get(), &DialogSession::conditionChanged, this, [this] {
        m_printer->setPrinters(m_session->printers(), m_session->printerName());
        m_look.start();
    });
    connect(m_session.get(), &DialogSession::stageChanged, this, &PrintDialog::takeStage);
    connect(m_session.get(), &DialogSession::documentChanged, this, &PrintDialog::takeDocument);
    connect(m_session.get(), &DialogSession::reloaded, this, &PrintDialog::takeSettings);
    connect(m_session.get(), &DialogSession::refused, this,
            [this](ExitStatus status, const QString &message) {
                printLine(stderr, QStringLiteral("kelvo-print: ") + message);
                end(status);
            });

    connect(m_printer, &PrinterPane::printerChosen, this, [this](const QString &name) {
        commitTypedValues(this);
        if (const Extension *panels = m_session->panels())
            m_place = m_places.current(*panels);
        m_session->choosePrinter(name);
        m_printer->setPrinters(m_session->printers(), m_session->printerName());
    });
    // Installed first, so asked last: the shell shows the tab and passes the command on.
    m_handler = installEventHandler(this, [this](const Event &event) -> OSStatus {
        const bool isTab = event.kind == EventKind::Command
            && (event.command == kNextTab || event.command == kPreviousTab);
        return isTab && m_session->panels() ? noErr : eventNotHandledErr;
    });
    connect(m_printer, &PrinterPane::settingsEdited, this, &PrintDialog::changeSettings);
    connect(m_switch, &QTabBar::currentChanged, this, &PrintDialog::showPanelAt);
    connect(m_waiting, &WaitingPane::retryRequested, m_session.get(), &DialogSession::retry);
    connect(m_cautionBar, &CautionBar::fixRequested, this, &PrintDialog::fixConflicts);
    connect(m_details, &QPushButton::clicked, this, &PrintDialog::showDetails);
    connect(m_help, &QPushButton::clicked, this, &PrintDialog::showHelp);
    connect(m_cancel, &QPushButton::clicked, this, [this] {
        if (sendEvent({.kind = EventKind::ControlHit, .source = m_cancel}) == eventNotHandledErr)
            pressCancel();
    });
    connect(m_print, &QPushButton::clicked, this, [this] {
        // What was typed last counts. Only when nobody takes the press does the
        // host print.
        m_printProblem.clear();
        commitTypedValues(this);
        if (sendEvent({.kind = EventKind::ControlHit, .source = m_print}) == eventNotHandledErr)
            print();
    });
    takeStage();
    takeDocument();
    updateTitle();
}

PrintDialog::~PrintDialog()
{
    watchEvents({});
    m_run.reset();
    m_session.reset(); // before the panes that its panels stand in
}

void PrintDialog::buildWindow()
{
    m_preview->setObjectName(QStringLiteral("preview"));
    m_scroll->setObjectName(QStringLiteral("panels"));
    m_switch->setObjectName(QStringLiteral("panelSwitch"));
    m_switch->setAccessibleName(tr("Panels"));
    m_switch->hide();
    auto *panesLayout = new QVBoxLayout(m_panes);
    panesLayout->setContentsMargins(0, 0, 0, 0);
    m_stack->addWidget(m_waiting);
    m_stack->addWidget(m_panes);
    m_scroll->setWidget(m_stack);
    m_columns->setParts(m_printer, m_preview, m_switch, m_scroll);

    m_foot->setObjectName(QStringLiteral("summary"));
    m_foot->setTextFormat(Qt::PlainText);
    m_foot->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_progress->setObjectName(QStringLiteral("progress"));
    m_progress->setRange(0, 0);
    m_progress->setTextVisible(false);
    m_progress->setMaximumWidth(140);
    m_progress->setMaximumHeight(8);
    m_progress->setAccessibleName(tr("Printing"));
    m_progress->hide();
    m_print->setAutoDefault(true);
    m_cancel->setAccessibleName(tr("Cancel printing"));

    auto *footRow = new QHBoxLayout;
    footRow->setSpacing(gap);
    footRow->addWidget(m_columns->toggle());
    footRow->addWidget(m_foot, 1);
    footRow->addWidget(m_progress);
    footRow->addWidget(m_details);
    auto *buttonRow = new QHBoxLayout;
    buttonRow->setSpacing(8);
    buttonRow->addWidget(m_help);
    buttonRow->addStretch(1);
    buttonRow->addWidget(m_cancel);
    buttonRow->addWidget(m_print);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(gap);
    layout->addWidget(m_columns, 1);
    layout->addWidget(m_cautionBar);
    layout->addLayout(footRow);
    layout->addLayout(buttonRow);
}

void PrintDialog::addShortcuts()
{
    const auto add = [this](const QKeySequence &keys, auto &&action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    for (int i = 0; i < 9; ++i)
        add(QKeySequence(int(Qt::ALT) | (int(Qt::Key_1) + i)), [this, i] {
            if (m_switch->isVisibleTo(this) && i < m_switch->count())
                m_switch->setCurrentIndex(i);
        });
    add(Qt::CTRL | Qt::Key_PageUp, [this] { sendCommand(this, kPreviousTab); });
    add(Qt::CTRL | Qt::Key_PageDown, [this] { sendCommand(this, kNextTab); });
    add(Qt::CTRL | Qt::Key_P, [this] { pressPrint(); });
    add(Qt::Key_F1, [this] { showHelp(); });
    add(Qt::Key_F6, [this] { goToRegion(true); });
    add(Qt::SHIFT | Qt::Key_F6, [this] { goToRegion(false); });
    add(Qt::Key_F9, [this] { m_columns->toggle()->click(); });
}

// Sizes that a layout cannot know: they follow the font.
void PrintDialog::fitToFont()
{
    const double scale = fontScale(this);
    m_stack->setMinimumSize(paneSize * scale);
    // Its words end too near to the frame in some styles.
    m_details->setMinimumWidth(m_details->sizeHint().width() + fontMetrics().height());
    fitToPanels();
    resize((windowSize * scale).boundedTo(availableSize(this)));
}

void PrintDialog::fitToPanels()
{
    const QSize smallest(m_columns->smallestWidth() + 2 * margin, lowestWindow);
    setMinimumSize(smallest.boundedTo(availableSize(this)));
}

void PrintDialog::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange && m_session)
        fitToFont();
}

void PrintDialog::start()
{
    m_firstFrame.start();
    m_session->start();
    updatePrintButton();
    giveFirstFocus();
    if (m_session->stage() == DialogSession::Stage::Searching)
        m_grace.start();
    else if (!m_finished)
        show();
}

void PrintDialog::setDriven(bool driven)
{
    m_isDriven = driven;
    // A script waits for the look after each line.
    m_look.setInterval(driven ? 0 : lookDelayMs);
    m_firstFrame.setInterval(driven ? 0 : firstFrameMs);
}

// ---- what the session tells

void PrintDialog::takeStage()
{
    const bool isReady = m_session->stage() == DialogSession::Stage::Ready;
    Extension *panels = isReady ? m_session->panels() : nullptr;
    m_sinceReady.start();
    m_waiting->setMessage(m_session->message());
    m_stack->setCurrentWidget(panels ? m_panes : m_waiting);
    if (panels)
        m_places.goTo(m_place, *panels);
    {
        const QSignalBlocker silence(m_switch);
        QStringList titles;
        if (panels) {
            for (const Extension::Panel &panel : panels->panels())
                titles.append(QString(panel.title).replace(u'&', QStringLiteral("&&")));
        }
        m_switch->setTitles(titles);
        m_switch->setValue(panels ? panels->shownPanel() + 1 : 0);
        m_switch->setVisible(titles.size() > 1);
    }
    m_printer->setSettingsEnabled(isReady);
    if (!isReady)
        m_cautionBar->setContents({}, {});
    fitToPanels();
    m_columns->arrange();
    arrangeTabOrder();
    updatePrintButton();
    updateFoot();
    giveFirstFocus();
    if (m_grace.isActive() && m_session->stage() != DialogSession::Stage::Searching)
        m_grace.start(0); // when all that this stage brings is in place
}

void PrintDialog::takeDocument()
{
    updateTitle();
    if (!m_session->document().isNull()) {
        m_preview->setMessage({});
        m_preview->setDocument(m_session->document());
    } else {
        m_preview->setMessage(m_session->isDocumentPending()
                                  ? tr("Opening %1…").arg(m_session->title())
                                  : m_session->documentProblem());
    }
    // Its pages may be too large; the first look may still be to come.
    if (m_hasLooked)
        m_look.start();
    updatePreview();
    updatePrintButton();
    updateFoot();
}

void PrintDialog::takeSettings()
{
    m_cautions.forget();
    m_printer->dropTypedText();
    m_printer->setSettings(m_session->settings(), m_session->ppd().get());
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
    setWindowTitle(tr("Print “%1”").arg(m_session->title()));
}

void PrintDialog::updatePrintButton()
{
    const bool mayPrint = !m_run && !m_sent.isTelling() && findReasonNotToPrint().isEmpty();
    m_print->setEnabled(mayPrint);
    m_details->setEnabled(!m_run && m_session->stage() == DialogSession::Stage::Ready);
}

bool PrintDialog::isTwoSided() const
{
    return kelvo::isTwoSided(m_session->tickets().printSettings().ppdChoices,
                             m_session->ppd().get());
}

void PrintDialog::updatePreview()
{
    if (m_session->document().isNull() || m_session->stage() != DialogSession::Stage::Ready)
        return;
    const JobSettings settings = m_session->settings();
    DocumentPreview::Layout layout;
    const auto runs = pageRunsFrom(settings.pageRanges, m_session->document().pageCount());
    if (runs)
        layout.pages = runs.value();
    layout.orientation = settings.orientation;
    if (const auto &ppd = m_session->ppd())
        layout.paper = paperSize(settings.paperName, *ppd).value_or(QSizeF());
    layout.twoSided = isTwoSided();
    const JobDescription &job = m_session->description();
    layout.special = job.sheets;
    layout.words = job.sheetWords;
    m_preview->setLayout(layout);
}

void PrintDialog::updateFoot()
{
    if (m_run) {
        m_foot->setText(m_options.line.toFolder
                            ? tr("Writing to %1…").arg(*m_options.line.toFolder)
                            : tr("Sending to %1…").arg(m_session->printerName()));
        return;
    }
    QString text;
    if (m_session->stage() == DialogSession::Stage::Ready && !m_session->document().isNull()) {
        const JobSettings settings = m_session->settings();
        const auto runs = pageRunsFrom(settings.pageRanges, m_session->document().pageCount());
        const QString problem = findPagesProblem();
        // Pages that are still to be typed are no mistake yet.
        m_printer->setPagesProblem(m_printer->arePagesMissing() ? QString() : problem);
        if (runs && problem.isEmpty()) {
            const int pages = pageCount(runs.value());
            const SheetSequence sequence(pages, isTwoSided(), m_session->description().sheets);
            text = shortSummary(m_session->ticket(), settings, pages, sequence.sheets(),
                                m_session->secretKeys());
        } else {
            text = tr("Not to be printed like this. Pages: %1").arg(problem);
        }
    }
    m_foot->setText(text);
    m_foot->setToolTip(plainToolTip(text));
}

// ---- panels and settings

void PrintDialog::showPanelAt(int index)
{
    Extension *panels = m_session->panels();
    if (!panels || index < 0 || index >= int(panels->panels().size()))
        return;
    commitTypedValues(this);
    panels->show(index);
    arrangeTabOrder();
    m_look.start();
}

void PrintDialog::changeSettings()
{
    if (m_session->stage() != DialogSession::Stage::Ready)
        return;
    m_session->change(m_printer->settings());
    m_look.start();
}

// What is set in a dialog above this one counts once that is closed with OK.
void PrintDialog::noteChoice(const Event &event)
{
    if (event.kind == EventKind::FocusChanged)
        return;
    const TicketPlaces places = ticketPlacesOf(event.source, event.command);
    QWidget *window = event.source->window();
    if (window == this) {
        m_chosenInDialogs.clear();
        m_session->choose(places);
        return;
    }
    m_chosenInDialogs.insert(places.begin(), places.end());
    const auto *dialog = qobject_cast<QDialog *>(window);
    if (dialog && !dialog->isVisible() && dialog->result() == QDialog::Accepted)
        m_session->choose(std::exchange(m_chosenInDialogs, {}));
}

void PrintDialog::noteSet(QWidget *control)
{
    noteChoice({.kind = EventKind::ControlHit, .source = control});
    m_look.start();
}

void PrintDialog::lookAtSettings()
{
    // While a dialog is open its panel is in the middle of something; the event
    // that opened it ends with the dialog, and is looked at then.
    if (m_run || m_sent.isTelling() || m_session->stage() != DialogSession::Stage::Ready
        || QApplication::activeModalWidget())
        return;
    m_session->writeAll();
    findCautions();
    if (m_isDriven)
        m_cautions.sayWhatHappened();
    m_cautionBar->setContents(m_session->conflicts(), m_cautions.all());
    showWhatFollows();
}

void PrintDialog::showWhatFollows()
{
    m_printer->setSettings(m_session->settings(), m_session->ppd().get());
    m_presets->updateStar();
    arrangeTabOrder();
    m_scroll->updateScrollBar();
    updatePreview();
    updateFoot();
    updatePrintButton();
}

void PrintDialog::findCautions()
{
    const Extension *panels = m_session->panels();
    m_cautions.look(panels ? m_places.current(*panels).text() : QString());
}

void PrintDialog::fixConflicts()
{
    commitTypedValues(this);
    m_session->writeAll();
    m_session->fix(m_session->conflicts());
    m_look.stop();
    lookAtSettings();
}

JobWords PrintDialog::words()
{
    commitTypedValues(this);
    m_session->writeAll();
    JobWords words =
        describeJob(m_session->ticket(), m_session->settings(), m_session->ppd().get(),
                    m_session->secretKeys(), m_session->description(), m_session->missing());
    findCautions();
    if (m_options.document && !m_session->documentProblem().isEmpty())
        words.cautions << m_session->documentProblem();
    const ConflictReport conflicts = m_session->conflicts();
    for (const Conflict &conflict : conflicts.conflicts)
        words.cautions << conflict.sentence;
    words.cautions += m_cautions.inWords();
    return words;
}

void PrintDialog::showDetails()
{
    runJobDetailsDialog(words(), this);
}

void PrintDialog::showHelp()
{
    // The shown panel's own page; the contents where it has none.
    Event event;
    event.kind = EventKind::Command;
    event.command = fourCharCode("help");
    event.source = this;
    if (const Extension *panels = m_session->panels(); panels && panels->shownPanel() >= 0)
        event.source = panels->panels()[static_cast<std::size_t>(panels->shownPanel())].pane;
    if (sendEvent(event) == eventNotHandledErr)
        kelvo::showHelp({}, this);
}

// ---- print

QString PrintDialog::findReasonNotToPrint() const
{
    if (m_session->stage() == DialogSession::Stage::Searching)
        return tr("The printer's settings have not come yet.");
    if (m_session->stage() == DialogSession::Stage::Stuck)
        return m_session->message().header + QStringLiteral(". ") + m_session->message().text;
    if (m_session->isDocumentPending())
        return tr("The document is not open yet.");
    if (m_session->document().isNull())
        return m_session->documentProblem();
    // That nobody has named this printer is told first.
    const bool isNamed = !m_isDriven || !m_session->isPrinterAssumed();
    const Caution *refused = isNamed ? m_cautions.find(Caution::Weight::Refused) : nullptr;
    return refused ? refused->sentences() : QString();
}

QString PrintDialog::findPagesProblem() const
{
    if (m_printer->arePagesMissing())
        return tr("Type the pages to print.");
    const int count = m_session->document().pageCount();
    const auto runs = pageRunsFrom(m_session->settings().pageRanges, count);
    if (runs)
        return {};
    const QString detail = runs.error().detail;
    return detail.left(1).toUpper() + detail.mid(1) + u'.';
}

void PrintDialog::pressPrint()
{
    m_printProblem.clear();
    if (m_print->isEnabled()) {
        m_print->click();
        return;
    }
    if (m_run || m_finished || !m_isDriven)
        return;
    const ExitStatus status = m_session->stage() == DialogSession::Stage::Ready
        ? ExitStatus::Failed
        : ExitStatus::NoDestination;
    m_printStatus = status;
    m_printProblem = findReasonNotToPrint();
}

// A print that did not go out. The dialog stays; a script reads the problem.
void PrintDialog::refusePrint(ExitStatus status, const QString &header, const QString &problem)
{
    m_printStatus = status;
    m_printProblem = problem;
    if (!m_isDriven)
        CFUserNotificationDisplayNotice(NoticeLevel::Stop, header, problem, {}, this);
}

bool PrintDialog::endsInConflict()
{
    const ConflictReport report = m_session->conflicts();
    if (report.isEmpty())
        return false;
    const QString header = tr("These settings cannot be used together");
    if (!m_isDriven && !report.fix.isEmpty()) {
        const int answer =
            CFUserNotificationDisplayAlert(NoticeLevel::Caution, header, conflictText(report),
                                           {tr("Fix and Print"), tr("Cancel")}, this);
        if (answer == 1) {
            m_session->fix(report);
            m_session->writeAll();
            if (m_session->conflicts().isEmpty())
                return false;
        } else {
            return true;
        }
    }
    m_look.start();
    refusePrint(ExitStatus::NotOffered, header,
                conflictSentences(report, m_isDriven ? u' ' : u'\n'));
    return true;
}

// What the user would want to know before, not after. A driven run is told, and goes on.
bool PrintDialog::isHeldBack()
{
    findCautions();
    if (const Caution *refused = m_cautions.find(Caution::Weight::Refused)) {
        refusePrint(ExitStatus::Failed, refused->text, refused->advice);
        return true;
    }
    if (m_isDriven) {
        m_cautions.sayAll();
        return false;
    }
    const Caution *asked = m_cautions.find(Caution::Weight::Asked);
    if (!asked)
        return false;
    const int answer = CFUserNotificationDisplayAlert(
        NoticeLevel::Caution, asked->text, asked->advice, {tr("Print Anyway"), tr("Cancel")}, this);
    m_look.start(); // what came meanwhile
    return m_finished || answer != 1;
}

void PrintDialog::print()
{
    if (m_finished)
        return; // by a signal, while the press was asking something
    const QString notPrinted = tr("“%1” was not printed").arg(m_session->title());
    if (!m_session->hasQueue() && !m_options.line.toFolder) {
        refusePrint(ExitStatus::NoDestination, notPrinted,
                    tr("“%1” is a device without a queue. Start kelvo-print with --to DIR to write "
                       "the job into a folder, or with -d to print to a queue.")
                        .arg(m_session->printerName()));
        return;
    }
    if (m_isDriven && m_session->isPrinterAssumed() && !m_options.line.toFolder) {
        refusePrint(ExitStatus::NoDestination, notPrinted,
                    tr("No printer was named, and there is no default printer. Name one with -d; "
                       "--list-printers says which there are."));
        return;
    }
    m_session->writeAll();
    if (const QString problem = findPagesProblem(); !problem.isEmpty()) {
        m_printer->focusPages();
        refusePrint(ExitStatus::WrongUsage, notPrinted, tr("Pages: %1").arg(problem));
        return;
    }
    if (endsInConflict() || isHeldBack())
        return;
    if (const auto written = writeSettingsOut(); !written) {
        refusePrint(ExitStatus::Failed, notPrinted,
                    tr("The settings could not be written. %1").arg(written.error().text()));
        return;
    }

    PrintRun::Order order;
    order.request.document = m_session->document();
    order.request.ticket = m_session->ticket();
    order.request.settings = m_session->settings();
    order.request.secretKeys = m_session->secretKeys();
    order.request.title = m_session->title();
    for (const Printer &printer : m_session->printers()) {
        if (printer.name == m_session->printerName())
            order.request.queueDefaults = printer.defaults;
    }
    order.ppd = m_session->ppd();
    order.queue = m_session->printerName();
    order.folder = m_options.line.toFolder.value_or(QString());
    order.timeoutMs = m_options.line.timeoutSeconds * 1000;
    m_run = std::make_unique<PrintRun>();
    connect(m_run.get(), &PrintRun::finished, this, &PrintDialog::takeOutcome);
    m_run->start(std::move(order));

    m_look.stop();
    m_columns->setEnabled(false);
    m_cautionBar->setEnabled(false);
    m_progress->show();
    updatePrintButton();
    updateFoot();
    m_cancel->setFocus();
}

void PrintDialog::takeOutcome(const PrintOutcome &outcome)
{
    m_run.release()->deleteLater();
    m_columns->setEnabled(true);
    m_cautionBar->setEnabled(true);
    m_progress->hide();
    updatePrintButton();
    updateFoot();
    m_print->setFocus();

    if (outcome.status == ExitStatus::Printed) {
        for (const QString &setting : m_session->missing())
            printLine(stderr,
                      QStringLiteral("kelvo-print: %1: not sent, %2")
                          .arg(setting, whyNotSent(m_session->ppd().get())));
        for (const QString &setting : m_session->untold())
            printLine(stderr,
                      QStringLiteral("kelvo-print: %1: not sent, this printer reads no "
                                     "tickets")
                          .arg(setting));
        printLine(stdout, outcome.place + u' ' + m_session->title());
        if (m_isDriven || m_isInterrupted)
            end(ExitStatus::Printed);
        else
            tellSent(outcome.place);
        return;
    }
    if (m_isInterrupted) {
        end(outcome.status);
        return;
    }
    // What was left alone meanwhile: a fix before the print, say. The printer may have
    // become another one, too.
    m_look.stop();
    lookAtSettings();
    if (!m_isDriven)
        m_session->lookAtPrinter();
    refusePrint(outcome.status, tr("“%1” was not printed").arg(m_session->title()),
                outcome.problem);
    if (!m_finished)
        m_look.start(); // what came while it was told
}

void PrintDialog::tellSent(const QString &place)
{
    const QString text = m_options.line.toFolder ? tr("Written to %1").arg(place)
                                                 : tr("%1 sent", "a job").arg(place);
    m_sent.tell(text, m_session->title());
    m_columns->setEnabled(false);
    m_cautionBar->setEnabled(false);
    updatePrintButton();
    m_foot->setText(text);
    m_cancel->setText(tr("Close"));
    m_cancel->setFocus();
}

Result<void> PrintDialog::writeSettingsOut()
{
    const CommandLine &line = m_options.line;
    if (m_session->stage() != DialogSession::Stage::Ready || !(line.ticketOut || line.presetOut))
        return {};
    m_session->writeAll();
    auto written = line.ticketOut ? writeTicketFile(*line.ticketOut, m_session->ticketToKeep())
                                  : Result<void>();
    if (!written || !line.presetOut)
        return written;
    return writeTicketFile(*line.presetOut,
                           presetFrom(m_session->preset(), m_session->secretKeys(), false));
}

void PrintDialog::pressCancel()
{
    if (m_run) {
        // The outcome says whether it was in time.
        m_run->cancel();
        m_foot->setText(tr("Cancelling…"));
        return;
    }
    if (m_sent.isTelling()) {
        end(ExitStatus::Printed);
        return;
    }
    // After a print that failed, giving up is that failure.
    end(m_printProblem.isEmpty() ? ExitStatus::Cancelled : m_printStatus);
}

void PrintDialog::interrupt()
{
    if (!m_run) {
        end(m_sent.isTelling() ? ExitStatus::Printed : ExitStatus::Cancelled);
        return;
    }
    m_run->cancel();
    m_isInterrupted = true;
    QTimer::singleShot(interruptMs, this, [this] {
        if (m_finished)
            return;
        printLine(
            stderr,
            QStringLiteral("kelvo-print: interrupted while the job was being sent; it may have "
                           "been accepted: look at the printer's queue before you print "
                           "again"));
        end(ExitStatus::Failed);
    });
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
    m_cancel->click();
}

void PrintDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        m_cancel->click();
        return;
    }
    QWidget::keyPressEvent(event);
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
    m_sinceShown.start();
    if (!m_isDriven && m_session->hasQueue())
        m_watch.start();
}

// Panels make their controls when they are first shown: later than the buttons
// below them, which come after them all the same.
void PrintDialog::arrangeTabOrder()
{
    const QList<QWidget *> panelStops = focusStopsIn(m_scroll);
    if (panelStops == m_panelStops)
        return;
    m_panelStops = panelStops;
    chainFocusStops(focusStopsIn(m_printer) + focusStopsIn(m_preview) + QList<QWidget *>{m_switch}
                    + panelStops + focusStopsIn(m_cautionBar)
                    + QList<QWidget *>{m_columns->toggle(), m_details, m_help, m_cancel, m_print});
}

// The keyboard begins at the printers; while there are none to choose from, at
// what can be pressed.
void PrintDialog::giveFirstFocus()
{
    QWidget *holder = focusWidget();
    if (holder && holder->isEnabled() && holder != m_firstFocus)
        return; // where the user, or a pane, wants it
    QWidget *first = m_printer->firstControl();
    m_firstFocus = first->isEnabled() ? first : m_cancel;
    if (holder != m_firstFocus)
        m_firstFocus->setFocus(Qt::OtherFocusReason);
}

void PrintDialog::goToRegion(bool forward)
{
    focusNextRegion(
        {m_printer, m_preview, m_switch, m_scroll, m_cautionBar, m_columns->toggle(), m_print},
        forward);
}

// ---- what scripts ask

bool PrintDialog::isIdle() const
{
    // Shortcuts reach only an active window, and a window becomes active some
    // time after it was shown; without a window manager it may never.
    if (isVisible() && !QApplication::activeWindow() && m_sinceShown.elapsed() < activationWaitMs)
        return false;
    // A button that its mnemonic pressed comes up again a moment later, and only
    // then does what it is for.
    const auto buttons = findChildren<QAbstractButton *>();
    if (std::any_of(buttons.cbegin(), buttons.cend(),
                    [](const QAbstractButton *each) { return each->isDown(); }))
        return false;
    // The panels of hidden tabs follow the first frame.
    if (m_sinceReady.isValid() && m_sinceReady.elapsed() < panelsWaitMs && !arePanelsBuilt())
        return false;
    return m_finished
        || (m_session->stage() != DialogSession::Stage::Searching && !m_session->isDocumentPending()
            && !(m_isDriven && m_session->isLookingAtPrinter()) && !m_look.isActive()
            && !m_firstFrame.isActive());
}

// A pane has a layout from when its panel's content is put into it.
bool PrintDialog::arePanelsBuilt() const
{
    const auto panes = m_scroll->findChildren<QWidget *>();
    return std::all_of(panes.cbegin(), panes.cend(), [](const QWidget *pane) {
        const auto id = controlIDOf(pane);
        return !id || id->signature != kUserPaneSignature || pane->layout();
    });
}

bool PrintDialog::isDrawing() const
{
    return m_preview->isVisible() && m_preview->isDrawing();
}

Result<void> PrintDialog::showPanel(const QString &name)
{
    if (m_session->stage() == DialogSession::Stage::Stuck)
        return Error{Error::Code::Unreachable, m_session->message().header,
                     m_session->message().text};
    Extension *panels = m_session->panels();
    if (!panels)
        return Error{Error::Code::NotFound, name, tr("there are no panels")};
    m_columns->showRight();
    return m_places.showPanel(*panels, name);
}

Result<void> PrintDialog::showTab(int tab)
{
    if (m_session->stage() == DialogSession::Stage::Stuck)
        return Error{Error::Code::Unreachable, m_session->message().header,
                     m_session->message().text};
    m_columns->showRight();
    return m_places.showTab(tab);
}

QString PrintDialog::placeOf(const QWidget *control) const
{
    if (m_columns->left()->isAncestorOf(control))
        return tr("the left column");
    const Extension *panels = m_session->panels();
    return panels ? PanelPlaces::placeOf(control, *panels) : QString();
}

void PrintDialog::sync(SyncDirection direction)
{
    if (direction == kSyncWrite)
        m_session->writeAll();
    else
        m_session->readAll();
}

const PrintSession &PrintDialog::sessionForReading()
{
    if (m_session->stage() == DialogSession::Stage::Ready)
        m_session->writeAll();
    return m_session->tickets();
}

QString PrintDialog::jobInWords()
{
    return m_session->stage() == DialogSession::Stage::Ready ? words().asText() : QString();
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
    return masked(std::move(file), m_session->secretKeys());
}

QStringList PrintDialog::secretValues()
{
    QStringList values = m_secrets.values();
    values += kelvo::secretValues(m_session->ticket(), m_session->secretKeys());
    return values;
}

} // namespace kelvo
