#include "button_label.h"

#include "menu_button.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>

namespace kelvo {

namespace {

class ButtonLabel : public QObject
{
public:
    ButtonLabel(QLabel *label, QAbstractButton *button)
        : QObject(label)
        , m_label(label)
        , m_button(button)
    {
        label->installEventFilter(this);
        button->installEventFilter(this);
        takeOverEnabled();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // The button hears of its own end when it is one no longer, and is not asked then.
        if (watched != m_label) {
            if (event->type() == QEvent::EnabledChange)
                takeOverEnabled();
            return false;
        }
        return m_button && takes(event);
    }

private:
    void takeOverEnabled()
    {
        m_label->setEnabled(m_button->isEnabledTo(m_button->parentWidget()));
        m_isPressed = m_isPressed && m_button->isEnabled();
    }

    // An event of the label; true when the button has had it.
    bool takes(QEvent *event)
    {
        switch (event->type()) {
        case QEvent::Enter:
        case QEvent::Leave:
            showHovered(event->type() == QEvent::Enter);
            return false;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease:
            return m_button->isEnabled() && takesMouse(*static_cast<QMouseEvent *>(event));
        default:
            return false;
        }
    }

    bool takesMouse(const QMouseEvent &mouse)
    {
        const bool isOver = m_label->rect().contains(mouse.position().toPoint())
            || m_button->rect().contains(m_button->mapFromGlobal(mouse.globalPosition().toPoint()));
        if (mouse.type() == QEvent::MouseMove) {
            if (m_isPressed)
                m_button->setDown(isOver);
            return m_isPressed;
        }
        if (mouse.button() != Qt::LeftButton)
            return false;
        const bool isReleased = mouse.type() == QEvent::MouseButtonRelease;
        if (isReleased && !m_isPressed)
            return false;
        m_isPressed = !isReleased;
        m_button->setDown(m_isPressed);
        if (m_isPressed && m_button->focusPolicy() & Qt::ClickFocus)
            m_button->setFocus(Qt::MouseFocusReason);
        if (isReleased && isOver)
            m_button->click(); // whoever hears it may close the window: nothing follows
        return true;
    }

    void showHovered(bool isHovered)
    {
        m_button->setAttribute(Qt::WA_UnderMouse, isHovered);
        m_button->update();
    }

    QLabel *m_label;
    QPointer<QAbstractButton> m_button;
    bool m_isPressed = false;
};

} // namespace

void makePartOfButton(QLabel *label)
{
    auto *button = qobject_cast<QAbstractButton *>(label->buddy());
    // What a menu button shows is chosen there, and a label before it names that.
    if (button && button->text().isEmpty() && !qobject_cast<MenuButton *>(button))
        new ButtonLabel(label, button);
}

} // namespace kelvo
