#include "accessible_button.h"

#include "control_support.h"
#include "mnemonics.h"

#include <QCheckBox>
#include <QKeySequence>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>

namespace kelvo {

namespace {

QMenu *menuOf(const QAbstractButton *button)
{
    const auto *pushed = qobject_cast<const QPushButton *>(button);
    return pushed ? pushed->menu() : nullptr;
}

QAccessible::Role roleOf(const QAbstractButton *button)
{
    if (qobject_cast<const QRadioButton *>(button))
        return QAccessible::RadioButton;
    if (qobject_cast<const QCheckBox *>(button))
        return QAccessible::CheckBox;
    return menuOf(button) ? QAccessible::ButtonMenu : QAccessible::Button;
}

} // namespace

AccessibleButton::AccessibleButton(QAbstractButton *button)
    : AccessibleWidget(button, roleOf(button))
{
}

QAbstractButton *AccessibleButton::button() const
{
    return static_cast<QAbstractButton *>(object());
}

QString AccessibleButton::ownText() const
{
    return withoutMnemonic(button()->text());
}

QString AccessibleButton::text(QAccessible::Text kind) const
{
    const QKeySequence keys = button()->shortcut();
    return kind == QAccessible::Accelerator && !keys.isEmpty()
        ? keys.toString(QKeySequence::NativeText)
        : AccessibleWidget::text(kind);
}

QAccessible::State AccessibleButton::state() const
{
    QAccessible::State state = AccessibleWidget::state();
    state.pressed = button()->isDown();
    state.checkable = button()->isCheckable();
    state.checked = button()->isChecked();
    if (const auto *box = qobject_cast<const QCheckBox *>(button()))
        state.checkStateMixed = box->checkState() == Qt::PartiallyChecked;
    if (const auto *pushed = qobject_cast<const QPushButton *>(button()))
        state.defaultButton = pushed->isDefault();
    if (const QMenu *menu = menuOf(button())) {
        state.hasPopup = true;
        state.expandable = true;
        state.expanded = menu->isVisible();
    }
    return state;
}

QStringList AccessibleButton::actionNames() const
{
    QStringList names = AccessibleWidget::actionNames();
    if (button()->isEnabled())
        names.prepend(menuOf(button())              ? showMenuAction()
                          : button()->isCheckable() ? toggleAction()
                                                    : pressAction());
    return names;
}

void AccessibleButton::doAction(const QString &action)
{
    if (action != pressAction() && action != toggleAction() && action != showMenuAction()) {
        AccessibleWidget::doAction(action);
        return;
    }
    later([button = button()] {
        if (!button->isEnabled() || !focusAsClicked(button))
            return;
        if (menuOf(button))
            static_cast<QPushButton *>(button)->showMenu();
        else
            button->click();
    });
}

QStringList AccessibleButton::keyBindingsForAction(const QString &action) const
{
    const QString keys = text(QAccessible::Accelerator);
    return keys.isEmpty() || action == setFocusAction() ? QStringList() : QStringList(keys);
}

} // namespace kelvo
