#pragma once

#include "pdf_source.h"

#include <QImage>
#include <QSize>

#include <memory>

namespace kelvo {

// Pictures of pages that cairo draws, through poppler's GLib interface.
class CairoPictures
{
public:
    // Of what is no PDF, or needs a password, no page can be drawn.
    explicit CairoPictures(const PdfSource &source);
    ~CairoPictures();

    // The page, counted from 1, in exactly so many pixels, on white paper or on nothing, as
    // QImage::Format_ARGB32_Premultiplied. Null where cairo has given the page up: from dashes of
    // no length, a damaged font or a lack of memory on, it draws nothing any more.
    QImage draw(int page, const QSize &pixels, bool isOnWhite);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace kelvo
