#pragma once

#include "bundle.h"
#include "print_look.h"

#include <QSizeF>

class QPainter;

namespace kelvo {

// A page of the bundle as it would be printed, lying or standing, whichever is larger in the
// room that there is. A glass on it magnifies the printed dots.

// What of `room` it takes.
QSizeF printedExampleSize(const QSizeF &room);

// Draws it in the middle of a room at 0, 0, at its upper edge.
void drawPrintedExample(QPainter &painter, const QSizeF &room, CFBundleRef bundle,
                        const PrintLook &look);

} // namespace kelvo
