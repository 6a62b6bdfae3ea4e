#pragma once

#include <QAccessible>

#include <optional>

class QWidget;

namespace kelvo {

// What screen readers take `widget` for, where its class does not tell or tells it wrong. To be
// called first in its constructor: what was once asked about a widget stays.
//
// A Graphic without accessible name only adorns, and is passed over. A Notification is read out
// when it appears, with the labels in it.
void setAccessibleRole(QWidget *widget, QAccessible::Role role);
// None when nobody has set one.
std::optional<QAccessible::Role> accessibleRoleOf(const QWidget *widget);

// Shows a Notification, or hides it. As it appears it is read out; while it is shown, when what it
// says `isNews`.
void showNotification(QWidget *notification, bool isShown, bool isNews);

// Tells readers of the part of `widget` that has the focus in it, its interface's focusChild(),
// once they have been told of the widget. To be called when it gets the focus.
void tellOfFocusWithin(QWidget *widget);

} // namespace kelvo
