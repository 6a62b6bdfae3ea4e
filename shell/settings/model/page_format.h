#pragma once

#include "ticket.h"

#include <QSizeF>

#include <optional>

namespace kelvo {

// The paper as one looks at it, wide in landscape, in points; none where the page format
// does not say, or says a side that is not above 0.
std::optional<QSizeF> paperOf(const Ticket &pageFormat);

} // namespace kelvo
