#pragma once

#include "accessible_button.h"
#include "accessible_text.h"

class QComboBox;

namespace kelvo {

class MenuButton;

// What shows one of several choices: the choice is its text, beside its name.

// One that is editable has its text in the line in it. Where the choice changes under the user's
// hands, readers say what it is now, as of a text that is inserted and selected.
class AccessibleComboBox : public AccessibleWidget, public AccessibleShownText
{
public:
    explicit AccessibleComboBox(QComboBox *box);
    ~AccessibleComboBox() override;

    void *interface_cast(QAccessible::InterfaceType type) override;
    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *focusChild() const override;
    using AccessibleShownText::text;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &action) override;
    QStringList keyBindingsForAction(const QString &action) const override;

protected:
    QString shownText() const override;

private:
    QComboBox *box() const;
    void tellChange();

    QString m_told;
    QMetaObject::Connection m_connection;
};

// While it shows a choice, it is a combo box to readers as it is to the eye.
class AccessibleMenuButton : public AccessibleButton, public AccessibleShownText
{
public:
    explicit AccessibleMenuButton(MenuButton *button);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::Role role() const override;
    using AccessibleShownText::text;
    QString text(QAccessible::Text kind) const override;

protected:
    QString shownText() const override;
    QString ownText() const override;

private:
    const MenuButton *menuButton() const;
};

} // namespace kelvo
