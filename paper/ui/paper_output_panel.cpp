#include "paper_output_panel.h"

#include "delayed_print.h"
#include "embed_control.h"
#include "panel_content.h"
#include "panel_interface.h"
#include "panel_prologue.h"
#include "paper_output_events.h"
#include "paper_output_summary.h"
#include "pde_session.h"
#include "print_session.h"
#include "ticket.h"
#include "ticket_values.h"

namespace kelvo {

namespace {

_PaperOutputContext *panelOf(PMPDEContext context)
{
    return reinterpret_cast<_PaperOutputContext *>(context);
}

JobTypeState jobTypeState(PMPDEContext context)
{
    const _PaperOutputContext *panel = panelOf(context);
    if (!panel)
        return {};
    return {panel->settings.jobType,
            panel->settings.passcode && !panel->settings.passcode->isEmpty(),
            panel->settings.faxRecipients && !panel->settings.faxRecipients->isEmpty()};
}

// A ticket or preset may be older than its time: the job waits for the next one.
void prepareToPrint(PMPDEContext context)
{
    _PaperOutputContext *panel = panelOf(context);
    const LongDateTime now = currentLongDate();
    if (panel && panel->settings.jobType == kJobTypeDelayedPrint
        && panel->settings.delayedPrintTime < now)
        panel->settings.delayedPrintTime =
            delayedPrintTime(timeOf(panel->settings.delayedPrintTime), now);
}

void runFaxSetupFor(PMPDEContext context)
{
    if (_PaperOutputContext *panel = panelOf(context))
        runFaxSetup(*panel);
}

void buildContent(_PaperOutputContext &panel)
{
    panel.content = createPanelContent(
        panel.bundle, QStringLiteral("PaperOutputPanel"), QStringLiteral("PaperOutput"),
        panel.parentUserPane,
        [&panel](NeededControls &needed) { panel.controls = findPaperOutputControls(needed); });
    if (!panel.content)
        return;
    fillPaperOutputControls(panel);
    EmbedAndShowControl(panel.content, panel.parentUserPane);
    panel.handler = installEventHandler(panel.content, [&panel](const Event &event) {
        return PaperOutputEventHandler(panel, event);
    });
    panel.stockButtonData.bundle = panel.bundle;
    panel.stockButtonData.stock = &panel.settings.jobStock;
    panel.stockButtonData.jobContext = kJobContextJob;
    panel.stockButtonData.summary = panel.controls.stockSummary;
    panel.stockButtonData.icon = panel.controls.stockIcon;
    panel.stockButtonData.changed = [&panel] { showStockAndSeparators(panel); };
    InitializeStockMenuButton(panel.controls.stockButton, &panel.stockButtonData);
    showPaperOutput(panel);
}

OSStatus Prologue(PMPDEContext *context, OSType *creator, CFStringRef *userOptionKind,
                  CFStringRef *title, std::uint32_t *maxH, std::uint32_t *maxV)
{
    const OSStatus status =
        announcePanel<_PaperOutputContext>(QStringLiteral("PaperOutput"), kPanelSignature, context,
                                           creator, userOptionKind, title, maxH, maxV);
    if (status != noErr)
        return status;
    initializePaperOutput(panelOf(*context)->settings, currentLongDate());
    setJobTypeProvider(jobTypeState);
    setFaxSetupRunner(runFaxSetupFor);
    setPrintPreparation(prepareToPrint);
    return noErr;
}

OSStatus Sync(PMPDEContext context, PMPrintSession session, std::int32_t direction)
{
    _PaperOutputContext *panel = panelOf(context);
    if (!panel || !session)
        return kPMInvalidParameter;
    PMTicketRef settings = 0;
    PMTicketRef pageFormat = 0;
    OSStatus status = GetTicketFromSession(session, kPMPrintSettingsTicket, &settings);
    if (status == noErr)
        status = GetTicketFromSession(session, kPMPageFormatTicket, &pageFormat);
    if (status != noErr)
        return status;
    Ticket *printSettings = findTicket(settings);
    const Ticket *pageFormatTicket = findTicket(pageFormat);
    if (!printSettings || !pageFormatTicket)
        return kPMInvalidTicket;
    if (direction == kSyncWrite) {
        readOrientation(panel->settings, *pageFormatTicket);
        writePaperOutput(panel->settings, *printSettings, panel->opened);
    } else if (direction == kSyncRead) {
        readPaperOutput(panel->settings, *printSettings, *pageFormatTicket, panel->device);
        showPaperOutput(*panel);
    }
    return noErr;
}

OSStatus Initialize(PMPDEContext context, std::uint32_t *, PMPDERef, PMUserPane parentUserPane,
                    PMPrintSession session)
{
    _PaperOutputContext *panel = panelOf(context);
    if (!panel || !session)
        return kPMInvalidPDEContext;
    panel->parentUserPane = parentUserPane;
    panel->device = currentDevice();
    PMTicketRef settings = 0;
    GetTicketFromSession(session, kPMPrintSettingsTicket, &settings);
    panel->documentName = PMTicketGetCFString(settings, kPMJobNameKey)
                              .value_or(localizedText(panel->bundle, QStringLiteral("Unknown")));
    panel->settings.savedJob.name = panel->documentName;
    return Sync(context, session, kSyncRead);
}

OSStatus GetSummaryText(PMPDEContext context, SummaryArray *titles, SummaryArray *texts)
{
    const _PaperOutputContext *panel = panelOf(context);
    if (!panel || !titles || !texts)
        return kPMInvalidPDEContext;
    appendSummary(paperOutputSummary(panel->settings, panel->device), titles, texts);
    return noErr;
}

OSStatus Open(PMPDEContext context)
{
    _PaperOutputContext *panel = panelOf(context);
    if (!panel || !panel->parentUserPane)
        return kPMInvalidPDEContext;
    if (panel->opened)
        return noErr;
    panel->opened = true;
    panel->lateContent = buildBeforeSeen(panel->parentUserPane, [panel] { buildContent(*panel); });
    return noErr;
}

OSStatus Close(PMPDEContext context)
{
    _PaperOutputContext *panel = panelOf(context);
    if (!panel)
        return kPMInvalidPDEContext;
    panel->lateContent.reset();
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

OSStatus GetPaperOutputPanelInterface(PanelInterface **interface)
{
    return givePanelInterface({.Prologue = Prologue,
                               .Initialize = Initialize,
                               .Sync = Sync,
                               .GetSummaryText = GetSummaryText,
                               .Open = Open,
                               .Close = Close,
                               .Terminate = Terminate},
                              interface);
}

} // namespace kelvo
