#pragma once

#include "pdf_source.h"

#include "drawing.h"

#include <memory>

namespace kelvo {

// The pages of one PDF as pictures. poppler reads them and cairo draws; where cairo gives a page
// up, poppler's own, slower way to draw does. For one thread at a time of all that use poppler: it
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
