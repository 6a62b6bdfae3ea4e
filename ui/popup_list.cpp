#include "popup_list.h"

#include "popup_button.h"

#include <QMouseEvent>
#include <QScreen>

#include <algorithm>

namespace kelvo {

PopupList::PopupList(PopupButton *button)
    : QFrame(button, Qt::Popup)
{
    setAttribute(Qt::WA_WindowPropagation); // the button's font and colors
    setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
}

PopupButton *PopupList::button() const
{
    return static_cast<PopupButton *>(parentWidget());
}

QRect PopupList::screenRoom() const
{
    return button()->screen()->availableGeometry();
}

void PopupList::showAtButton(const QSize &wanted)
{
    const QRect room = screenRoom();
    const QRect at(button()->mapToGlobal(QPoint()), button()->size());
    const int above = at.top() - room.top(), below = room.bottom() - at.bottom();
    const bool isBelow = wanted.height() <= below || below >= above;
    const QSize size(std::min(wanted.width(), room.width()),
                     std::min(wanted.height(), isBelow ? below : above));
    QRect place(QPoint(at.left(), isBelow ? at.bottom() + 1 : at.top() - size.height()), size);
    if (isRightToLeft())
        place.moveRight(at.right());
    place.moveLeft(std::clamp(place.left(), room.left(),
                              std::max(room.left(), room.right() + 1 - size.width())));
    setGeometry(place);
    show();
    emit opened();
}

void PopupList::choose(int value)
{
    close();
    button()->chooseFromList(value);
}

// What has the keyboard is this: a shortcut of the window behind it would be one of something
// that the user does not look at.
bool PopupList::event(QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return QFrame::event(event);
    event->accept();
    return true;
}

void PopupList::hideEvent(QHideEvent *event)
{
    QFrame::hideEvent(event);
    emit closed();
}

// A click on the button closes it; the button would open it again.
void PopupList::mousePressEvent(QMouseEvent *event)
{
    const QPoint at = button()->mapFromGlobal(event->globalPosition().toPoint());
    setAttribute(Qt::WA_NoMouseReplay, button()->rect().contains(at));
    QFrame::mousePressEvent(event);
}

} // namespace kelvo
