#include "accessible_role.h"

#include <QVariant>
#include <QWidget>

namespace kelvo {

namespace {

constexpr const char *roleProperty = "accessibleRole";

} // namespace

void setAccessibleRole(QWidget *widget, QAccessible::Role role)
{
    widget->setProperty(roleProperty, static_cast<int>(role));
}

std::optional<QAccessible::Role> accessibleRoleOf(const QWidget *widget)
{
    const QVariant role = widget->property(roleProperty);
    if (!role.isValid())
        return {};
    return static_cast<QAccessible::Role>(role.toInt());
}

void showNotification(QWidget *notification, bool isShown, bool isNews)
{
    const bool wasShown = notification->isVisible();
    notification->setVisible(isShown);
    if (!wasShown || !isNews || !notification->isVisible() || !QAccessible::isActive())
        return;
    QAccessibleEvent shown(notification, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}

void tellOfFocusWithin(QWidget *widget)
{
    const auto tell = [widget] {
        if (!widget->hasFocus() || !QAccessible::isActive())
            return;
        const QAccessibleInterface *whole = QAccessible::queryAccessibleInterface(widget);
        QAccessibleInterface *part = whole ? whole->focusChild() : nullptr;
        if (!part)
            return;
        QAccessibleEvent focus(part, QAccessible::Focus);
        QAccessible::updateAccessibility(&focus);
    };
    QMetaObject::invokeMethod(widget, tell, Qt::QueuedConnection);
}

} // namespace kelvo
