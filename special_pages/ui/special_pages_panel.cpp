#include "special_pages_panel.h"

#include "dialog_window.h"
#include "embed_control.h"
#include "special_pages_commands.h"
#include "special_pages_context.h"
#include "special_pages_view.h"
#include "terminal.h"
#include "window_loader.h"

namespace kelvo {

namespace {

// Whoever starts the dialog from a terminal sees why the pane stays empty.
OSStatus openFailed(const char *what)
{
    printLine(stdout, QStringLiteral("!! Failed to %1.").arg(QLatin1String(what)));
    return fnfErr;
}

} // namespace

_SpecialPagesContext::_SpecialPagesContext()
    : PanelContext(traits)
{
    _specialPagesContext = this;
}

_SpecialPagesContext::~_SpecialPagesContext()
{
    if (_specialPagesContext == this)
        _specialPagesContext = nullptr;
}

OSStatus _SpecialPagesContext::read(Ticket &printSettings, const Ticket &)
{
    // Of another ticket, a preset's say, nothing can be undone.
    if (!holdsSpecialPages(printSettings, settings))
        undo.reset();
    readSpecialPages(settings, printSettings, device);
    UpdateSpecialPagesSummary(this);
    return settings.jobStock ? noErr : kPMKeyNotFound;
}

OSStatus _SpecialPagesContext::write(Ticket &printSettings, const Ticket &)
{
    return writeSpecialPages(settings, printSettings);
}

OSStatus _SpecialPagesContext::build()
{
    const QString name = QStringLiteral("SpecialPages");
    const Result<QWidget *> made = createWindowFromDescription(bundle, name, name);
    const auto sayNotMade = [this, &name](const QString &reason) {
        showPanelNotMade(bundle, parentUserPane, name + u'/' + name, reason);
    };
    if (!made) {
        sayNotMade(made.error().text());
        return made.error().code == Error::Code::NotFound ? openFailed("load nib from bundle")
                                                          : openFailed("create window from nib");
    }
    const std::unique_ptr<QWidget> window(made.value());
    NeededControls needed(window.get());
    findSpecialPagesControls(*this, needed);
    if (!needed.missing().isEmpty()) {
        sayNotMade(lacksControlsText(bundle, needed.missing()));
        return openFailed(content ? "get control reference" : "get user pane control reference");
    }
    InitializeSpecialPages(*this);
    handler = installEventHandler(
        content, [this](const Event &event) { return SpecialPagesEventHandler(*this, event); });
    return EmbedAndShowControl(content, parentUserPane);
}

OSStatus GetSpecialPagesPanelInterface(PanelInterface **interface)
{
    return givePanel<_SpecialPagesContext>(interface);
}

} // namespace kelvo
