#include "pane_scroll.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace kelvo {

PaneScroll::PaneScroll(QWidget *parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::StyledPanel);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->installEventFilter(this);
}

QSize PaneScroll::contentHint() const
{
    const int frame = 2 * frameWidth();
    return widget()->sizeHint().expandedTo(widget()->minimumSize()) + QSize(frame, frame);
}

QSize PaneScroll::sizeHint() const
{
    return widget() ? contentHint().expandedTo({m_widest, 0}) : QScrollArea::sizeHint();
}

QSize PaneScroll::minimumSizeHint() const
{
    if (!widget())
        return QScrollArea::minimumSizeHint();
    int width =
        widget()->minimumSizeHint().expandedTo(widget()->minimumSize()).width() + 2 * frameWidth();
    if (verticalScrollBar()->isVisible())
        width += verticalScrollBar()->sizeHint().width();
    return {width, fontMetrics().lineSpacing() * 8};
}

void PaneScroll::updateScrollBar()
{
    int lowest = 0;
    if (widget()) {
        const auto parts = widget()->findChildren<QWidget *>();
        for (const QWidget *part : parts) {
            // Panes and boxes reach down to the edge, also where they are empty.
            const auto *label = qobject_cast<const QLabel *>(part);
            const bool isSeen = label ? !label->text().isEmpty() || !label->pixmap().isNull()
                                      : part->focusPolicy() != Qt::NoFocus;
            if (isSeen && part->isVisible())
                lowest = std::max(lowest, part->mapTo(widget(), QPoint(0, part->height())).y());
        }
    }
    const bool fits = lowest <= viewport()->height();
    if (fits)
        verticalScrollBar()->setValue(0);
    setVerticalScrollBarPolicy(fits ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
}

bool PaneScroll::event(QEvent *event)
{
    if (event->type() != QEvent::Paint)
        return QScrollArea::event(event);
    // The style's frame is darker than the window, and not to be seen on a dark one.
    QPainter painter(this);
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(0.28F);
    // Filled: a line between two pixels of the screen would lie below the viewport.
    for (const QRect &side : {QRect(0, 0, width(), 1), QRect(0, height() - 1, width(), 1),
                              QRect(0, 1, 1, height() - 2), QRect(width() - 1, 1, 1, height() - 2)})
        painter.fillRect(side, line);
    return true;
}

void PaneScroll::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    updateScrollBar();
}

void PaneScroll::showEvent(QShowEvent *event)
{
    QScrollArea::showEvent(event);
    updateScrollBar(); // nothing was seen of what is in it
}

bool PaneScroll::eventFilter(QObject *watched, QEvent *event)
{
    // Of the scroll bar, and of panels that ask for more than before: a scroll
    // area passes neither on.
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide
        || (watched == widget() && event->type() == QEvent::LayoutRequest)) {
        if (widget())
            m_widest = std::max(m_widest, contentHint().width());
        updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
}

} // namespace kelvo
