#include "focus_regions.h"

#include <QWidget>

namespace kelvo {

namespace {

QWidget *firstStopIn(QWidget *region)
{
    for (QWidget *widget : QList<QWidget *>{region} + focusStopsIn(region)) {
        if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus))
            return widget;
    }
    return nullptr;
}

} // namespace

QList<QWidget *> focusStopsIn(QWidget *region)
{
    QList<QWidget *> stops;
    for (QWidget *widget = region->nextInFocusChain(); widget != region;
         widget = widget->nextInFocusChain()) {
        if (region->isAncestorOf(widget) && (widget->focusPolicy() & Qt::TabFocus)
            && !widget->focusProxy())
            stops << widget;
    }
    return stops;
}

void chainFocusStops(const QList<QWidget *> &stops)
{
    for (qsizetype i = 1; i < stops.size(); ++i)
        QWidget::setTabOrder(stops[i - 1], stops[i]);
}

void focusFirstStopIn(QWidget *region)
{
    if (QWidget *stop = firstStopIn(region))
        stop->setFocus(Qt::OtherFocusReason);
}

void focusNextRegion(const QList<QWidget *> &regions, bool forward)
{
    QWidget *window = regions.first()->window();
    const QWidget *holder = window->focusWidget();
    qsizetype at = -1;
    for (qsizetype i = 0; i < regions.size(); ++i) {
        if (holder && (regions[i] == holder || regions[i]->isAncestorOf(holder)))
            at = i;
    }
    for (qsizetype step = 1; step <= regions.size(); ++step) {
        const qsizetype next =
            (at + (forward ? step : -step) + 2 * regions.size()) % regions.size();
        if (QWidget *stop = firstStopIn(regions[next])) {
            // Else styles do not show where it is.
            window->setAttribute(Qt::WA_KeyboardFocusChange);
            stop->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

} // namespace kelvo
