#pragma once

#include "menu.h"

#include <QComboBox>

namespace kelvo {

// A pop-up button: shows one item of its menu. It sends Menu, then Command when
// the item has one, then ControlHit, and only when the user chooses. Values are
// 1-based, 0 when nothing is shown. Dividers and disabled items cannot be
// chosen. Submenus are not shown: a pop-up's menu is flat.
class PopupButton : public QComboBox
{
    Q_OBJECT

public:
    explicit PopupButton(QWidget *parent = nullptr);

    const Menu &menu() const { return m_menu; }
    // Replaces the menu; the value becomes the first item that can be chosen.
    void setMenu(Menu menu);

    int value() const;         // the shown item, from 1
    void setValue(int value);  // silent; out of range shows nothing
    std::int32_t chosenReference() const; // of the shown item; kUnset when nothing is shown
    // The first item with that reference; false, and unchanged, when there is none.
    bool setValueByReference(std::int32_t reference);

    // May differ from the item count.
    int maximum() const { return m_maximum; }
    void setMaximum(int maximum) { m_maximum = maximum; }

    // As if the user had picked item `value`; false when it cannot be picked.
    bool choose(int value);

private:
    void send(int index);

    Menu m_menu;
    int m_maximum = 0;
};

} // namespace kelvo
