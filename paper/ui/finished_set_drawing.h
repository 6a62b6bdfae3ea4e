#pragma once

#include "finished_set.h"

#include <QSizeF>

class QPainter;

namespace kelvo {

// Draws the set as large as fits into `size` at 0, 0, in its middle. A sheet of one shape is
// as large whatever is done to it. Marks (staples, holes) are larger than real ones, or they
// would not be seen.
void drawFinishedSet(QPainter &painter, const QSizeF &size, const FinishedSet &set);

} // namespace kelvo
