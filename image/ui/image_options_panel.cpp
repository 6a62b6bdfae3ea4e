#include "image_options_panel.h"

#include "embed_control.h"
#include "image_options_summary.h"
#include "image_options_ticket.h"
#include "image_options_view.h"
#include "panel_content.h"
#include "panel_interface.h"
#include "panel_prologue.h"
#include "pde_session.h"
#include "ppd_choices.h"
#include "ticket.h"

namespace kelvo {

namespace {

ImageOptionsPanelContext *panelOf(PMPDEContext context)
{
    return reinterpret_cast<ImageOptionsPanelContext *>(context);
}

void buildContent(ImageOptionsPanelContext &panel)
{
    panel.content = createPanelContent(
        panel.bundle, QStringLiteral("ImageOptionsPanel"), QStringLiteral("ImageOptions"),
        panel.parentUserPane,
        [&panel](NeededControls &needed) { panel.controls = findImageOptionsControls(needed); });
    if (!panel.content)
        return;
    fillImageOptionsControls(panel);
    InvertImageOpen(panel.bundle, panel.content, panel.content, &panel.invertControls,
                    &panel.invert);
    EmbedAndShowControl(panel.content, panel.parentUserPane);
    panel.handler = installEventHandler(panel.content, [&panel](const Event &event) {
        return ImageOptionsEventHandler(panel, event);
    });
    RestoreUIValuesFromData(panel);
}

OSStatus Prologue(PMPDEContext *context, OSType *creator, CFStringRef *userOptionKind,
                  CFStringRef *title, std::uint32_t *maxH, std::uint32_t *maxV)
{
    return announcePanel<ImageOptionsPanelContext>(QStringLiteral("ImageOptions"), kShellSignature,
                                                   context, creator, userOptionKind, title, maxH,
                                                   maxV);
}

OSStatus Sync(PMPDEContext context, PMPrintSession session, std::int32_t direction)
{
    ImageOptionsPanelContext *panel = panelOf(context);
    if (!panel || !session)
        return kPMInvalidParameter;
    PMTicketRef ticket = 0;
    const OSStatus status = GetTicketFromSession(session, kPMPrintSettingsTicket, &ticket);
    if (status != noErr)
        return status;
    if (direction == kSyncWrite) {
        SaveUIValuesToData(*panel);
        SyncLightenDarkenToTicket(panel, ticket);
        SyncTonerSaverToTicket(panel, ticket);
        SyncResolutionToTicket(panel, ticket);
    } else {
        SyncLightenDarkenToUI(panel, ticket);
        SyncTonerSaverToUI(panel, ticket);
        SyncResolutionToUI(panel, ticket);
        SyncQualityAndColorToUI(panel, ticket);
    }
    InvertImageSync(&panel->invertControls, &panel->invert, direction, ticket);
    // After a read too: the ticket then says what the device would do by default.
    SyncQualityAndColorToTicket(panel, ticket);
    if (direction != kSyncWrite)
        RestoreUIValuesFromData(*panel);
    return noErr;
}

OSStatus Initialize(PMPDEContext context, std::uint32_t *, PMPDERef, PMUserPane parentUserPane,
                    PMPrintSession session)
{
    ImageOptionsPanelContext *panel = panelOf(context);
    if (!panel || !session)
        return kPMInvalidPDEContext;
    panel->parentUserPane = parentUserPane;
    InvertImageInitialize(&panel->invertControls, &panel->invert);
    panel->ppd = PPDGetCurrent();
    return Sync(context, session, kSyncRead);
}

OSStatus GetSummaryText(PMPDEContext context, SummaryArray *titles, SummaryArray *texts)
{
    const ImageOptionsPanelContext *panel = panelOf(context);
    if (!panel || !titles || !texts)
        return kPMInvalidPDEContext;
    appendSummary(imageOptionsSummary(*panel), titles, texts);
    return noErr;
}

OSStatus Open(PMPDEContext context)
{
    ImageOptionsPanelContext *panel = panelOf(context);
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
    return context ? noErr : kPMInvalidPDEContext;
}

OSStatus Terminate(PMPDEContext context, OSStatus)
{
    ImageOptionsPanelContext *panel = panelOf(context);
    if (!panel)
        return kPMInvalidPDEContext;
    InvertImageTerminate(&panel->invertControls);
    delete panel->content;
    delete panel;
    return noErr;
}

} // namespace

OSStatus GetImageOptionsPanelInterface(PanelInterface **interface)
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
