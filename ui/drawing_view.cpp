#include "drawing_view.h"

#include "accessible_role.h"
#include "control_interface.h"

#include <QPainter>

namespace kelvo {

DrawingView::DrawingView(QWidget *parent)
    : QWidget(parent)
{
    setAccessibleRole(this, QAccessible::Graphic);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void DrawingView::setDrawing(Drawing drawing, const QString &description)
{
    m_drawing = std::move(drawing);
    setAccessibleDescription(description);
    update();
}

// It takes what is left, and asks for no more than it needs: a scroll area gives its contents
// all that they ask for, and what is here would end below the edge.
QSize DrawingView::sizeHint() const
{
    return minimumSizeHint();
}

QSize DrawingView::minimumSizeHint() const
{
    const int em = fontMetrics().height();
    return {em * 3, em * 2};
}

void DrawingView::paintEvent(QPaintEvent *)
{
    if (!m_drawing)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    m_drawing(painter, QSizeF(size()));
}

namespace {

class DrawingViewInterface : public InterfaceOf<DrawingView>
{
public:
    using InterfaceOf::InterfaceOf;

    QString text() const override { return widget()->accessibleDescription(); }
};

} // namespace

std::unique_ptr<ControlInterface> interfaceOf(DrawingView *view)
{
    return std::make_unique<DrawingViewInterface>(view);
}

} // namespace kelvo
