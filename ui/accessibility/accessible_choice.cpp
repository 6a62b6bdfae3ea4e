#include "accessible_choice.h"

#include "menu_button.h"
#include "popup_button.h"
#include "popup_list.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>

#include <utility>

namespace kelvo {

namespace {

// Null: one that is made when it is opened.
QWidget *listOf(const QComboBox *box)
{
    const auto *popup = qobject_cast<const PopupButton *>(box);
    return popup && popup->hasOwnList() ? static_cast<QWidget *>(popup->ownList()) : box->view();
}

bool isOpen(const QComboBox *box)
{
    const QWidget *list = listOf(box);
    return list && list->isVisible();
}

} // namespace

AccessibleComboBox::AccessibleComboBox(QComboBox *box)
    : AccessibleWidget(box, QAccessible::ComboBox)
    , AccessibleShownText(box)
    , m_told(shownText())
    , m_connection(
          QObject::connect(box, &QComboBox::currentTextChanged, box, [this] { tellChange(); }))
{
}

AccessibleComboBox::~AccessibleComboBox()
{
    QObject::disconnect(m_connection);
}

QComboBox *AccessibleComboBox::box() const
{
    return static_cast<QComboBox *>(object());
}

void AccessibleComboBox::tellChange()
{
    const QString before = std::exchange(m_told, shownText());
    if (box()->isEditable() || m_told == before)
        return;
    QAccessibleTextUpdateEvent event(box(), 0, before, m_told);
    QAccessible::updateAccessibility(&event);
}

void *AccessibleComboBox::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TextInterface && !box()->isEditable()
        ? static_cast<QAccessibleTextInterface *>(this)
        : AccessibleWidget::interface_cast(type);
}

// The list, and the line of one that is editable.
int AccessibleComboBox::childCount() const
{
    return box()->isEditable() ? 2 : listOf(box()) ? 1 : 0;
}

QAccessibleInterface *AccessibleComboBox::child(int index) const
{
    if (index == 0)
        return listOf(box()) ? QAccessible::queryAccessibleInterface(listOf(box())) : nullptr;
    return index == 1 && box()->isEditable()
        ? QAccessible::queryAccessibleInterface(box()->lineEdit())
        : nullptr;
}

QAccessibleInterface *AccessibleComboBox::childAt(int x, int y) const
{
    const QLineEdit *line = box()->lineEdit();
    return line && line->rect().contains(line->mapFromGlobal(QPoint(x, y))) ? child(1) : nullptr;
}

int AccessibleComboBox::indexOfChild(const QAccessibleInterface *child) const
{
    if (child->object() == listOf(box()))
        return 0;
    return box()->isEditable() && child->object() == box()->lineEdit() ? 1 : -1;
}

// The line of one that is editable never has Qt's focus: the box has it for the line.
QAccessibleInterface *AccessibleComboBox::focusChild() const
{
    return box()->isEditable() && box()->hasFocus() ? child(1) : AccessibleWidget::focusChild();
}

QString AccessibleComboBox::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? shownText() : AccessibleWidget::text(kind);
}

QAccessible::State AccessibleComboBox::state() const
{
    QAccessible::State state = AccessibleWidget::state();
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = isOpen(box());
    state.editable = box()->isEditable();
    if (state.editable) { // the line has the focus
        state.focusable = false;
        state.focused = false;
    }
    return state;
}

QStringList AccessibleComboBox::actionNames() const
{
    QStringList names = AccessibleWidget::actionNames();
    if (box()->isEnabled())
        names << showMenuAction() << pressAction();
    return names;
}

void AccessibleComboBox::doAction(const QString &action)
{
    if (action != showMenuAction() && action != pressAction()) {
        AccessibleWidget::doAction(action);
        return;
    }
    later([box = box()] {
        if (isOpen(box))
            box->hidePopup();
        else if (box->isEnabled())
            box->showPopup();
    });
}

QStringList AccessibleComboBox::keyBindingsForAction(const QString &) const
{
    const QString keys = AccessibleWidget::text(QAccessible::Accelerator);
    return keys.isEmpty() ? QStringList() : QStringList(keys);
}

QString AccessibleComboBox::shownText() const
{
    const auto *popup = qobject_cast<const PopupButton *>(box());
    return popup ? popup->shownText() : box()->currentText();
}

// ---- AccessibleMenuButton

AccessibleMenuButton::AccessibleMenuButton(MenuButton *button)
    : AccessibleButton(button)
    , AccessibleShownText(button)
{
}

const MenuButton *AccessibleMenuButton::menuButton() const
{
    return static_cast<const MenuButton *>(object());
}

void *AccessibleMenuButton::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TextInterface && !shownText().isNull()
        ? static_cast<QAccessibleTextInterface *>(this)
        : AccessibleButton::interface_cast(type);
}

QAccessible::Role AccessibleMenuButton::role() const
{
    return shownText().isNull() ? AccessibleButton::role() : QAccessible::ComboBox;
}

QString AccessibleMenuButton::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? shownText() : AccessibleButton::text(kind);
}

QString AccessibleMenuButton::shownText() const
{
    return menuButton()->shownChoice();
}

QString AccessibleMenuButton::ownText() const
{
    return shownText().isNull() ? AccessibleButton::ownText() : QString();
}

} // namespace kelvo
