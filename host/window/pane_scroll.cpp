#include "pane_scroll.h"

#include <QEvent>
#include <QScrollBar>

namespace kelvo {

PaneScroll::PaneScroll(QWidget *parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::StyledPanel);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    verticalScrollBar()->installEventFilter(this);
}

QSize PaneScroll::sizeHint() const
{
    if (!widget())
        return QScrollArea::sizeHint();
    const int frame = 2 * frameWidth();
    return widget()->sizeHint().expandedTo(widget()->minimumSize()) + QSize(frame, frame);
}

QSize PaneScroll::minimumSizeHint() const
{
    if (!widget())
        return QScrollArea::minimumSizeHint();
    int width = widget()->minimumSizeHint().expandedTo(widget()->minimumSize()).width()
        + 2 * frameWidth();
    if (verticalScrollBar()->isVisible())
        width += verticalScrollBar()->sizeHint().width();
    return {width, fontMetrics().lineSpacing() * 8};
}

bool PaneScroll::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

} // namespace kelvo
