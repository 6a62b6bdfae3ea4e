#pragma once

#include <QAbstractSlider>

namespace kelvo {

// A direction to turn: the value is degrees counter-clockwise from the right, -179 to 180.
// Pressing and dragging points the hand to the pointer, with Shift in steps of 15. Arrow keys
// turn by 1 (Up and Right counter-clockwise), Page Up and Page Down by 15, and go round. It
// sends ControlHit as sliders do.
class AngleDial : public QAbstractSlider
{
    Q_OBJECT

public:
    explicit AngleDial(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void pointTo(const QPointF &pointer, bool isCoarse);
};

// The same direction within -179 to 180 degrees.
int wrappedAngle(int degrees);

} // namespace kelvo
