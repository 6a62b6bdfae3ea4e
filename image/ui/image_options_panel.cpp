#include "image_options_panel.h"

#include "embed_control.h"
#include "image_options_summary.h"
#include "image_options_view.h"
#include "panel_content.h"
#include "panel_interface.h"
#include "panel_prologue.h"
#include "pde_session.h"
#include "print_session.h"

namespace kelvo {

namespace {

ImageOptionsContext *panelOf(PMPDEContext context)
{
    return reinterpret_cast<ImageOptionsContext *>(context);
}

void buildContent(ImageOptionsContext &panel)
{
    panel.content = createPanelContent(
        panel.bundle, QStringLiteral("ImageOptionsPanel"), QStringLiteral("ImageOptions"),
        panel.parentUserPane,
        [&panel](NeededControls &needed) { panel.controls = findImageOptionsControls(needed); });
    if (!panel.content)
        return;
    fillImageOptionsControls(panel);
    InvertImageOpen(panel.bundle, panel.content, panel.content, &panel.invertControls,
                    &panel.settings.invert);
    EmbedAndShowControl(panel.content, panel.parentUserPane);
    panel.handler = installEventHandler(panel.content, [&panel](const Event &event) {
        return ImageOptionsEventHandler(panel, event);
    });
    RestoreUIValuesFromData(panel);
}

OSStatus Prologue(PMPDEContext *context, OSType *creator, CFStringRef *userOptionKind,
                  CFStringRef *title, std::uint32_t *maxH, std::uint32_t *maxV)
{
    return announcePanel<ImageOptionsContext>(QStringLiteral("ImageOptions"), kShellSignature,
                                              context, creator, userOptionKind, title, maxH, maxV);
}

OSStatus Sync(PMPDEContext context, PMPrintSession session, std::int32_t direction)
{
    ImageOptionsContext *panel = panelOf(context);
    if (!panel || !session)
        return kPMInvalidParameter;
    PMTicketRef ticket = 0;
    const OSStatus status = GetTicketFromSession(session, kPMPrintSettingsTicket, &ticket);
    if (status != noErr)
        return status;
    Ticket *printSettings = findTicket(ticket);
    if (!printSettings)
        return kPMInvalidTicket;
    ImageOptionsSettings &settings = panel->settings;
    if (direction == kSyncWrite) {
        SaveUIValuesToData(*panel);
        takeInvertImage(panel->invertControls, settings.invert);
        writeImageOptions(settings, *printSettings, panel->device, panel->opened);
    } else {
        readImageOptions(settings, *printSettings, panel->device);
        writeQualityAndColor(settings, *printSettings, panel->device);
        showInvertImage(panel->invertControls, settings.invert);
        RestoreUIValuesFromData(*panel);
    }
    return noErr;
}

OSStatus Initialize(PMPDEContext context, std::uint32_t *, PMPDERef, PMUserPane parentUserPane,
                    PMPrintSession session)
{
    ImageOptionsContext *panel = panelOf(context);
    if (!panel || !session)
        return kPMInvalidPDEContext;
    panel->parentUserPane = parentUserPane;
    InvertImageInitialize(&panel->invertControls, &panel->settings.invert);
    panel->device = currentDevice();
    return Sync(context, session, kSyncRead);
}

OSStatus GetSummaryText(PMPDEContext context, SummaryArray *titles, SummaryArray *texts)
{
    const ImageOptionsContext *panel = panelOf(context);
    if (!panel || !titles || !texts)
        return kPMInvalidPDEContext;
    appendSummary(imageOptionsSummary(panel->settings, panel->device), titles, texts);
    return noErr;
}

OSStatus Open(PMPDEContext context)
{
    ImageOptionsContext *panel = panelOf(context);
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
    ImageOptionsContext *panel = panelOf(context);
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
