#include "event.h"

#include "control_interface.h"
#include "control_support.h"

#include <QEvent>
#include <QHash>
#include <QPointer>

#include <algorithm>
#include <vector>

namespace kelvo {

struct InstalledHandler
{
    QWidget *target = nullptr; // null once removed, or when the widget is gone
    EventHandler handler;
};

namespace {

using HandlerList = std::vector<std::shared_ptr<InstalledHandler>>; // in order of installation

// Never destroyed: handlers of static objects may be removed after it would be.
QHash<const QObject *, HandlerList> &registry()
{
    static auto &handlers = *new QHash<const QObject *, HandlerList>;
    return handlers;
}

void forgetWidget(const QObject *widget)
{
    for (const auto &installed : registry().take(widget))
        installed->target = nullptr;
}

OSStatus deliver(const Event &event)
{
    const QPointer<QWidget> source = event.source;
    QPointer<QWidget> asked = event.source;
    while (asked) {
        const HandlerList handlers = registry().value(asked.data());
        for (auto last = handlers.crbegin(); last != handlers.crend(); ++last) {
            const auto &installed = *last;
            if (!installed->target)
                continue; // removed by one that was asked before
            const OSStatus status = installed->handler(event);
            if (status != eventNotHandledErr)
                return status;
            if (!source || !asked)
                return noErr;
        }
        asked = asked->isWindow() ? nullptr : asked->parentWidget();
    }
    return eventNotHandledErr;
}

std::function<void(const Event &)> &eventWatcher()
{
    static auto &watcher = *new std::function<void(const Event &)>;
    return watcher;
}

constexpr char sendsProperty[] = "_kelvo_sends";
constexpr char commandProperty[] = "command";

class WheelGuard : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Wheel && !static_cast<QWidget *>(watched)->hasFocus()) {
            event->ignore(); // on to whatever scrolls
            return true;
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

EventHandlerRef::EventHandlerRef(EventHandlerRef &&other) noexcept
    : m_handler(std::move(other.m_handler))
{
}

EventHandlerRef &EventHandlerRef::operator=(EventHandlerRef &&other) noexcept
{
    if (this != &other) {
        remove();
        m_handler = std::move(other.m_handler);
    }
    return *this;
}

void EventHandlerRef::remove()
{
    // The function itself stays alive as long as it runs: sendEvent() holds it.
    const std::shared_ptr<InstalledHandler> installed = std::move(m_handler);
    m_handler.reset();
    if (!installed || !installed->target)
        return;
    const auto list = registry().find(installed->target);
    if (list != registry().end())
        std::erase(*list, installed);
    installed->target = nullptr;
}

bool EventHandlerRef::isInstalled() const
{
    return m_handler && m_handler->target;
}

EventHandlerRef installEventHandler(QWidget *target, EventHandler handler)
{
    EventHandlerRef ref;
    if (!target || !handler)
        return ref;
    if (!registry().contains(target))
        QObject::connect(target, &QObject::destroyed, &forgetWidget);
    ref.m_handler =
        std::make_shared<InstalledHandler>(InstalledHandler{target, std::move(handler)});
    registry()[target].push_back(ref.m_handler);
    return ref;
}

void watchEvents(std::function<void(const Event &)> watcher)
{
    eventWatcher() = std::move(watcher);
}

OSStatus sendEvent(const Event &event)
{
    const QPointer<QWidget> source = event.source;
    const OSStatus status = deliver(event);
    if (source && eventWatcher())
        eventWatcher()(event);
    return status;
}

void showControl(QWidget *control)
{
    sendEvent({.kind = EventKind::ShowControl, .source = control});
}

OSStatus sendCommand(QWidget *window, OSType command, std::int32_t reference)
{
    return sendFrom(window, EventKind::Command, command, reference);
}

OSStatus sendFrom(QWidget *source, EventKind kind, OSType command, std::int32_t reference, int row)
{
    Event event;
    event.kind = kind;
    event.source = source;
    event.control = controlIDOf(source).value_or(ControlID{});
    event.command = command;
    event.reference = reference;
    event.row = row;
    return sendEvent(event);
}

void sendHit(QWidget *control)
{
    const QPointer<QWidget> alive = control;
    const std::optional<OSType> command = commandOf(control);
    const OSStatus status = sendFrom(control, EventKind::ControlHit);
    if (status == eventNotHandledErr && command && alive)
        sendFrom(control, EventKind::Command, *command);
}

bool focusAsClicked(QWidget *control)
{
    if (control->focusPolicy() & Qt::ClickFocus)
        control->setFocus();
    return control->isEnabled();
}

void guardWheel(QWidget *control)
{
    control->setFocusPolicy(Qt::StrongFocus);
    control->installEventFilter(new WheelGuard(control));
}

QString oneLine(const QString &text)
{
    QString line = text;
    for (QChar &c : line) {
        if (c.isSpace() || c.category() == QChar::Other_Control)
            c = u' ';
    }
    return line;
}

std::optional<OSType> commandOf(const QWidget *control)
{
    const QByteArray text = control->property(commandProperty).toString().toLatin1();
    if (text.size() != 4)
        return std::nullopt;
    OSType command = 0;
    for (const char c : text)
        command = command << 8 | static_cast<unsigned char>(c);
    return command;
}

void sendControlEvents(QWidget *control)
{
    if (control->property(sendsProperty).toBool())
        return;
    control->setProperty(sendsProperty, true);
    controlInterface(control)->sendEvents();
}

} // namespace kelvo
