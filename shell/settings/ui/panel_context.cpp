#include "panel_context.h"

#include "dialog_window.h"
#include "embed_control.h"
#include "panel_content.h"
#include "pde_session.h"
#include "print_session.h"

namespace kelvo {

namespace {

OSStatus initializePanel(PMPDEContext context, std::uint32_t *, PMPDERef, PMUserPane parentUserPane,
                         PMPrintSession session)
{
    auto *panel = panelOf<PanelContext>(context);
    if (!panel || !session || (panel->panelTraits.isBuiltAtOnce && !parentUserPane))
        return kPMInvalidPDEContext;
    panel->parentUserPane = parentUserPane;
    panel->device = currentDevice(panel->bundle);
    panel->begin(session->printSettings());
    const OSStatus status = syncPanel(*panel, session, kSyncRead);
    return status == kPMKeyNotFound ? noErr : status;
}

OSStatus getSummaryText(PMPDEContext context, SummaryArray *titles, SummaryArray *texts)
{
    const auto *panel = panelOf<PanelContext>(context);
    if (!panel || !titles || !texts)
        return kPMInvalidPDEContext;
    if (const auto lines = panel->words()) {
        appendSummary(*lines, titles, texts);
    } else {
        titles->reset();
        texts->reset();
    }
    return noErr;
}

OSStatus openPanel(PMPDEContext context)
{
    auto *panel = panelOf<PanelContext>(context);
    if (!panel || !panel->parentUserPane)
        return kPMInvalidPDEContext;
    const bool isBuiltAtOnce = panel->panelTraits.isBuiltAtOnce;
    if (panel->opened)
        return isBuiltAtOnce ? kPMInvalidPDEContext : noErr;
    panel->opened = true;
    if (isBuiltAtOnce)
        return panel->build();
    panel->lateContent = buildBeforeSeen(panel->parentUserPane, [panel] { panel->build(); });
    return noErr;
}

OSStatus closePanel(PMPDEContext context)
{
    if (!context)
        return kPMInvalidPDEContext;
    panelOf<PanelContext>(context)->close();
    return noErr;
}

OSStatus terminatePanel(PMPDEContext context, OSStatus)
{
    auto *panel = panelOf<PanelContext>(context);
    if (!panel)
        return kPMInvalidPDEContext;
    panel->close();
    panel->dropContent(); // before what it shows
    delete panel;
    return noErr;
}

} // namespace

PanelContext::PanelContext(const PanelTraits &itsTraits)
    : panelTraits(itsTraits)
    , bundle(GetPDEBundle())
{
    const QString key = QString::fromLatin1(itsTraits.titleKey);
    title = CFBundleCopyLocalizedString(bundle, key, key, QStringLiteral("Localizable"));
}

OSStatus PanelContext::buildContent(const char *description, const char *window,
                                    const std::function<void(NeededControls &)> &findControls,
                                    const std::function<void()> &fill, EventHandler handle)
{
    content = createPanelContent(bundle, QString::fromLatin1(description),
                                 QString::fromLatin1(window), parentUserPane, findControls);
    if (!content)
        return kWindowNotMade;
    fill();
    EmbedAndShowControl(content, parentUserPane);
    handler = installEventHandler(content, std::move(handle));
    return noErr;
}

void PanelContext::dropContent()
{
    lateContent.reset();
    handler.remove();
    delete content;
}

PanelOperations panelOperations()
{
    return {.Initialize = initializePanel,
            .GetSummaryText = getSummaryText,
            .Open = openPanel,
            .Close = closePanel,
            .Terminate = terminatePanel};
}

// Sizes are 0: the shell asks the panels' layouts.
OSStatus announcePanel(PanelContext *(*make)(), PMPDEContext *context, OSType *creator,
                       CFStringRef *userOptionKind, CFStringRef *title, std::uint32_t *maxH,
                       std::uint32_t *maxV)
{
    if (!context || !creator || !userOptionKind || !title || !maxH || !maxV)
        return kPMInvalidPDEContext;
    PanelContext *panel = make();
    *context = reinterpret_cast<PMPDEContext>(panel);
    *creator = panel->panelTraits.signature;
    *userOptionKind = &kPDEPanelKind;
    *title = &panel->title;
    *maxH = 0;
    *maxV = 0;
    return noErr;
}

OSStatus syncPanel(PanelContext &panel, PMPrintSession session, std::int32_t direction)
{
    if (!session)
        return kPMInvalidParameter;
    PMTicketRef pageFormatRef = 0;
    OSStatus status =
        GetTicketFromSession(session, kPMPrintSettingsTicket, &panel.printSettingsRef);
    if (status == noErr)
        status = GetTicketFromSession(session, kPMPageFormatTicket, &pageFormatRef);
    if (status != noErr)
        return status;
    Ticket *printSettings = findTicket(panel.printSettingsRef);
    const Ticket *pageFormat = findTicket(pageFormatRef);
    if (!printSettings || !pageFormat)
        return kPMInvalidTicket;
    switch (direction) {
    case kSyncWrite:
        return panel.write(*printSettings, *pageFormat);
    case kSyncRead:
        return panel.read(*printSettings, *pageFormat);
    default:
        return noErr;
    }
}

} // namespace kelvo
