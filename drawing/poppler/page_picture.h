#pragma once

#include <QImage>
#include <QSize>

#include <poppler-qt6.h>

namespace kelvo {

inline bool isNeverAbandoned(const QVariant &)
{
    return false;
}

// What poppler draws of the page, fitted into `room`, in pixels of which it takes at most
// limits::drawnSide along either side: as QImage::Format_RGB32, or where the document is to
// ignore its paper's color as Format_ARGB32_Premultiplied. Null where it cannot be drawn,
// there is no room, or `isAbandoned` said so.
QImage pictureOfPage(const Poppler::Page &page, const QSize &room,
                     Poppler::Page::ShouldAbortQueryFunc isAbandoned = isNeverAbandoned);

} // namespace kelvo
