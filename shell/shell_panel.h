#pragma once

#include "event.h"
#include "panel_table.h"
#include "pde_session.h"
#include "plugin_abi.h"
#include "popup_button.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <cstdint>
#include <memory>
#include <vector>

class QAbstractButton;

// The shell: the one panel that the print dialog sees. It loads the built-in
// panels by name, shows each as a tab and passes every call on to all of them.
//
// What a panel must do:
//
// - Export `OSStatus Get<Panel>PanelInterface(PanelInterface **)` with
//   KELVO_PLUGIN_EXPORT, made with makePanelInterface(), and stand in
//   PanelInterfaces (or in the bundle's list of further panels, which the dialog
//   loads). Its library is linked into the module as a whole archive.
// - Prologue makes the context and gives title and kind; both strings live in
//   the context. After a failure there is no context to free.
// - Initialize keeps the pane, which is hidden and has neither size nor layout to
//   rely on, and reads the ticket. No control exists yet: whatever Sync touches
//   must be checked. PPDGetCurrent() is there and of our maker.
// - Open comes after Initialize, first for the hidden pane; the first one loads
//   the window and puts its content into the pane with EmbedAndShowControl().
//   Later ones must not load it again.
// - Sync may come at any time from Initialize on. Reading fills the context and
//   the controls, and may come many times without a write between. Writing puts
//   the context into the ticket and must not lose what the panel does not know.
//   Panels never call one another: they meet in the ticket.
// - Event handlers answer eventNotHandledErr for what they do not consume.
// - Terminate frees the context. The pane and what is in it still stand then,
//   and go right after; the current PPD and the features stand too.
namespace kelvo {

// The window's parts that the shell works with; null before Open, and again
// when the window goes first.
struct ShellControls
{
    QPointer<QWidget> group;           // Kshl 10, all of it
    QPointer<PopupButton> tabSelector; // Kshl 16, an item's reference is its tab index
    QPointer<QWidget> contentFrame;    // Kshl 15
    QPointer<QWidget> panelArea;       // Kshl 17, the panes lie in it one over the other
};

struct PDEShellContext
{
    bool opened = false; // by the first Open; later ones only reopen the panels
    CFBundleRef bundle = nullptr;
    QString title;
    QPointer<QWidget> parentUserPane;
    PMPrintSession session = nullptr;
    std::vector<PanelRecord> panels; // in tab order
    std::unique_ptr<QWidget> window; // loaded by Initialize, until Open takes it apart
    ShellControls controls;
    QPointer<QWidget> defaultButton; // the dialog's Print button
    QPointer<QWidget> cancelButton;
    EventHandlerRef windowHandler; // from Open to Close
    EventHandlerRef groupHandler;
    EventHandlerRef defaultButtonHandler;
    EventHandlerRef cancelButtonHandler;
};

// The tab shown in the current dialog, 0 before the first one; every dialog
// begins with 0.
extern std::int32_t gCurrentPanel;
// The tab shown last, in this dialog or an earlier one; 0 before the first.
extern std::int32_t lastTabIndex;

// The shell's operations; slots 1 to 3 are null, QueryInterface fills them.
PanelOperations shellOperations();

// Shows the panel at tab `index`, which must be there: the panel left writes the
// ticket, then all others, the new one included, read it, so that the new one
// shows what the left one decided.
void selectPanel(std::int32_t index, PDEShellContext &shell);

// Makes the bundle's help folder the help book: noErr also when there is no
// bundle, fnfErr when the folder cannot be read.
OSStatus RegisterMyHelpBook(const PDEShellContext &shell);

// What the shell itself writes into the print settings ticket beside the client
// information:
//   com.kelvo.print.KPIFOptions   dictionary: KPIFOptionCovers, KPIFOptionExceptions,
//                                 KPIFOptionInserts, each true
//   com.kelvo.print.ControllerInformation.ControllerFamily    "Green"
//   com.kelvo.print.ControllerInformation.ControllerVersion   "7.0"
// and what it removes: com.kelvo.print.RotateBooklet180Degrees.
void writeShellEntries(PMTicketRef ticket);

// The least size of the shell's content, in logical pixels, for a font of that
// many pixels: 540 by 491, and more for a font above the usual 13 pixels.
QSize minimumShellSize(double fontPixels);

// Commands of the dialog's menus and keys.
inline constexpr OSType kCommandNextTab = fourCharCode("KFup");
inline constexpr OSType kCommandPreviousTab = fourCharCode("KFdn");
inline constexpr OSType kCommandShellHelp = fourCharCode("help");

// The bundle hangs on the dialog's default button under this creator and tag, as
// a QVariant that holds a void pointer.
inline constexpr OSType kShellPropertyCreator = fourCharCode("KPDE");
inline constexpr OSType kBundlePropertyTag = fourCharCode("MBND");

} // namespace kelvo
