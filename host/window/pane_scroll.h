#pragma once

#include <QScrollArea>

namespace kelvo {

// Holds the panels. It is as wide as the widest that was shown, so that what is beside it
// stays where it is; where the window is too low for them it scrolls, never sideways.
class PaneScroll : public QScrollArea
{
    Q_OBJECT

public:
    explicit PaneScroll(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // Shows the scroll bar only where something stands below the lower edge: the
    // panels ask for one height, and a tab may need less. Call it when what they
    // show changed.
    void updateScrollBar();

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QSize contentHint() const;

    int m_widest = 0; // of the hints so far
};

} // namespace kelvo
