#pragma once

#include <QList>

class QWidget;

// Where the keyboard goes in a window whose parts come and go.
namespace kelvo {

// Where Tab stops below `region`, in the order of the focus chain.
QList<QWidget *> focusStopsIn(QWidget *region);

// Makes `stops` follow one another.
void chainFocusStops(const QList<QWidget *> &stops);

// To the first stop of `region` that can take it; where there is none the focus stays.
void focusFirstStopIn(QWidget *region);

// To the first stop of the next region that has one, from the region that holds
// the focus now; round at the ends.
void focusNextRegion(const QList<QWidget *> &regions, bool forward);

} // namespace kelvo
