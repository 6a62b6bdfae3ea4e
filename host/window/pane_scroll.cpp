#include "pane_scroll.h"

#include <QEvent>
#include <QScrollBar>

namespace kelvo {

PaneScroll::PaneScroll(QWidget *parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    verticalScrollBar()->installEventFilter(this);
}

QSize PaneScroll::sizeHint() const
{
    if (!widget())
        return QScrollArea::sizeHint();
    return widget()->sizeHint().expandedTo(widget()->minimumSize());
}

QSize PaneScroll::minimumSizeHint() const
{
    if (!widget())
        return QScrollArea::minimumSizeHint();
    int width = widget()->minimumSizeHint().expandedTo(widget()->minimumSize()).width();
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
