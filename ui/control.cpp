#include "control.h"

#include <QHash>
#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>

#include <limits>

namespace kelvo {

namespace {

constexpr char defaultButtonProperty[] = "_kelvo_defaultButton";
constexpr char cancelButtonProperty[] = "_kelvo_cancelButton";
constexpr char awaitedProperty[] = "_kelvo_awaited";

// Which widget has which ID, and the other way round. Never destroyed: widgets
// of static objects may go after it would.
struct ControlRegistry
{
    QHash<const QObject *, ControlID> idOf;
    QHash<ControlID, QList<QWidget *>> controls;
};

ControlRegistry &registry()
{
    static auto &controls = *new ControlRegistry;
    return controls;
}

void forgetControl(const QObject *control)
{
    const auto id = registry().idOf.constFind(control);
    if (id == registry().idOf.constEnd())
        return;
    const auto list = registry().controls.find(*id);
    list->removeIf([control](const QObject *other) { return other == control; });
    if (list->isEmpty())
        registry().controls.erase(list);
    registry().idOf.erase(id);
}

// How far up from `widget` the first parent is that holds `other` too.
int distance(const QWidget *widget, const QWidget *other)
{
    int steps = 0;
    for (; widget != other && !widget->isAncestorOf(other); widget = widget->parentWidget())
        ++steps;
    return steps;
}

QByteArray propertyName(OSType creator, OSType tag)
{
    return "_kelvo_property_" + QByteArray::number(creator, 16) + '_' + QByteArray::number(tag, 16);
}

QWidget *windowButton(const QWidget *anyWidget, const char *property)
{
    if (!anyWidget)
        return nullptr;
    return anyWidget->window()->property(property).value<QPointer<QWidget>>().data();
}

QLabel *labelAmong(const QList<QLabel *> &labels, const QWidget *control)
{
    for (QLabel *label : labels) {
        if (label->buddy() == control)
            return label;
    }
    return nullptr;
}

} // namespace

std::optional<ControlID> controlIDFromText(const QString &text)
{
    if (text.size() < 6 || text.at(4) != u' ')
        return std::nullopt;
    ControlID id;
    for (int i = 0; i < 4; ++i) {
        const char16_t c = text.at(i).unicode();
        if (c < 0x20 || c > 0x7E)
            return std::nullopt;
        id.signature = id.signature << 8 | c;
    }
    bool isNumber = false;
    id.number = text.mid(5).toInt(&isNumber);
    // One spelling for one ID: "007", "+7" and "7 " would name it a second time.
    if (!isNumber || textOf(id) != text)
        return std::nullopt;
    return id;
}

QString textOf(ControlID id)
{
    return charactersOf(id.signature) + u' ' + QString::number(id.number);
}

QString charactersOf(OSType code)
{
    QString characters;
    for (int shift = 24; shift >= 0; shift -= 8)
        characters += QChar(static_cast<char16_t>(code >> shift & 0xFF));
    return characters;
}

void setControlID(QWidget *control, ControlID id)
{
    if (registry().idOf.contains(control))
        forgetControl(control);
    else
        QObject::connect(control, &QObject::destroyed, &forgetControl);
    registry().idOf.insert(control, id);
    registry().controls[id].append(control);
}

std::optional<ControlID> controlIDOf(const QWidget *control)
{
    const auto id = registry().idOf.constFind(control);
    return id == registry().idOf.constEnd() ? std::nullopt : std::optional(*id);
}

QWidget *findControl(const QWidget *anyWidget, ControlID id)
{
    if (!anyWidget)
        return nullptr;
    QWidget *nearest = nullptr;
    int least = std::numeric_limits<int>::max();
    const QList<QWidget *> candidates = registry().controls.value(id);
    for (QWidget *candidate : candidates) {
        // The dialogs of a window are its children too, and have IDs of their own.
        if (candidate->window() != anyWidget->window())
            continue;
        if (const int steps = distance(anyWidget, candidate); steps < least) {
            nearest = candidate;
            least = steps;
        }
    }
    return nearest;
}

void setControlProperty(QWidget *control, OSType creator, OSType tag, const QVariant &value)
{
    // Wrapped in a list, so that an invalid value is kept as a value.
    control->setProperty(propertyName(creator, tag).constData(), QVariantList{value});
}

std::optional<QVariant> controlProperty(const QWidget *control, OSType creator, OSType tag)
{
    if (!control)
        return std::nullopt;
    const QVariantList value = control->property(propertyName(creator, tag).constData()).toList();
    return value.isEmpty() ? std::nullopt : std::optional(value.first());
}

void removeControlProperty(QWidget *control, OSType creator, OSType tag)
{
    control->setProperty(propertyName(creator, tag).constData(), QVariant());
}

OSStatus embedControl(QWidget *control, QWidget *parent)
{
    if (!control || !parent)
        return paramErr;
    if (!parent->layout()) {
        auto *layout = new QVBoxLayout(parent);
        layout->setContentsMargins(0, 0, 0, 0);
    }
    parent->layout()->addWidget(control);
    return noErr;
}

void setWindowButtons(QWidget *window, QWidget *defaultButton, QWidget *cancelButton)
{
    window->setProperty(defaultButtonProperty, QVariant::fromValue(QPointer(defaultButton)));
    window->setProperty(cancelButtonProperty, QVariant::fromValue(QPointer(cancelButton)));
}

QWidget *windowDefaultButton(const QWidget *anyWidget)
{
    return windowButton(anyWidget, defaultButtonProperty);
}

QWidget *windowCancelButton(const QWidget *anyWidget)
{
    return windowButton(anyWidget, cancelButtonProperty);
}

QLabel *labelOf(const QWidget *control)
{
    if (!control || !control->parentWidget())
        return nullptr;
    // A label nearly always stands beside its control: the whole window is
    // searched only when it does not.
    if (QLabel *label = labelAmong(
            control->parentWidget()->findChildren<QLabel *>(Qt::FindDirectChildrenOnly), control))
        return label;
    return labelAmong(control->window()->findChildren<QLabel *>(), control);
}

void setEnabledWithLabel(QWidget *control, bool enabled)
{
    control->setEnabled(enabled);
    if (QLabel *label = labelOf(control))
        label->setEnabled(enabled);
}

void setVisibleWithLabel(QWidget *control, bool visible)
{
    control->setVisible(visible);
    if (QLabel *label = labelOf(control))
        label->setVisible(visible);
}

void setAwaited(QWidget *control, bool isAwaited)
{
    control->setProperty(awaitedProperty, isAwaited);
}

bool isAwaited(const QWidget *control)
{
    return control->property(awaitedProperty).toBool();
}

} // namespace kelvo
