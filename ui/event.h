#pragma once

#include "control.h"
#include "four_char_code.h"
#include "status.h"

#include <functional>
#include <memory>
#include <optional>

class QWidget;

// Events go from the control through its parents to the window, until a
// handler takes one (any status but eventNotHandledErr). Handlers on one widget
// are asked in the reverse order of their installation. All on the GUI thread.
namespace kelvo {

enum class EventKind {
    ControlHit,   // a button, check box, radio group, tab, slider or pop-up was changed by the user
    Command,      // a menu item with a command was chosen, or a command was sent
    Menu,         // a menu's item was chosen (class 'menu', kind 8); sent before ControlHit
    TextChanged,  // the user edited a text
    FocusChanged, // a field is being left (control event kind 7)
    ListSelection, // the rows of a list that are selected
    ListActivated, // a row was double-clicked, or Return pressed on it
    Custom,        // class 'KPDE' kind `command`
    ShowControl,   // the source must be seen: who has it behind another panel shows it; never taken
};

struct Event
{
    EventKind kind = EventKind::ControlHit;
    QWidget *source = nullptr;   // the control it began at, or the window; never null when sent
    ControlID control;           // its ID, zeros when it has none
    OSType command = kNoCommand; // Command: the code; Custom: the kind ('KCdb')
    std::int32_t reference = 0;  // Command and Menu: the item's reference value
    int row = -1;                // list events: the row from 0, -1 for the empty area
};

using EventHandler = std::function<OSStatus(const Event &)>;

// An installed handler; removed when this goes, or when the widget does.
class EventHandlerRef
{
public:
    EventHandlerRef() = default;
    ~EventHandlerRef() { remove(); }
    EventHandlerRef(EventHandlerRef &&other) noexcept;
    EventHandlerRef &operator=(EventHandlerRef &&other) noexcept;
    void remove();
    bool isInstalled() const;

private:
    friend EventHandlerRef installEventHandler(QWidget *, EventHandler);
    std::shared_ptr<struct InstalledHandler> m_handler;
};

[[nodiscard]] EventHandlerRef installEventHandler(QWidget *target, EventHandler handler);

// Sends `event` from its source upwards. eventNotHandledErr when nobody took it.
// A handler may remove handlers and destroy widgets: when the source or the
// widget being asked is gone, the event ends with noErr, so that the caller does
// nothing more on behalf of a window that is not there.
OSStatus sendEvent(const Event &event);

// Tells `watcher` of every event in the program once it has ended, whoever took
// it: for what follows from the user's changes as a whole. There is one watcher;
// an empty one removes it. An event whose source is gone is not told.
void watchEvents(std::function<void(const Event &)> watcher);

// A command to `window`, as a menu or a script sends it.
OSStatus sendCommand(QWidget *window, OSType command, std::int32_t reference = 0);

// Brings `control`, or the pane that it will be on, into the user's sight, whichever panel is
// in front.
void showControl(QWidget *control);

// The command that a button sends, as it stands in its dynamic property
// "command"; none when there is no such property or it is not four characters.
std::optional<OSType> commandOf(const QWidget *control);

// Makes an ordinary Qt control tell of the user's changes as events:
//   buttons, check boxes   ControlHit, then, unless that was taken, Command when
//                          they have one (the dynamic property "command", four
//                          characters); tab controls do the same
//   QGroupBox with a check box, sliders, QComboBox   ControlHit
//   QLineEdit, QPlainTextEdit   TextChanged, and FocusChanged when it is left
// The controls of this library send by themselves, and a radio button inside a
// RadioGroup leaves it to the group. A second call changes nothing. What a window
// description holds is wired by the loader; call this for controls made by code.
void sendControlEvents(QWidget *control);

} // namespace kelvo
