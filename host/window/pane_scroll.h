#pragma once

#include <QScrollArea>

namespace kelvo {

// Holds the panels. It is as wide as they need, and scrolls them up and down
// when the window is too low; only a window at its narrowest scrolls sideways.
class PaneScroll : public QScrollArea
{
    Q_OBJECT

public:
    explicit PaneScroll(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace kelvo
