#pragma once

#include <QFrame>

class QEvent;

namespace kelvo {

class PopupButton;

// What a pop-up button opens in place of Qt's list, where a choice needs more than a line: a window
// that is there until something is chosen, Escape is pressed or somebody clicks elsewhere. What
// it looks like is its class's.
class PopupList : public QFrame
{
    Q_OBJECT

public:
    explicit PopupList(PopupButton *button); // which owns it

    // Shows it. `typed` is what somebody typed on the button to open it; may be empty.
    virtual void open(const QString &typed) = 0;

signals:
    void opened();
    void closed();

protected:
    PopupButton *button() const;
    // Below the button, or above it where there is more room; within its screen. `wanted` is the
    // size of all of it, in logical pixels.
    void showAtButton(const QSize &wanted);
    QRect screenRoom() const; // of the button's screen, in logical pixels of the desktop
    // Closes, and tells of that item of the button's menu, from 1, as chosen by the user. Whoever
    // hears it may delete this.
    void choose(int value);

    bool event(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
};

} // namespace kelvo
