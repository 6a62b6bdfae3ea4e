#pragma once

#include "control.h"
#include "four_char_code.h"
#include "status.h"

#include <functional>
#include <memory>

class QWidget;

// Events go from the control through its parents to the window, until a
// handler takes one (any status but eventNotHandledErr). Handlers on one widget
// are asked in the reverse order of their installation. All on the GUI thread.
namespace kelvo {

enum class EventKind {
    ControlHit,    // a button, check box, radio group, tab, slider or pop-up was changed by the user
    Command,       // a menu item with a command was chosen, or a command was sent
    Menu,          // a menu's item was chosen (class 'menu', kind 8); sent before ControlHit
    TextChanged,   // the user edited a text
    FocusChanged,  // a field is being left (control event kind 7)
    ListSelection, // the rows of a list that are selected
    ListActivated, // a row was double-clicked, or Return pressed on it
    Custom,        // class 'KPDE' kind `command`
};

struct Event
{
    EventKind kind = EventKind::ControlHit;
    QWidget *source = nullptr;     // the control it began at, or the window; never null when sent
    ControlID control;             // its ID, zeros when it has none
    OSType command = kNoCommand;   // Command: the code; Custom: the kind ('KCdb')
    std::int32_t reference = 0;    // Command and Menu: the item's reference value
    int row = -1;                  // list events: the row from 0, -1 for the empty area
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
// A widget that dies while its event is under way ends it quietly.
OSStatus sendEvent(const Event &event);

// A command to `window`, as a menu or a script sends it.
OSStatus sendCommand(QWidget *window, OSType command, std::int32_t reference = 0);

// Makes an ordinary Qt control tell of user's changes as events: QAbstractButton,
// QLineEdit, QSlider, QSpinBox and the controls of this library. What a window
// description holds is wired by the loader; call this for controls made by code.
void sendControlEvents(QWidget *control);

} // namespace kelvo
