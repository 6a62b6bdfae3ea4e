#include "paper_output_panel.h"

#include "booklet_dialog.h"
#include "bundle_picture.h"
#include "covers_dialog.h"
#include "delayed_print.h"
#include "delayed_print_dialog.h"
#include "embed_control.h"
#include "finishing_dialogs.h"
#include "finishing_ticket.h"
#include "hint_text.h"
#include "installed_features.h"
#include "job_type_setup.h"
#include "lan_fax_setup.h"
#include "output_destinations.h"
#include "panel_interface.h"
#include "paper_output_pictures.h"
#include "paper_output_summary.h"
#include "paper_output_ticket.h"
#include "pde_session.h"
#include "popups.h"
#include "saved_job_dialog.h"
#include "secure_print_dialog.h"
#include "separators.h"
#include "separators_dialog.h"
#include "setting_maps.h"
#include "ticket.h"
#include "ticket_values.h"
#include "window_loader.h"

#include <QLabel>
#include <QPushButton>

#include <cstdio>

namespace kelvo {

namespace {

// KPDE
constexpr std::int32_t kJobType = 102, kJobTypeSetup = 103, kTwoSided = 110, kStapling = 113,
                       kHolePunch = 116, kOutputColor = 119, kOutputDestination = 126;

PaperOutputPanelContext *panelOf(PMPDEContext context)
{
    return reinterpret_cast<PaperOutputPanelContext *>(context);
}

bool hasOption(const PaperOutputPanelContext &panel, const char *option)
{
    return panel.ppd && panel.ppd->findOption(QString::fromLatin1(option));
}

// --- From the context to the controls ----------------------------------------

// A value that the device does not offer shows nothing, and stays.
void showValue(PopupButton *popup, std::int32_t value)
{
    if (popup && !SetPopupButtonToTicketValue(popup, value))
        popup->setValue(0);
}

void showJobType(const PaperOutputPanelContext &panel)
{
    showValue(panel.controls.jobType, panel.jobType);
    EnableDisableJobTypeSetupButton(panel);
    showBundlePicture(panel.controls.jobTypeIcon, panel.bundle, jobTypePicture(panel.jobType));
}

void showSeparators(const PaperOutputPanelContext &panel)
{
    const PaperOutputControls &controls = panel.controls;
    if (!controls.stockSummary)
        return;
    ShowStockSummary(panel.bundle, controls.stockSummary, &panel.jobStock, kJobContextJob);
    const QString line = separatorSummary(panel.bundle, panel.separators, panel.separatorStock);
    if (panel.jobStock.type() == kStockTypeTransparency && !line.isEmpty())
        UpdateSummaryTextView(
            controls.stockSummary,
            QStringLiteral("%1\n%2").arg(controls.stockSummary->toPlainText(), line));
    const char *key = LocalizedKeyForTicketValue(SeparatorOptionMap, panel.separators);
    controls.separatorsSummary->setText(key ? localizedText(panel.bundle, QString::fromLatin1(key))
                                            : QString());
}

// Covers travel as their paper source. No cover at all is in order.
bool reachesDevice(const Cover *cover)
{
    return !cover
        || PPDChoiceForTicketValue(QStringLiteral("KVFrontCoverSheet"), cover->stock().source());
}

const char *coversKey(const Cover *front, const Cover *back)
{
    if (!reachesDevice(front) || !reachesDevice(back))
        return "Cover Without Source";
    if (front)
        return back ? "Front and Back Covers" : "Front Cover Only";
    return back ? "Back Cover Only" : "No Covers";
}

void showCovers(const PaperOutputPanelContext &panel)
{
    if (!panel.controls.coversSummary)
        return;
    const char *key = coversKey(panel.frontCover.get(), panel.backCover.get());
    panel.controls.coversSummary->setText(localizedText(panel.bundle, QString::fromLatin1(key)));
}

void showTwoSided(const PaperOutputPanelContext &panel)
{
    PopupButton *popup = panel.controls.twoSided;
    showValue(popup, panel.isBooklet() ? kPlexDuplex : panel.duplex);
    if (popup)
        setEnabledWithLabel(popup, !panel.isBooklet() && hasOption(panel, "Duplex"));
    showBundlePicture(panel.controls.twoSidedIcon, panel.bundle, duplexPicture(panel));
}

// What the summary has no line for.
void showMoreFinishing(const PaperOutputPanelContext &panel)
{
    QStringList names;
    for (const MenuItem &item : panel.controls.moreFinishing->menu().items) {
        if (item.checked
            && (item.command == kCommandBindDialog || item.command == kCommandOffsetDialog
                || item.command == kCommandCustomFinishingDialog))
            names << QString(item.text).remove(QStringLiteral("…"));
    }
    panel.controls.moreFinishingSummary->setText(names.join(QStringLiteral(", ")));
}

void showFinishing(const PaperOutputPanelContext &panel)
{
    const PaperOutputControls &controls = panel.controls;
    if (!controls.finishingSummary)
        return;
    MarkFinishingMenu(controls.finishingButton->menu(), panel);
    MarkMoreFinishingMenu(controls.moreFinishing->menu(), panel);
    showMoreFinishing(panel);
    QString summary = CreateFinishingString(panel).trimmed();
    if (summary.isEmpty() && !getInstalledFeature("BookletFoldKey")
        && !getInstalledFeature("TapeBindKey"))
        summary = localizedText(panel.bundle, QStringLiteral("No Finishing Devices"));
    UpdateSummaryTextView(controls.finishingSummary, summary);
    showValue(controls.stapling, chosenStaple(panel.finishing));
    showValue(controls.holePunch, panel.finishing.punch);
    showBundlePicture(controls.finishingIcon, panel.bundle, finishingPicture(panel));
    showBundlePicture(controls.staplingIcon, panel.bundle, staplePicture(panel.finishing));
    showBundlePicture(controls.holePunchIcon, panel.bundle, punchPicture(panel.finishing.punch));
}

void showOutputColor(const PaperOutputPanelContext &panel)
{
    showValue(panel.controls.outputColor, panel.colorMode);
    showBundlePicture(panel.controls.outputColorIcon, panel.bundle,
                      colorModePicture(panel.colorMode));
}

void showSettings(const PaperOutputPanelContext &panel)
{
    if (!panel.opened)
        return;
    StockIconEventHandler(panel.stockButtonData);
    showSeparators(panel);
    showValue(panel.controls.outputDestination, panel.outputBin);
    showOutputColor(panel);
    showJobType(panel);
    showTwoSided(panel);
    showFinishing(panel);
    showCovers(panel);
}

// --- What the user does ------------------------------------------------------

void runFaxSetup(PaperOutputPanelContext &panel)
{
    if (!panel.faxOptions)
        panel.faxOptions = Dictionary();
    if (!panel.faxRecipients)
        panel.faxRecipients = Array();
    RunModalLANFaxSetup(panel.bundle, &*panel.faxOptions, &*panel.faxRecipients, panel.content);
}

void runJobTypeSetup(PaperOutputPanelContext &panel)
{
    switch (panel.jobType) {
    case kJobTypeSaved: {
        SavedJobData data{panel.savedJob, panel.passcode, panel.documentName};
        if (RunModalSavedJobDialog(panel.bundle, &data, panel.content) == noErr) {
            panel.savedJob = data.job;
            panel.passcode = data.passcode;
        }
        break;
    }
    case kJobTypeFax:
        runFaxSetup(panel);
        break;
    case kJobTypeSecurePrint:
        RunModalSecurePrintSetup(panel.bundle, &panel.passcode, panel.content);
        break;
    case kJobTypeDelayedPrint:
        RunModalDelayedPrintSetup(panel.bundle, &panel.delayedPrintTime, panel.content);
        break;
    default: // the button of some job types is enabled and opens nothing
        break;
    }
}

void chooseJobType(PaperOutputPanelContext &panel)
{
    panel.jobType = GetPopupButtonTicketValue(panel.controls.jobType);
    // A code that nobody will be asked for would only keep the job from queues that
    // hold no secrets.
    if (panel.jobType != kJobTypeSecurePrint && panel.jobType != kJobTypeSaved)
        panel.passcode.reset();
    showJobType(panel);
    // A job type that needs a set-up asks for it at once.
    if (panel.controls.jobTypeSetup && panel.controls.jobTypeSetup->isEnabled())
        panel.controls.jobTypeSetup->click();
}

void createBooklet(PaperOutputPanelContext &panel)
{
    BookletLayout &layout = panel.bookletLayout;
    _BookletCreationParams params{panel.bundle,       panel.finishing.fold, panel.booklet,
                                  layout.pageBorders, layout.newSize,       layout.gutter,
                                  layout.creep};
    if (RunModalBookletCreationDialog(&params, panel.content) != noErr)
        return;
    panel.finishing.fold = params.fold;
    panel.booklet = params.booklet;
    layout = {params.pageBorders, params.gutter, params.creep, params.newSize};
    if (panel.isBooklet())
        panel.duplex = kPlexDuplexShort;
}

void editCovers(PaperOutputPanelContext &panel)
{
    DialogResult outcome = DialogResult::Cancel;
    const bool hasCovers = panel.frontCover || panel.backCover;
    RunModalCoversDialog(panel.bundle, hasCovers ? kDialogModeEdit : kDialogModeAdd,
                         &panel.jobStock, &panel.frontCover, &panel.backCover, &outcome,
                         panel.content);
    showCovers(panel);
}

void editSeparators(PaperOutputPanelContext &panel)
{
    DialogResult result = DialogResult::Cancel;
    RunModalSeparatorsDialog(panel.bundle, &panel.separators, &panel.separatorStock, &result,
                             panel.content);
    showSeparators(panel);
}

using FinishingDialog = OSStatus (*)(CFBundleRef, _PaperOutputContext *, DialogResult *, QWidget *);
FinishingDialog findFinishingDialog(OSType command)
{
    switch (command) {
    case kCommandSingleStapleDialog:
        return RunModal1StapleFinishingDialog;
    case kCommandDualStapleDialog:
        return RunModal2StaplesFinishingDialog;
    case kCommandHolePunchDialog:
        return RunModalHolePunchFinishingDialog;
    case kCommandFoldDialog:
        return RunModalFoldFinishingDialog;
    case kCommandAdvancedFoldDialog:
        return RunModalAdvancedFoldFinishingDialog;
    case kCommandZFoldDialog:
        return RunModalZFoldFinishingDialog;
    case kCommandBindDialog:
        return RunModalBindFinishingDialog;
    case kCommandOffsetDialog:
        return RunModalOffsetFinishingDialog;
    case kCommandCustomFinishingDialog:
        return RunModalCustomFinishingDialog;
    default:
        return nullptr;
    }
}

OSStatus takeCommand(PaperOutputPanelContext &panel, OSType command, std::int32_t value)
{
    DialogResult result = DialogResult::Cancel;
    if (command == kCommandCovers) {
        editCovers(panel);
    } else if (command == kCommandSeparators) {
        editSeparators(panel);
    } else if (command == kCommandBookletCreation) {
        createBooklet(panel);
    } else if (const FinishingDialog runModal = findFinishingDialog(command)) {
        runModal(panel.bundle, &panel, &result, panel.content);
    } else if (!applyFinishingCommand(panel, command, value)) {
        return eventNotHandledErr;
    }
    showTwoSided(panel);
    showFinishing(panel);
    return noErr;
}

OSStatus takeHit(PaperOutputPanelContext &panel, std::int32_t control)
{
    const PaperOutputControls &controls = panel.controls;
    switch (control) {
    case kJobType:
        chooseJobType(panel);
        return noErr;
    case kJobTypeSetup:
        runJobTypeSetup(panel);
        return noErr;
    case kTwoSided:
        panel.duplex = GetPopupButtonTicketValue(controls.twoSided);
        showTwoSided(panel);
        return noErr;
    case kStapling:
        setStaple(panel.finishing, GetPopupButtonTicketValue(controls.stapling));
        showFinishing(panel);
        return noErr;
    case kHolePunch:
        panel.finishing.punch = GetPopupButtonTicketValue(controls.holePunch);
        showFinishing(panel);
        return noErr;
    case kOutputColor:
        panel.colorMode = GetPopupButtonTicketValue(controls.outputColor);
        showOutputColor(panel);
        return noErr;
    case kOutputDestination:
        panel.outputBin = GetPopupButtonTicketValue(controls.outputDestination);
        return noErr;
    default:
        return eventNotHandledErr;
    }
}

OSStatus paperOutputEventHandler(PaperOutputPanelContext &panel, const Event &event)
{
    if (event.kind == EventKind::Command)
        return takeCommand(panel, event.command, event.reference);
    if (event.kind == EventKind::ControlHit && event.control.signature == kPanelSignature)
        return takeHit(panel, event.control.number);
    return eventNotHandledErr;
}

// --- The panel's views -------------------------------------------------------

PaperOutputControls findControls(const QWidget *content)
{
    const auto id = [](std::int32_t number) { return ControlID{kPanelSignature, number}; };
    return {
        .jobType = findControl<PopupButton>(content, id(kJobType)),
        .jobTypeSetup = findControl<QPushButton>(content, id(kJobTypeSetup)),
        .jobTypeIcon = findControl<PictureView>(content, id(104)),
        .stockButton = findControl<MenuButton>(content, id(106)),
        .stockSummary = findControl<SummaryView>(content, id(107)),
        .stockIcon = findControl<PictureView>(content, id(108)),
        .coversButton = findControl<QPushButton>(content, id(129)),
        .coversSummary = findControl<QLabel>(content, id(1291)),
        .separatorsButton = findControl<QPushButton>(content, id(130)),
        .separatorsSummary = findControl<QLabel>(content, id(1301)),
        .twoSided = findControl<PopupButton>(content, id(kTwoSided)),
        .twoSidedIcon = findControl<PictureView>(content, id(111)),
        .stapling = findControl<PopupButton>(content, id(kStapling)),
        .staplingIcon = findControl<PictureView>(content, id(114)),
        .holePunch = findControl<PopupButton>(content, id(kHolePunch)),
        .holePunchIcon = findControl<PictureView>(content, id(117)),
        .outputColor = findControl<PopupButton>(content, id(kOutputColor)),
        .outputColorIcon = findControl<PictureView>(content, id(120)),
        .finishingButton = findControl<MenuButton>(content, id(123)),
        .finishingIcon = findControl<PictureView>(content, id(124)),
        .finishingSummary = findControl<SummaryView>(content, id(127)),
        .moreFinishing = findControl<MenuButton>(content, id(128)),
        .moreFinishingSummary = findControl<QLabel>(content, id(1281)),
        .outputDestination = findControl<PopupButton>(content, id(kOutputDestination)),
    };
}

// A pop-up of the PPD's choices; disabled where the device has none of them.
void fillFromPpd(PopupButton *popup, const PaperOutputPanelContext &panel, const char *option,
                 bool honourConstraints, const QStringList &readByName = {})
{
    if (!popup)
        return;
    const int count = hasOption(panel, option)
        ? PPDPopulatePopupWithChoices(popup, panel.ppd, QString::fromLatin1(option),
                                      honourConstraints, readByName)
        : 0;
    setEnabledWithLabel(popup, count > 0);
}

void fillControls(PaperOutputPanelContext &panel)
{
    const PaperOutputControls &controls = panel.controls;
    PopulatePopupButtonFromMap(panel.bundle, controls.jobType, JobTypeMap, kJobContextJob,
                               kNoCommand);
    PopulatePopupButtonFromMap(panel.bundle, controls.twoSided, PlexMap, kJobContextJob,
                               kNoCommand);
    // What is not installed clashes with the device's defaults, and is left out.
    fillFromPpd(controls.stapling, panel, "StapleLocation", true, stapleChoicesWithoutValue());
    fillFromPpd(controls.holePunch, panel, "KVPunch", true, punchChoicesWithoutValue());
    fillFromPpd(controls.outputColor, panel, "KVColorMode", false);
    if (controls.outputDestination) {
        Menu destinations;
        PopulateOutputDestination(destinations, panel.ppd);
        setEnabledWithLabel(controls.outputDestination, !destinations.items.empty());
        controls.outputDestination->setMenu(std::move(destinations));
    }
    Menu finishing;
    PopulateFinishingMenu(finishing, panel.bundle);
    controls.finishingButton->setMenu(std::move(finishing));
    Menu more;
    PopulateMoreFinishingMenu(more, panel.bundle);
    controls.moreFinishing->setMenu(std::move(more));
    controls.coversButton->setEnabled(hasOption(panel, "KVFrontCoverSheet"));
    controls.separatorsButton->setEnabled(hasOption(panel, "KVSlipSheetPrint"));
    makeHintText(controls.coversSummary);
    makeHintText(controls.separatorsSummary);
    makeHintText(controls.moreFinishingSummary);
}

// --- The panel's operations --------------------------------------------------

JobTypeState jobTypeState(PMPDEContext context)
{
    const PaperOutputPanelContext *panel = panelOf(context);
    if (!panel)
        return {};
    return {panel->jobType, panel->passcode && !panel->passcode->isEmpty(),
            panel->faxRecipients && !panel->faxRecipients->isEmpty()};
}

// A ticket or preset may be older than its time: the job waits for the next one.
void prepareToPrint(PMPDEContext context)
{
    PaperOutputPanelContext *panel = panelOf(context);
    const LongDateTime now = currentLongDate();
    if (panel && panel->jobType == kJobTypeDelayedPrint && panel->delayedPrintTime < now)
        panel->delayedPrintTime = delayedPrintTime(timeOf(panel->delayedPrintTime), now);
}

void runFaxSetupFor(PMPDEContext context)
{
    if (PaperOutputPanelContext *panel = panelOf(context))
        runFaxSetup(*panel);
}

OSStatus Prologue(PMPDEContext *context, OSType *creator, CFStringRef *userOptionKind,
                  CFStringRef *title, std::uint32_t *maxH, std::uint32_t *maxV)
{
    if (!context || !creator || !userOptionKind || !title || !maxH || !maxV)
        return kPMInvalidPDEContext;
    auto *panel = new PaperOutputPanelContext;
    panel->bundle = GetPDEBundle();
    const QString titleKey = QStringLiteral("PaperOutput");
    panel->title = CFBundleCopyLocalizedString(panel->bundle, titleKey, titleKey,
                                               QStringLiteral("Localizable"));
    initializePaperOutput(*panel, currentLongDate());
    setJobTypeProvider(jobTypeState);
    setFaxSetupRunner(runFaxSetupFor);
    setPrintPreparation(prepareToPrint);
    *context = reinterpret_cast<PMPDEContext>(panel);
    *creator = kPanelSignature;
    *userOptionKind = &kPDEPanelKind;
    *title = &panel->title;
    *maxH = 0;
    *maxV = 0;
    return noErr;
}

OSStatus Sync(PMPDEContext context, PMPrintSession session, std::int32_t direction)
{
    PaperOutputPanelContext *panel = panelOf(context);
    if (!panel || !session)
        return kPMInvalidParameter;
    PMTicketRef settings = 0;
    PMTicketRef pageFormat = 0;
    OSStatus status = GetTicketFromSession(session, kPMPrintSettingsTicket, &settings);
    if (status == noErr)
        status = GetTicketFromSession(session, kPMPageFormatTicket, &pageFormat);
    if (status != noErr)
        return status;
    if (direction == kSyncWrite) {
        readOrientation(*panel, pageFormat);
        writePaperOutput(*panel, settings);
    } else if (direction == kSyncRead) {
        readPaperOutput(*panel, settings, pageFormat, panel->ppd);
        showSettings(*panel);
    }
    return noErr;
}

OSStatus Initialize(PMPDEContext context, std::uint32_t *, PMPDERef, PMUserPane parentUserPane,
                    PMPrintSession session)
{
    PaperOutputPanelContext *panel = panelOf(context);
    if (!panel || !session)
        return kPMInvalidPDEContext;
    panel->parentUserPane = parentUserPane;
    panel->session = session;
    panel->ppd = PPDGetCurrent();
    PMTicketRef settings = 0;
    GetTicketFromSession(session, kPMPrintSettingsTicket, &settings);
    panel->documentName = PMTicketGetCFString(settings, kPMJobNameKey)
                              .value_or(localizedText(panel->bundle, QStringLiteral("Unknown")));
    panel->savedJob.name = panel->documentName;
    return Sync(context, session, kSyncRead);
}

OSStatus GetSummaryText(PMPDEContext context, SummaryArray *titles, SummaryArray *texts)
{
    const PaperOutputPanelContext *panel = panelOf(context);
    if (!panel || !titles || !texts)
        return kPMInvalidPDEContext;
    if (!*titles)
        titles->emplace();
    if (!*texts)
        texts->emplace();
    for (const SummaryLine &line : paperOutputSummary(*panel, panel->ppd)) {
        (*titles)->append(line.title);
        (*texts)->append(line.text);
    }
    return noErr;
}

OSStatus Open(PMPDEContext context)
{
    PaperOutputPanelContext *panel = panelOf(context);
    if (!panel || !panel->parentUserPane)
        return kPMInvalidPDEContext;
    if (panel->opened)
        return noErr;
    Result<QWidget *> content = createWindowFromDescription(
        panel->bundle, QStringLiteral("PaperOutputPanel"), QStringLiteral("PaperOutput"));
    if (!content) {
        std::fprintf(stderr, "Open()::CreateWindowFromNib() failed: %s\n",
                     qPrintable(content.error().text()));
        return kPMInvalidPDEContext;
    }
    panel->content = content.value();
    panel->controls = findControls(panel->content);
    panel->devices = installedFinishingDevices();
    fillControls(*panel);
    EmbedAndShowControl(panel->content, panel->parentUserPane);
    panel->handler = installEventHandler(panel->content, [panel](const Event &event) {
        return paperOutputEventHandler(*panel, event);
    });
    panel->stockButtonData.bundle = panel->bundle;
    panel->stockButtonData.stock = &panel->jobStock;
    panel->stockButtonData.jobContext = kJobContextJob;
    panel->stockButtonData.summary = panel->controls.stockSummary;
    panel->stockButtonData.icon = panel->controls.stockIcon;
    panel->stockButtonData.changed = [panel] { showSeparators(*panel); };
    InitializeStockMenuButton(panel->controls.stockButton, &panel->stockButtonData);
    panel->opened = true;
    showSettings(*panel);
    return noErr;
}

OSStatus Close(PMPDEContext context)
{
    PaperOutputPanelContext *panel = panelOf(context);
    if (!panel)
        return kPMInvalidPDEContext;
    FinalizeStockMenuButton(&panel->stockButtonData);
    panel->handler.remove();
    delete panel->content;
    panel->controls = {};
    panel->opened = false;
    return noErr;
}

OSStatus Terminate(PMPDEContext context, OSStatus)
{
    if (!context)
        return kPMInvalidPDEContext;
    Close(context);
    setJobTypeProvider(nullptr);
    setFaxSetupRunner(nullptr);
    setPrintPreparation(nullptr);
    delete panelOf(context);
    return noErr;
}

} // namespace

void EnableDisableJobTypeSetupButton(const PaperOutputPanelContext &context)
{
    if (context.controls.jobTypeSetup)
        context.controls.jobTypeSetup->setEnabled(hasJobTypeSetup(context.jobType));
}

OSStatus GetPaperOutputPanelInterface(PanelInterface **interface)
{
    if (!interface)
        return paramErr;
    *interface = makePanelInterface({.Prologue = Prologue,
                                     .Initialize = Initialize,
                                     .Sync = Sync,
                                     .GetSummaryText = GetSummaryText,
                                     .Open = Open,
                                     .Close = Close,
                                     .Terminate = Terminate});
    return noErr;
}

} // namespace kelvo
