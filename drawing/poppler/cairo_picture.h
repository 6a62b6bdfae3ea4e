#pragma once

#include "pdf_source.h"

#include <QImage>
#include <QSize>

#include <memory>

namespace kelvo {

// Pictures of pages that cairo draws, through poppler's GLib interface. That is in a library that
// the first heavy page opens and nothing closes: GLib and cairo would make each start of the
// helper that draws pages a sixth longer.
class CairoPictures
{
public:
    // Null where the library cannot be opened, or is of another version. Of what is no PDF, or
    // needs a password, no page can be drawn.
    static std::unique_ptr<CairoPictures> open(const PdfSource &source);

    virtual ~CairoPictures() = default;

    // The page, counted from 1, in exactly so many pixels, on white paper or on nothing, as
    // QImage::Format_ARGB32_Premultiplied. Null where cairo has given the page up: from dashes of
    // no length, a damaged font or a lack of memory on, it draws nothing any more.
    virtual QImage draw(int page, const QSize &pixels, bool isOnWhite) = 0;
};

// The library's one function. Null where `version` is not its own; the caller owns the rest.
using CairoPicturesEntry = CairoPictures *(const char *version, const PdfSource &source);
inline constexpr char cairoPicturesEntry[] = "kelvoCairoPictures";

} // namespace kelvo
