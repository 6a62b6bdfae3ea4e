#pragma once

#include <QString>
#include <QWidget>

#include <functional>
#include <memory>

class QPainter;

namespace kelvo {

class ControlInterface;

// A picture that follows the settings, drawn anew whenever it is shown: sharp at any size
// and device pixel ratio.
class DrawingView : public QWidget
{
    Q_OBJECT

public:
    // Draws into a place of that size at 0, 0 (logical pixels), with antialiasing.
    using Drawing = std::function<void(QPainter &painter, const QSizeF &size)>;

    explicit DrawingView(QWidget *parent = nullptr);

    // `description` is what a screen reader says of it. It is drawn by the GUI thread for as
    // long as the view lives.
    void setDrawing(Drawing drawing, const QString &description);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Drawing m_drawing;
};

std::unique_ptr<ControlInterface> interfaceOf(DrawingView *view);

} // namespace kelvo
