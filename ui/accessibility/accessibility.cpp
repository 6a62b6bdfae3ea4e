#include "accessibility.h"

#include "accessible_button.h"
#include "accessible_choice.h"
#include "accessible_number.h"
#include "accessible_role.h"
#include "accessible_tabs.h"
#include "angle_dial.h"
#include "menu_button.h"
#include "spin_field.h"
#include "tab_control.h"
#include "time_field.h"

#include <QComboBox>
#include <QDialog>
#include <QFrame>
#include <QSlider>
#include <QToolButton>

namespace kelvo {

namespace {

bool isLine(const QFrame *frame)
{
    return frame->frameShape() == QFrame::HLine || frame->frameShape() == QFrame::VLine;
}

// Asked of `object` as each of its classes, its own first. Null: others tell of it.
QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    if (!widget)
        return nullptr;
    if (const auto role = accessibleRoleOf(widget))
        return new AccessibleWidget(widget, *role);
    if (auto *button = qobject_cast<MenuButton *>(object))
        return new AccessibleMenuButton(button);
    if (auto *box = qobject_cast<QComboBox *>(object))
        return new AccessibleComboBox(box);
    if (auto *field = qobject_cast<SpinField *>(object))
        return new AccessibleSpinField(field);
    if (auto *field = qobject_cast<TimeField *>(object))
        return new AccessibleTimeField(field);
    if (auto *dial = qobject_cast<AngleDial *>(object))
        return new AccessibleSlider(dial, QAccessible::Dial);
    if (auto *slider = qobject_cast<QSlider *>(object))
        return new AccessibleSlider(slider, QAccessible::Slider);
    if (auto *tabs = qobject_cast<TabControl *>(object))
        return new AccessibleTabs(tabs);
    // Qt's own windows have buttons with menus of another kind.
    const auto *tool = qobject_cast<QToolButton *>(object);
    if (auto *button = qobject_cast<QAbstractButton *>(object); button && !(tool && tool->menu()))
        return new AccessibleButton(button);
    if (className == QLatin1String("QDialog"))
        return new AccessibleWidget(widget, QAccessible::Dialog);
    // Of a frame, Qt says that it is a window of the desktop.
    if (className == QLatin1String("QFrame"))
        return new AccessibleWidget(widget,
                                    isLine(static_cast<QFrame *>(object)) ? QAccessible::Separator
                                                                          : QAccessible::Client);
    if (className == QLatin1String("QWidget"))
        return new AccessibleWidget(widget);
    return nullptr;
}

} // namespace

void installAccessibility()
{
    QAccessible::installFactory(makeInterface);
}

} // namespace kelvo
