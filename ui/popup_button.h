#pragma once

#include "menu.h"

#include <QComboBox>

#include <functional>
#include <memory>

class QStyleOptionComboBox;

namespace kelvo {

class ControlInterface;
class PopupList;

// A pop-up button: shows one item of its menu. It sends Menu, then Command when
// the item has one, then ControlHit, and only when the user chooses. Values are
// 1-based, 0 when nothing is shown. Dividers and disabled items cannot be
// chosen. Submenus are not shown: a pop-up's menu is flat. A long text is elided
// in the button and stands whole in its list and its tool tip. Qt's list is made
// when it is opened.
class PopupButton : public QComboBox
{
    Q_OBJECT
    // What is chosen here opens a window, or puts other settings in the place of all: one that
    // is only passed on the way must not. While the list is closed, keys open it and the
    // wheel scrolls what is around; a choice takes Return or a click.
    Q_PROPERTY(bool choosesInListOnly READ choosesInListOnly WRITE setChoosesInListOnly)
    // Its size has room for an icon beside the text, as all have that stand below one another.
    Q_PROPERTY(bool hasIconRoom READ hasIconRoom WRITE setHasIconRoom)

public:
    explicit PopupButton(QWidget *parent = nullptr);

    const Menu &menu() const { return m_menu; }
    // Replaces the menu, silently; the value becomes the first item that can be
    // chosen and the maximum the number of items.
    void setMenu(Menu menu);

    int value() const;                    // the shown item, from 1
    void setValue(int value);             // silent; out of range shows nothing
    const MenuItem *chosenItem() const;   // that is shown, of menu(); null when none is
    std::int32_t chosenReference() const; // of the shown item; INT32_MIN when none is
    // The first item with that reference; false, and unchanged, when there is none.
    bool setValueByReference(std::int32_t reference);

    // The shown item's text; where none is shown, the place holder's, which the
    // button then has in its place.
    QString shownText() const;

    // May differ from the item count.
    int maximum() const { return m_maximum; }
    void setMaximum(int maximum) { m_maximum = maximum; }

    bool choosesInListOnly() const { return m_choosesInListOnly; }
    void setChoosesInListOnly(bool inListOnly) { m_choosesInListOnly = inListOnly; }

    bool hasIconRoom() const { return m_hasIconRoom; }
    void setHasIconRoom(bool hasRoom);

    // The last choice was made in the open list; false after an arrow key or the
    // wheel on the closed button, where the next one may follow.
    bool isChosenFromList() const { return m_isChosenFromList; }

    // As if the user had picked item `value`; false when it cannot be picked.
    bool choose(int value);
    bool chooseFromList(int value); // the same, in the open list

    // What is opened in place of Qt's list, made when it is first opened; empty: Qt's. That
    // function gives a child of its argument.
    using MakeList = std::function<PopupList *(PopupButton *)>;
    void setOwnList(MakeList make);
    bool hasOwnList() const { return bool(m_makeList); }
    PopupList *ownList() const { return m_ownList; } // null: not made yet
    bool isListOpen() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void showPopup() override;
    void hidePopup() override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void initStyleOption(QStyleOptionComboBox *option) const override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void send(int index);
    bool opensBy(const QKeyEvent &event) const;
    bool closesList(QEvent *event);
    void openOwnList(const QString &typed);
    QWidget *fieldOfList() const;
    QRect textRect(const QStyleOptionComboBox &option) const;
    QString elidedText(const QStyleOptionComboBox &option) const;

    Menu m_menu;
    MakeList m_makeList;
    PopupList *m_ownList = nullptr;
    int m_maximum = 0;
    bool m_choosesInListOnly = false;
    bool m_hasIconRoom = true;
    bool m_isChosenFromList = false;
    mutable QSize m_least;      // not valid: not asked for yet
    mutable int m_widest = 0;   // pixels, of the first m_measured texts of the menu
    mutable int m_measured = 0; // as many as sizeHint() needed
};

std::unique_ptr<ControlInterface> interfaceOf(PopupButton *button);

} // namespace kelvo
