#include "event.h"

#include "control_support.h"
#include "radio_group.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QEvent>
#include <QFocusEvent>
#include <QGroupBox>
#include <QHash>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRadioButton>
#include <QSlider>
#include <QTextDocument>

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

// Tells when a field is left.
class LeaveWatcher : public QObject
{
public:
    explicit LeaveWatcher(QWidget *field)
        : QObject(field)
        , m_field(field)
    {
        field->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // Its own context menu does not take the user out of a field.
        if (watched == m_field && event->type() == QEvent::FocusOut
            && static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason) {
            const QPointer<QWidget> alive = m_field;
            sendFrom(m_field, EventKind::FocusChanged);
            if (!alive)
                return true; // and this object with it
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget *m_field;
};

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

void wireSlider(QSlider *slider)
{
    guardWheel(slider);
    // valueChanged comes for code's changes too; an action is the user's, and
    // comes just before its change.
    auto isUsers = std::make_shared<bool>(false);
    QObject::connect(slider, &QSlider::actionTriggered, slider,
                     [slider, isUsers] { *isUsers = slider->sliderPosition() != slider->value(); });
    QObject::connect(slider, &QSlider::valueChanged, slider, [slider, isUsers] {
        if (std::exchange(*isUsers, false))
            sendFrom(slider, EventKind::ControlHit);
    });
}

void wirePlainText(QPlainTextEdit *edit)
{
    QObject::connect(edit, &QPlainTextEdit::textChanged, edit, [edit] {
        // There is no textEdited here, but setPlainText() clears the undo
        // history and an edit adds to it.
        const QTextDocument *document = edit->document();
        if (!document->isUndoAvailable() && !document->isRedoAvailable())
            return;
        if (keepWithinLimits(edit))
            return; // the correction was a change, and has been sent
        sendFrom(edit, EventKind::TextChanged);
    });
    new LeaveWatcher(edit);
}

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
    // The controls of this library come from Qt's classes: asked first.
    if (qstrncmp(control->metaObject()->className(), "kelvo::", 7) == 0)
        return;
    if (qobject_cast<QRadioButton *>(control)
        && qobject_cast<RadioGroup *>(control->parentWidget()))
        return;

    if (auto *button = qobject_cast<QAbstractButton *>(control)) {
        QObject::connect(button, &QAbstractButton::clicked, button, [button] { sendHit(button); });
    } else if (auto *group = qobject_cast<QGroupBox *>(control)) {
        QObject::connect(group, &QGroupBox::clicked, group,
                         [group] { sendFrom(group, EventKind::ControlHit); });
    } else if (auto *slider = qobject_cast<QSlider *>(control)) {
        wireSlider(slider);
    } else if (auto *combo = qobject_cast<QComboBox *>(control)) {
        guardWheel(combo);
        QObject::connect(combo, &QComboBox::activated, combo,
                         [combo] { sendFrom(combo, EventKind::ControlHit); });
    } else if (auto *line = qobject_cast<QLineEdit *>(control)) {
        QObject::connect(line, &QLineEdit::textEdited, line,
                         [line] { sendFrom(line, EventKind::TextChanged); });
        new LeaveWatcher(line);
    } else if (auto *text = qobject_cast<QPlainTextEdit *>(control)) {
        wirePlainText(text);
    }
}

} // namespace kelvo
