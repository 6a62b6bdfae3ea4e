#pragma once

#include "pdf_source.h"

#include <QImage>
#include <QSize>

#include <memory>

namespace kelvo {

// The pages of one PDF as pictures. Splash, poppler's own way to draw, has ordinary pages: its
// letters are set more evenly than those of cairo 1.16, and photos take it half as long. Pages
// of many operators, as drawings and maps are, cairo has, which draws shapes up to four times as
// fast. For one thread at a time of all that use poppler: it has settings and fonts that all
// documents of a process share.
class PagePictures
{
public:
    // Of what is no PDF, or needs a password, no page can be drawn.
    explicit PagePictures(const PdfSource &source);
    ~PagePictures();

    // The page, counted from 1, fitted into `room`, in pixels of which it takes at most
    // limits::drawnSide along either side: on white paper as QImage::Format_RGB32, else as
    // Format_ARGB32_Premultiplied. Null where it cannot be drawn, or there is no room. A process
    // that lacks memory for it comes to its end, by std::get_new_handler() or as poppler wants.
    QImage draw(int page, const QSize &room, bool isOnWhite);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace kelvo
