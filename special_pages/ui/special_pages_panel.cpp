#include "special_pages_panel.h"

#include "dialog_window.h"
#include "embed_control.h"
#include "panel_interface.h"
#include "panel_prologue.h"
#include "pde_session.h"
#include "print_session.h"
#include "special_pages_commands.h"
#include "special_pages_context.h"
#include "special_pages_view.h"
#include "terminal.h"
#include "ticket_values.h"
#include "window_loader.h"

namespace kelvo {

namespace {

_SpecialPagesContext *panelOf(PMPDEContext context)
{
    return reinterpret_cast<_SpecialPagesContext *>(context);
}

// Whoever starts the dialog from a terminal sees why the pane stays empty.
OSStatus openFailed(const char *what)
{
    printLine(stdout, QStringLiteral("!! Failed to %1.").arg(QLatin1String(what)));
    return fnfErr;
}

// Builds the panel's pane and puts it into its place.
OSStatus buildPane(_SpecialPagesContext &panel)
{
    const QString name = QStringLiteral("SpecialPages");
    const Result<QWidget *> made = createWindowFromDescription(panel.bundle, name, name);
    const auto sayNotMade = [&panel, &name](const QString &reason) {
        showPanelNotMade(panel.bundle, panel.parentPane, name + u'/' + name, reason);
    };
    if (!made) {
        sayNotMade(made.error().text());
        return made.error().code == Error::Code::NotFound ? openFailed("load nib from bundle")
                                                          : openFailed("create window from nib");
    }
    const std::unique_ptr<QWidget> window(made.value());
    NeededControls needed(window.get());
    findSpecialPagesControls(panel, needed);
    if (!needed.missing().isEmpty()) {
        sayNotMade(lacksControlsText(panel.bundle, needed.missing()));
        return openFailed(panel.pane ? "get control reference" : "get user pane control reference");
    }
    InitializeSpecialPages(panel);
    // On the parent, which the dialog's help command is sent to.
    panel.handler = installEventHandler(panel.parentPane, [&panel](const Event &event) {
        return SpecialPagesEventHandler(panel, event);
    });
    return EmbedAndShowControl(panel.pane, panel.parentPane);
}

OSStatus Prologue(PMPDEContext *context, OSType *creator, CFStringRef *userOptionKind,
                  CFStringRef *title, std::uint32_t *maxH, std::uint32_t *maxV)
{
    const OSStatus status =
        announcePanel<_SpecialPagesContext>(QStringLiteral("SpecialPagesTitle"), kPanelSignature,
                                            context, creator, userOptionKind, title, maxH, maxV);
    if (status == noErr)
        _specialPagesContext = panelOf(*context);
    return status;
}

OSStatus Sync(PMPDEContext context, PMPrintSession session, std::int32_t direction)
{
    _SpecialPagesContext *panel = panelOf(context);
    if (!panel)
        return kPMInvalidPDEContext;
    OSStatus status = GetTicketFromSession(session, kPMPrintSettingsTicket, &panel->ticket);
    if (status != noErr)
        return status;
    Ticket *printSettings = findTicket(panel->ticket);
    if (!printSettings)
        return kPMInvalidTicket;
    SpecialPagesSettings &settings = panel->settings;
    if (direction == kSyncWrite) {
        status = writeSpecialPages(settings, *printSettings);
    } else if (direction == kSyncRead) {
        // Of another ticket, a preset's say, nothing can be undone.
        if (!holdsSpecialPages(*printSettings, settings))
            panel->undo.reset();
        readSpecialPages(settings, *printSettings, panel->device);
        UpdateSpecialPagesSummary(panel);
        status = settings.jobStock ? noErr : kPMKeyNotFound; // none is in order
    }
    return status;
}

OSStatus Initialize(PMPDEContext context, std::uint32_t *, PMPDERef, PMUserPane parentPane,
                    PMPrintSession session)
{
    _SpecialPagesContext *panel = panelOf(context);
    if (!panel || !parentPane || !session)
        return kPMInvalidPDEContext;
    panel->parentPane = parentPane;
    panel->device = currentDevice(panel->bundle);
    Sync(context, session, kSyncRead); // what a ticket does not have is in order
    return noErr;
}

// Nothing: special pages are not a line of the summary.
OSStatus GetSummaryText(PMPDEContext context, SummaryArray *titles, SummaryArray *texts)
{
    if (!context || !titles || !texts)
        return kPMInvalidPDEContext;
    titles->reset();
    texts->reset();
    return noErr;
}

OSStatus Open(PMPDEContext context)
{
    _SpecialPagesContext *panel = panelOf(context);
    if (!panel || panel->opened || !panel->parentPane)
        return kPMInvalidPDEContext;
    panel->opened = true;
    return buildPane(*panel);
}

OSStatus Close(PMPDEContext context)
{
    return context ? noErr : kPMInvalidPDEContext;
}

OSStatus Terminate(PMPDEContext context, OSStatus)
{
    _SpecialPagesContext *panel = panelOf(context);
    if (!panel)
        return kPMInvalidPDEContext;
    if (_specialPagesContext == panel)
        _specialPagesContext = nullptr;
    delete panel->pane; // before what it shows
    delete panel;
    return noErr;
}

} // namespace

OSStatus GetSpecialPagesPanelInterface(PanelInterface **interface)
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
