#pragma once

#include "device.h"
#include "event.h"
#include "late_content.h"
#include "needed_controls.h"
#include "panel_interface.h"
#include "panel_summary.h"
#include "plugin_abi.h"
#include "ticket.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

// What every panel's context begins with, and the panel's side of the protocol
// (plugin_abi.h), Prologue to Terminate. A panel is what it reads, writes, says, builds
// and closes.
namespace kelvo {

struct PanelTraits
{
    const char *titleKey; // in "Localizable"; where it has no text it is the title itself
    OSType signature;
    OSStatus syncWithoutContext = kPMInvalidParameter;
    // Needs its pane in Initialize and builds in Open, once, whose status says whether it
    // could. Else it is built before it is seen, and may be opened again.
    bool isBuiltAtOnce = false;
};

// All calls come on the GUI thread. Made in Prologue, deleted in Terminate; a derived
// record has its PanelTraits as `traits` and no arguments for its constructor.
struct PanelContext
{
    explicit PanelContext(const PanelTraits &itsTraits);
    virtual ~PanelContext() = default;
    PanelContext(const PanelContext &) = delete;
    PanelContext &operator=(const PanelContext &) = delete;

    // In Initialize, before the first read. `device` is there.
    virtual void begin(const Ticket &printSettings) { Q_UNUSED(printSettings) }
    // What the tickets say, also to the controls. Where something is missing that need
    // not be there, the answer may be kPMKeyNotFound, which Initialize takes for noErr.
    // The panel may add to the ticket what it read of it.
    virtual OSStatus read(Ticket &printSettings, const Ticket &pageFormat) = 0;
    virtual OSStatus write(Ticket &printSettings, const Ticket &pageFormat) = 0;
    // Its lines of the summary; none: there is no summary.
    virtual std::optional<std::vector<SummaryLine>> words() const { return std::nullopt; }
    // `content` into the pane. What it answers matters only where the panel is built at once.
    virtual OSStatus build() = 0;
    virtual void close() { }

    // Lets go of `content`, and of what would have built it.
    void dropContent();

    const PanelTraits &panelTraits;
    CFBundleRef bundle = nullptr;
    QString title;
    Device device;                    // from Initialize on
    PMTicketRef printSettingsRef = 0; // of the last Sync
    bool opened = false;              // Open was called, and close() has not said otherwise
    QPointer<QWidget> parentUserPane;
    QPointer<QWidget> content; // the panel's own views, once they are built
    LateContent lateContent;   // from Open on
    EventHandlerRef handler;

protected:
    // `content` as createPanelContent() makes it, embedded once `fill` has filled it, with
    // `handle` for its events. kWindowNotMade where it cannot be made, and the pane says so.
    OSStatus buildContent(const char *description, const char *window,
                          const std::function<void(NeededControls &)> &findControls,
                          const std::function<void()> &fill, EventHandler handle);
};

template <typename P>
P *panelOf(PMPDEContext context)
{
    return static_cast<P *>(reinterpret_cast<PanelContext *>(context));
}

// What a panel's getter does: the operations of P, but for the first three.
PanelOperations panelOperations();
OSStatus announcePanel(PanelContext *(*make)(), PMPDEContext *context, OSType *creator,
                       CFStringRef *userOptionKind, CFStringRef *title, std::uint32_t *maxH,
                       std::uint32_t *maxV);
OSStatus syncPanel(PanelContext &panel, PMPrintSession session, std::int32_t direction);
template <typename P>
OSStatus givePanel(PanelInterface **interface)
{
    PanelOperations operations = panelOperations();
    operations.Prologue = [](PMPDEContext *context, OSType *creator, CFStringRef *kind,
                             CFStringRef *title, std::uint32_t *maxH, std::uint32_t *maxV) {
        const auto make = []() -> PanelContext * { return new P; };
        return announcePanel(make, context, creator, kind, title, maxH, maxV);
    };
    operations.Sync = [](PMPDEContext context, PMPrintSession session, std::int32_t direction) {
        return context ? syncPanel(*panelOf<P>(context), session, direction)
                       : P::traits.syncWithoutContext;
    };
    return givePanelInterface(operations, interface);
}

} // namespace kelvo
