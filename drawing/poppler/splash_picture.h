#pragma once

#include "pdf_source.h"

#include "drawing.h"

#include <memory>

namespace poppler {
class document;
}

namespace kelvo {

// Pictures of pages by Splash, poppler's own way to draw. It takes up to four times as long as
// cairo, and draws what cairo does not: see PagePictures.
class SplashPictures
{
public:
    explicit SplashPictures(const PdfSource &source);
    ~SplashPictures();

    // Whether the page, counted from 1, has a font whose letters are drawings (Type 3).
    bool hasDrawnLetters(int page) const;

    // The page, counted from 1, in exactly so many pixels, of which `perPoint` make a point.
    // Null when it cannot be drawn.
    drawing::Picture draw(int page, const QSize &pixels, const QSizeF &perPoint, bool isOnWhite);

private:
    PdfSource m_source; // its bytes stay where they are
    std::unique_ptr<poppler::document> m_pdf;
};

} // namespace kelvo
