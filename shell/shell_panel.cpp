#include "shell_panel.h"

#include "client_information.h"
#include "control.h"
#include "device_profile.h"
#include "dialog_window.h"
#include "embed_control.h"
#include "flat_selector.h"
#include "help_window.h"
#include "installed_features.h"
#include "job_types.h"
#include "needed_controls.h"
#include "notice.h"
#include "pde_hooks.h"
#include "pictures.h"
#include "ppd_choices.h"
#include "print_checks.h"
#include "string_table.h"
#include "tab_selection.h"
#include "terminal.h"
#include "ticket.h"
#include "ticket_values.h"
#include "window_loader.h"

#include <QAbstractButton>
#include <QFontInfo>
#include <QGridLayout>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace kelvo {

std::int32_t gCurrentPanel = 0;
std::int32_t lastTabIndex = 0;

namespace {

constexpr std::uint32_t kShellWidth = 540;  // logical pixels
constexpr std::uint32_t kShellHeight = 491; // logical pixels
constexpr double kUsualFontPixels = 13;     // the font that the two above are made for

// The manufacturer of every device that the panels know.
constexpr QLatin1String kMaker("Kelvo");

constexpr ControlID kGroupControl{kShellSignature, 10};
constexpr ControlID kContentFrame{kShellSignature, 15};
constexpr ControlID kTabSelector{kShellSignature, 16};
constexpr ControlID kPanelArea{kShellSignature, 17};
constexpr ControlID kPreviousButton{kShellSignature, 1966};
constexpr ControlID kNextButton{kShellSignature, 1967};

PDEShellContext *gCurrentShell = nullptr;

PDEShellContext *shellOf(PMPDEContext context)
{
    return reinterpret_cast<PDEShellContext *>(context);
}

PMPDEContext contextOf(PDEShellContext *shell)
{
    return reinterpret_cast<PMPDEContext>(shell);
}

std::vector<std::int32_t> presentTabs(const PDEShellContext &shell)
{
    std::vector<std::int32_t> tabs;
    for (const PanelRecord &panel : shell.panels) {
        if (panel.tabIndex != kNoTab)
            tabs.push_back(panel.tabIndex);
    }
    return tabs;
}

const PanelRecord *findPanel(const PDEShellContext &shell, std::int32_t tabIndex)
{
    const auto found =
        std::find_if(shell.panels.begin(), shell.panels.end(),
                     [tabIndex](const PanelRecord &panel) { return panel.tabIndex == tabIndex; });
    return found == shell.panels.end() ? nullptr : &*found;
}

// Every panel, and the one whose tab is shown last of all: what the user sees
// has the final word.
void syncPanels(PDEShellContext &shell, PMPrintSession session, std::int32_t direction)
{
    for (const PanelRecord &panel : shell.panels) {
        if (panel.tabIndex != kNoTab && panel.tabIndex != lastTabIndex)
            panel.operations.Sync(panel.context, session, direction);
    }
    if (const PanelRecord *shown = findPanel(shell, lastTabIndex))
        shown->operations.Sync(shown->context, session, direction);
}

void openPanels(PDEShellContext &shell)
{
    for (const PanelRecord &panel : shell.panels) {
        if (panel.tabIndex != kNoTab)
            panel.operations.Open(panel.context);
    }
}

bool holdsFocus(const QWidget *pane)
{
    const QWidget *focus = pane ? pane->window()->focusWidget() : nullptr;
    return focus && pane->isAncestorOf(focus);
}

// For who works with the keyboard: the tab order goes on in the new panel.
void focusFirstControl(QWidget *pane)
{
    if (!pane)
        return;
    for (QWidget *next = pane->nextInFocusChain(); next != pane; next = next->nextInFocusChain()) {
        if (pane->isAncestorOf(next) && next->isVisible() && next->isEnabled()
            && (next->focusPolicy() & Qt::TabFocus) != 0) {
            next->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

void showTab(std::int32_t tabIndex, PDEShellContext &shell)
{
    if (tabIndex == 0)
        return;
    selectPanel(tabIndex, shell);
    if (shell.controls.tabSelector)
        shell.controls.tabSelector->setValueByReference(tabIndex);
}

// --- Events ---

PrintCheck checkOf(PMPDEContext paperOutput)
{
    const JobTypeProvider &jobType = jobTypeProvider();
    if (jobType.prepareToPrint)
        jobType.prepareToPrint(paperOutput);
    return jobType.state ? checkBeforePrint(jobType.state(paperOutput)) : PrintCheck::Proceed;
}

void showCaution(const PDEShellContext &shell, const QString &headerKey, const QString &messageKey,
                 const QStringList &arguments)
{
    QWidget *pane = shell.parentUserPane;
    CFUserNotificationDisplayNotice(NoticeLevel::Caution, localizedText(shell.bundle, headerKey),
                                    formatted(localizedText(shell.bundle, messageKey), arguments),
                                    {}, pane ? pane->window() : nullptr);
}

// The user has pressed Print. noErr keeps the job from going out; then they are where it can
// be mended.
OSStatus handlePrintHit(const PDEShellContext &shell)
{
    const PanelRecord *paperOutput = findPanel(shell, kPaperOutputTab);
    if (!paperOutput)
        return eventNotHandledErr;
    const JobTypeProvider &jobType = jobTypeProvider();
    const QPointer<QWidget> pane = paperOutput->userPane;
    switch (checkOf(paperOutput->context)) {
    case PrintCheck::Proceed:
        return eventNotHandledErr;
    case PrintCheck::MissingPasscode:
        showCaution(shell, QStringLiteral("Invalid Secure Print Passcode Header"),
                    QStringLiteral("Invalid Secure Print Passcode Message"),
                    {QString::number(kShortestPasscode), QString::number(kLongestPasscode)});
        break;
    case PrintCheck::NoFaxDevice:
        showCaution(shell, QStringLiteral("NoFaxDevice Header"),
                    QStringLiteral("NoFaxDevice Message"), {});
        break;
    case PrintCheck::MissingFaxRecipients:
        if (jobType.runFaxSetup) {
            jobType.runFaxSetup(paperOutput->context);
            return noErr;
        }
        showCaution(shell, QStringLiteral("FaxRecipientsMissing Header"),
                    QStringLiteral("FaxRecipientsMissing Message"), {});
        break;
    }
    if (!pane)
        return noErr; // the dialog has ended while the notice was open
    showControl(pane);
    if (jobType.focusSetup)
        jobType.focusSetup(paperOutput->context);
    return noErr;
}

OSStatus handleCommand(PDEShellContext &shell, OSType command)
{
    switch (command) {
    case kCommandShellHelp:
        // Without a help book of ours the dialog may show its own.
        return DisplayHelp(helpPageOf(shell.parentUserPane), shell.parentUserPane) == noErr
            ? noErr
            : eventNotHandledErr;
    case kCommandNextTab:
        showTab(nextTab(presentTabs(shell), lastTabIndex), shell);
        return eventNotHandledErr; // the dialog goes on with it
    case kCommandPreviousTab:
        showTab(previousTab(presentTabs(shell), lastTabIndex), shell);
        return eventNotHandledErr;
    default:
        return eventNotHandledErr;
    }
}

OSStatus handleGroupHit(PDEShellContext &shell, ControlID control)
{
    if (control == kTabSelector) {
        const std::int32_t chosen = shell.controls.tabSelector->chosenReference();
        if (chosen != lastTabIndex && findPanel(shell, chosen))
            selectPanel(chosen, shell);
        return noErr;
    }
    if (control == kNextButton) {
        showTab(nextTab(presentTabs(shell), lastTabIndex), shell);
        return noErr;
    }
    if (control == kPreviousButton) {
        showTab(previousTab(presentTabs(shell), lastTabIndex), shell);
        return noErr;
    }
    return eventNotHandledErr;
}

// The tab with the control comes to the front.
void showTabOf(const QWidget *control, PDEShellContext &shell)
{
    for (const PanelRecord &panel : shell.panels) {
        if (panel.userPane && (panel.userPane == control || panel.userPane->isAncestorOf(control))
            && panel.tabIndex != lastTabIndex)
            showTab(panel.tabIndex, shell);
    }
}

// Installed on the window, the group control and the dialog's two buttons.
OSStatus shellEventHandler(PDEShellContext &shell, const QWidget *target, const Event &event)
{
    const bool isGroup = target == shell.controls.group;
    const bool isDefaultButton = target == shell.defaultButton;
    const bool isCancelButton = target == shell.cancelButton;
    switch (event.kind) {
    case EventKind::Command:
        // A panel's own commands pass here too; they are not taken.
        return isGroup || isDefaultButton || isCancelButton ? eventNotHandledErr
                                                            : handleCommand(shell, event.command);
    case EventKind::Menu:
        return isGroup ? noErr : eventNotHandledErr;
    case EventKind::ControlHit:
        if (isDefaultButton)
            return handlePrintHit(shell);
        return isGroup ? handleGroupHit(shell, event.control) : eventNotHandledErr;
    case EventKind::ShowControl:
        if (isGroup)
            showTabOf(event.source, shell);
        return eventNotHandledErr;
    default:
        return eventNotHandledErr;
    }
}

[[nodiscard]] EventHandlerRef installShellHandler(PDEShellContext &shell, QWidget *target)
{
    if (!target)
        return {};
    return installEventHandler(target, [&shell, target](const Event &event) {
        return shellEventHandler(shell, target, event);
    });
}

// --- Window ---

QWidget *loadShellWindow(const PDEShellContext &shell, const char *caller)
{
    if (!shell.bundle) {
        printLine(stderr,
                  QLatin1String(caller)
                      + QStringLiteral("::CreateNibReferenceWithCFBundle() failed."));
        return nullptr;
    }
    Result<QWidget *> window = createWindowFromDescription(
        shell.bundle, QStringLiteral("PDE_Shell"), QStringLiteral("Window"));
    if (window)
        return window.value();
    const char *step = window.error().code == Error::Code::NotFound
        ? "CreateNibReferenceWithCFBundle"
        : "CreateWindowFromNib";
    printLine(stderr,
              QStringLiteral("%1::%2() failed.").arg(QLatin1String(caller), QLatin1String(step)));
    printLine(stderr, window.error().text());
    return nullptr;
}

void makeUserPanes(PDEShellContext &shell, QSize size)
{
    for (PanelRecord &panel : shell.panels) {
        if (panel.tabIndex == kNoTab)
            continue;
        auto *pane = new QWidget(shell.parentUserPane->window());
        // By this name scripts and messages of the dialog call the panel.
        pane->setObjectName(panel.name);
        setControlID(pane, {kUserPaneSignature, panel.tabIndex});
        pane->resize(size);
        pane->hide();
        panel.userPane = pane;
    }
}

void setButtonImage(const PDEShellContext &shell, ControlID button, const QString &picture)
{
    auto *control = findControl<QAbstractButton>(shell.controls.group, button);
    if (!control)
        return;
    const QIcon icon = pictureIcon(shell.bundle->resourcesPath(), picture);
    const int side = control->fontMetrics().height();
    control->setIconSize({side, side});
    control->setIcon(icon);
    control->setVisible(!icon.isNull());
}

// The panes share the area's one cell. A hidden one keeps its claim, so the area
// is as large as the largest panel and nothing moves when the tab changes. The
// shell is never smaller than `least`: layouts keep to that, for a minimum of the
// widget's own would keep longer texts from asking for more.
void embedUserPanes(PDEShellContext &shell, QSize least)
{
    auto *rows = qobject_cast<QBoxLayout *>(shell.controls.group->layout());
    const int around = rows ? rows->totalMinimumSize().height() : 0;
    auto *cell = new QGridLayout(shell.controls.panelArea);
    cell->setContentsMargins({});
    cell->setRowMinimumHeight(0, least.height() - around);
    if (rows)
        rows->addStrut(least.width());
    for (const PanelRecord &panel : shell.panels) {
        if (!panel.userPane)
            continue;
        keepPlaceWhenHidden(panel.userPane);
        cell->addWidget(panel.userPane, 0, 0);
    }
}

void fillTabSelector(PDEShellContext &shell)
{
    Menu menu;
    for (const PanelRecord &panel : shell.panels) {
        if (panel.tabIndex == kNoTab)
            continue;
        MenuItem item;
        item.text = panel.title;
        item.key = panel.title;
        item.reference = panel.tabIndex;
        menu.items.push_back(std::move(item));
    }
    PopupButton *selector = shell.controls.tabSelector;
    selector->setMaximum(static_cast<int>(menu.items.size()));
    selector->setMenu(std::move(menu));
    makeFlat(selector);
}

bool buildShellWindow(PDEShellContext &shell)
{
    QWidget *window = shell.window ? shell.window.release() : loadShellWindow(shell, "Open()");
    if (!window)
        return false;
    ShellControls &controls = shell.controls;
    NeededControls needed(window);
    controls.group = needed.find(kGroupControl);
    controls.tabSelector = needed.find<PopupButton>(kTabSelector);
    controls.contentFrame = needed.find(kContentFrame);
    controls.panelArea = needed.find(kPanelArea);
    const bool complete = needed.missing().isEmpty();
    if (complete) {
        EmbedAndShowControl(controls.group, shell.parentUserPane);
        shell.parentUserPane->layout()->setAlignment(controls.group, Qt::AlignHCenter);
    } else {
        showPanelNotMade(shell.bundle, shell.parentUserPane, QStringLiteral("PDE_Shell/Window"),
                         lacksControlsText(shell.bundle, needed.missing()));
    }
    if (window != controls.group || !complete)
        delete window;
    return complete;
}

// --- Operations ---

OSStatus Sync(PMPDEContext context, PMPrintSession session, std::int32_t direction)
{
    const OSStatus status = KelvoPDESync(context, session, direction);
    PDEShellContext *shell = shellOf(context);
    if (!shell || !session)
        return kPMInvalidParameter;
    syncPanels(*shell, session, direction);
    if (direction != kSyncWrite)
        return status;

    PMTicketRef ticket = 0;
    const OSStatus found = GetTicketFromSession(session, kPMPrintSettingsTicket, &ticket);
    if (found != noErr) {
        printLine(stderr, QStringLiteral("Sync()::GetTicketFromSession() failed (%1).").arg(found));
        return status;
    }
    writeShellEntries(ticket);
    writeClientInformation(ticket, currentClientInformation());
    return status;
}

OSStatus syncCurrentShell(PMPrintSession, std::int32_t direction)
{
    return Sync(contextOf(gCurrentShell), GetCurrentPrintSession(), direction);
}

OSStatus Prologue(PMPDEContext *context, OSType *creator, CFStringRef *userOptionKind,
                  CFStringRef *title, std::uint32_t *maxH, std::uint32_t *maxV)
{
    KelvoPDEProlog(context, creator, userOptionKind, title, maxH, maxV);
    if (!context || !creator || !userOptionKind || !title || !maxH || !maxV)
        return kPMInvalidPDEContext;

    auto *shell = new PDEShellContext;
    shell->bundle = GetPDEBundle();
    gCurrentPanel = 0;
    gCurrentShell = shell;
    setShellSync(syncCurrentShell);

    const QString titleKey = QStringLiteral("PDE Shell");
    shell->title = CFBundleCopyLocalizedString(shell->bundle, titleKey, titleKey,
                                               QStringLiteral("Localizable"));
    *context = contextOf(shell);
    *creator = fourCharCode("pde ");
    *userOptionKind = &kPDEPanelKind;
    *title = &shell->title;
    *maxH = kShellWidth;
    *maxV = kShellHeight;

    shell->panels.reserve(10);
    LoadBuiltInPanels(shell->bundle, shell->panels);
    return noErr;
}

OSStatus Initialize(PMPDEContext context, std::uint32_t *flags, PMPDERef ref,
                    PMUserPane parentUserPane, PMPrintSession session)
{
    KelvoPDEInitialize(context, flags, ref, parentUserPane, session);
    PDEShellContext *shell = shellOf(context);
    if (!shell || !session || !parentUserPane)
        return kPMInvalidPDEContext;

    PpdFile *ppd = PPDGetCurrent();
    if (!ppd || ppd->manufacturer() != kMaker) {
        // Dialogs look for this line to tell that the printer was refused.
        printLine(stderr, QStringLiteral("Initialize()::GetTicketFromSession() failed."));
        return kPMInvalidPDEContext;
    }
    KDPInitialize();
    LoadInstallableOptions(ppd, InstalledFeatures);

    shell->parentUserPane = parentUserPane;
    shell->session = session;
    shell->defaultButton = windowDefaultButton(parentUserPane);
    shell->cancelButton = windowCancelButton(parentUserPane);
    if (shell->defaultButton)
        setControlProperty(shell->defaultButton, kShellPropertyCreator, kBundlePropertyTag,
                           QVariant::fromValue(static_cast<void *>(shell->bundle)));
    RegisterMyHelpBook(*shell);
    shell->defaultButtonHandler = installShellHandler(*shell, shell->defaultButton);
    shell->cancelButtonHandler = installShellHandler(*shell, shell->cancelButton);

    // Kept for Open: reading the description is the dearest step of both.
    shell->window.reset(loadShellWindow(*shell, "Initialize()"));
    if (!shell->window)
        return kPMInvalidPDEContext;
    const QWidget *panelArea = findControl(shell->window.get(), kPanelArea);
    makeUserPanes(*shell, panelArea ? panelArea->size() : QSize(kShellWidth, kShellHeight));
    for (const PanelRecord &panel : shell->panels) {
        if (panel.tabIndex == kNoTab)
            continue;
        const OSStatus status =
            panel.operations.Initialize(panel.context, flags, ref, panel.userPane, session);
        if (status != noErr)
            printLine(stderr,
                      QStringLiteral("Initialize(): the panel \"%1\" failed (%2).")
                          .arg(panel.title, QString::number(status)));
    }
    return Sync(context, session, kSyncRead);
}

OSStatus GetSummaryText(PMPDEContext context, SummaryArray *titles, SummaryArray *texts)
{
    const OSStatus status = KelvoPDEGetSummaryText(context, titles, texts);
    const PDEShellContext *shell = shellOf(context);
    if (!shell || !titles || !texts)
        return kPMInvalidPDEContext;
    titles->reset();
    texts->reset();
    for (const PanelRecord &panel : shell->panels) {
        if (panel.tabIndex != kNoTab)
            panel.operations.GetSummaryText(panel.context, titles, texts);
    }
    return status;
}

OSStatus Open(PMPDEContext context)
{
    const OSStatus status = KelvoPDEOpen(context);
    PDEShellContext *shell = shellOf(context);
    if (!shell || !shell->parentUserPane)
        return kPMInvalidPDEContext;
    shell->windowHandler = installShellHandler(*shell, shell->parentUserPane->window());

    if (shell->opened) {
        openPanels(*shell);
    } else {
        if (!buildShellWindow(*shell))
            return kPMInvalidPDEContext;
        shell->opened = true;
        QWidget *group = shell->controls.group;
        fillTabSelector(*shell);
        shell->groupHandler = installShellHandler(*shell, group);
        QString previous = QStringLiteral("ButtonGraphic_MacUp.png"); // points to the left
        QString next = QStringLiteral("ButtonGraphic_MacDown.png");
        if (group->isRightToLeft())
            previous.swap(next);
        setButtonImage(*shell, kPreviousButton, previous);
        setButtonImage(*shell, kNextButton, next);
        embedUserPanes(*shell, minimumShellSize(QFontInfo(group->font()).pixelSize()));
        openPanels(*shell);
    }
    showTab(tabToShow(presentTabs(*shell), gCurrentPanel), *shell);
    return status;
}

OSStatus Close(PMPDEContext context)
{
    const OSStatus status = KelvoPDEClose(context);
    PDEShellContext *shell = shellOf(context);
    if (!shell)
        return kPMInvalidPDEContext;
    for (const PanelRecord &panel : shell->panels) {
        if (panel.tabIndex != kNoTab)
            panel.operations.Close(panel.context);
    }
    shell->windowHandler.remove();
    return status;
}

OSStatus Terminate(PMPDEContext context, OSStatus status)
{
    const OSStatus result = KelvoPDETerminate(context, status);
    PDEShellContext *shell = shellOf(context);
    if (!shell)
        return kPMInvalidPDEContext;
    for (const PanelRecord &panel : shell->panels) {
        if (panel.tabIndex != kNoTab)
            panel.operations.Terminate(panel.context, status);
    }
    // The dialog's window may live on, with another printer: what the shell put
    // into it goes.
    for (const PanelRecord &panel : shell->panels)
        delete panel.userPane;
    delete shell->controls.group;
    if (gCurrentShell == shell) {
        gCurrentShell = nullptr;
        setShellSync(nullptr);
    }
    delete shell;

    PPDCloseCurrent();
    UnloadInstallableOptions();
    KDPFinalize();
    return result;
}

} // namespace

PanelOperations shellOperations()
{
    return {.Prologue = Prologue,
            .Initialize = Initialize,
            .Sync = Sync,
            .GetSummaryText = GetSummaryText,
            .Open = Open,
            .Close = Close,
            .Terminate = Terminate};
}

void selectPanel(std::int32_t index, PDEShellContext &shell)
{
    const PanelRecord *left = findPanel(shell, lastTabIndex);
    if (left)
        left->operations.Sync(left->context, shell.session, kSyncWrite);

    // Drawing is held off rather than the frame hidden: it would be laid out again
    // as a whole, and the keyboard would leave it.
    if (shell.controls.contentFrame)
        shell.controls.contentFrame->setUpdatesEnabled(false);
    const bool hadFocus = left && holdsFocus(left->userPane);
    for (const PanelRecord &panel : shell.panels) {
        if (panel.tabIndex == kNoTab)
            continue;
        if (panel.tabIndex != lastTabIndex)
            panel.operations.Sync(panel.context, shell.session, kSyncRead);
        if (panel.userPane) {
            panel.userPane->setEnabled(panel.tabIndex == index);
            panel.userPane->setVisible(panel.tabIndex == index);
        }
    }
    gCurrentPanel = index;
    lastTabIndex = index;
    if (const PanelRecord *shown = findPanel(shell, index); shown && hadFocus)
        focusFirstControl(shown->userPane);
    if (shell.controls.contentFrame)
        shell.controls.contentFrame->setUpdatesEnabled(true);
}

OSStatus RegisterMyHelpBook(const PDEShellContext &shell)
{
    return shell.bundle ? AHRegisterHelpBook(shell.bundle) : noErr;
}

void writeShellEntries(PMTicketRef ticket)
{
    PMTicketSetCFDictionary(ticket, kShellTicketClient, ticketKey("KPIFOptions"),
                            {{QStringLiteral("KPIFOptionCovers"), true},
                             {QStringLiteral("KPIFOptionExceptions"), true},
                             {QStringLiteral("KPIFOptionInserts"), true}});
    PMTicketReleaseItem(ticket, ticketKey("RotateBooklet180Degrees"));
    PMTicketSetCFString(ticket, kShellTicketClient,
                        ticketKey("ControllerInformation.ControllerFamily"),
                        QStringLiteral("Green"));
    PMTicketSetCFString(ticket, kShellTicketClient,
                        ticketKey("ControllerInformation.ControllerVersion"),
                        QStringLiteral("7.0"));
}

QSize minimumShellSize(double fontPixels)
{
    const double scale = std::max(1.0, fontPixels / kUsualFontPixels);
    return {qRound(kShellWidth * scale), qRound(kShellHeight * scale)};
}

} // namespace kelvo
