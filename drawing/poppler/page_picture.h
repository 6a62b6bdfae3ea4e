#pragma once

#include "pdf_source.h"

#include "drawing.h"

#include <memory>

namespace kelvo {

// The pages of one PDF as pictures. poppler reads them and cairo draws. Splash, poppler's own and
// slower way to draw, has the pages with a Type 3 font, the colors of whose letters cairo 1.16 does
// not draw, and those that cairo gives up: from dashes of no length, or a damaged font, on it draws
// nothing any more. For one thread at a time of all that use poppler: it
// has settings and fonts that all documents of a process share.
class PagePictures
{
public:
    // Of what is no PDF, or needs a password, no page can be drawn.
    explicit PagePictures(const PdfSource &source);
    ~PagePictures();

    // The page, counted from 1, fitted into `room`, in pixels of which it takes at most
    // limits::drawnSide along either side; on white paper or on nothing. Null where there is no
    // room. Damaged where it cannot be drawn, TooLarge where memory does not suffice.
    Result<drawing::Picture> draw(int page, const QSize &room, bool isOnWhite);

    static QString version(); // of poppler

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace kelvo
