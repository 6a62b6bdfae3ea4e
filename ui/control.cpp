#include "control.h"

#include "menu_button.h"
#include "popup_button.h"
#include "spin_field.h"

#include <QAbstractSlider>
#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>

namespace kelvo {

namespace {

constexpr char idProperty[] = "_kelvo_controlID";
constexpr char defaultButtonProperty[] = "_kelvo_defaultButton";
constexpr char cancelButtonProperty[] = "_kelvo_cancelButton";

// Below `root`, it included, but not in the windows that it owns: the dialogs
// of a window are its children too, and have IDs of their own.
QWidget *findBelow(QWidget *root, ControlID id, const QWidget *searched = nullptr)
{
    if (controlIDOf(root) == id)
        return root;
    for (QObject *child : root->children()) {
        auto *widget = qobject_cast<QWidget *>(child);
        if (!widget || widget == searched || widget->isWindow())
            continue;
        if (QWidget *found = findBelow(widget, id))
            return found;
    }
    return nullptr;
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
    QString text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text += QChar(static_cast<char16_t>(id.signature >> shift & 0xFF));
    return text + u' ' + QString::number(id.number);
}

void setControlID(QWidget *control, ControlID id)
{
    control->setProperty(idProperty, textOf(id));
}

std::optional<ControlID> controlIDOf(const QWidget *control)
{
    if (!control)
        return std::nullopt;
    const QVariant text = control->property(idProperty);
    return text.isValid() ? controlIDFromText(text.toString()) : std::nullopt;
}

QWidget *findControl(const QWidget *anyWidget, ControlID id)
{
    const QWidget *searched = nullptr;
    for (auto *root = const_cast<QWidget *>(anyWidget); root; root = root->parentWidget()) {
        if (QWidget *found = findBelow(root, id, searched))
            return found;
        if (root->isWindow())
            break;
        searched = root;
    }
    return nullptr;
}

std::optional<int> controlMaximum(const QWidget *control)
{
    if (auto *popup = qobject_cast<const PopupButton *>(control))
        return popup->maximum();
    if (auto *button = qobject_cast<const MenuButton *>(control))
        return button->maximum();
    if (auto *spin = qobject_cast<const SpinField *>(control))
        return spin->maximum();
    if (auto *slider = qobject_cast<const QAbstractSlider *>(control))
        return slider->maximum();
    return std::nullopt;
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

} // namespace kelvo
