#include "page_format.h"

#include "ticket_values.h"

namespace kelvo {

std::optional<QSizeF> paperOf(const Ticket &pageFormat)
{
    const auto edges = array(valueIn(pageFormat, kPMUnadjustedPaperRectKey));
    if (!edges || edges->size() != 4)
        return std::nullopt;
    double points[4];
    for (int edge = 0; edge < 4; ++edge)
        points[edge] = real(edges->at(edge)).value_or(0);
    const auto [top, left, bottom, right] = points;
    const QSizeF paper(right - left, bottom - top);
    if (!(paper.width() > 0 && paper.height() > 0))
        return std::nullopt;
    const int orientation = integer32(valueIn(pageFormat, kPMOrientationKey)).value_or(1);
    const bool isLandscape = orientation % 2 == 0; // 2, and 4 reversed
    return isLandscape ? paper.transposed() : paper;
}

} // namespace kelvo
