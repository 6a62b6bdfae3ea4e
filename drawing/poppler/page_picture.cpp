#include "page_picture.h"

#include "size_limits.h"

#include <algorithm>

namespace kelvo {

QImage pictureOfPage(const Poppler::Page &page, const QSize &room,
                     Poppler::Page::ShouldAbortQueryFunc isAbandoned)
{
    const QSizeF size = page.pageSizeF(); // points
    const QSize most = room.boundedTo({limits::drawnSide, limits::drawnSide});
    if (size.isEmpty() || most.isEmpty())
        return {};
    const double scale = std::min(most.width() / size.width(), most.height() / size.height());
    const QSize fitted = (size * scale).toSize().expandedTo(QSize(1, 1));
    const auto none = [](const QImage &, const QVariant &) {};
    QImage image =
        page.renderToImage(72 * scale, 72 * scale, 0, 0, fitted.width(), fitted.height(),
                           Poppler::Page::Rotate0, none, isNeverAbandoned, isAbandoned, QVariant());
    return isAbandoned({}) ? QImage() : image;
}

} // namespace kelvo
