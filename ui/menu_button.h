#pragma once

#include "menu.h"

#include <QPushButton>

#include <functional>
#include <memory>

class QMenu;
class QStyleOptionComboBox;

namespace kelvo {

class ControlInterface;

// A button that opens a menu with submenus. It sends Menu and then Command for
// the item that the user chooses; the button itself keeps no value, but it can show one.
class MenuButton : public QPushButton
{
    Q_OBJECT

public:
    explicit MenuButton(QWidget *parent = nullptr);

    Menu &menu() { return m_menu; }
    const Menu &menu() const { return m_menu; }
    // The maximum becomes the number of items of the first level.
    void setMenu(Menu menu);

    // Called just before the menu opens, to enable and check its items.
    void setMenuUpdate(std::function<void(Menu &)> update) { m_update = std::move(update); }

    // What was chosen in the menu, whoever wrote it, in place of the button's own text. It
    // looks like a pop-up button then: on one line, elided where it is long, and whole in its
    // tool tip.
    void setShownChoice(const QString &text);
    const QString &shownChoice() const { return m_choice; } // null: there is none

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    int maximum() const { return m_maximum; }
    void setMaximum(int maximum) { m_maximum = maximum; }

    // The menu as it would open now.
    const Menu &updatedMenu();

    // As if the user had picked `item`, an element of menu() itself and not a copy;
    // false when it, a menu around it or the button is disabled, and when it is a
    // divider or a submenu.
    bool choose(const MenuItem &item);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void fillShownMenu();
    QStyleOptionComboBox choiceOption() const;

    QMenu *m_shown; // what the user sees of m_menu, filled when it opens
    Menu m_menu;
    QString m_choice;
    std::function<void(Menu &)> m_update;
    int m_maximum = 0;
};

std::unique_ptr<ControlInterface> interfaceOf(MenuButton *button);

} // namespace kelvo
