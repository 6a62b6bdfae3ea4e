#pragma once

#include "drawing.h"

namespace kelvo::drawing {

// The entries of the libraries that draw, each a PartEntry (part_library.h).

// libkelvo_drawing.so has a Library.
inline constexpr char drawingEntry[] = "kelvoDrawing";

// libkelvo_pdf_view.so has this, what showPdf() asks. Any thread.
class PdfView
{
public:
    // `pixels` are more than none.
    virtual Result<Picture> show(const QByteArray &pdf, const QSize &pixels,
                                 bool isOnWhite) const = 0;
    virtual LibraryVersions versions() const = 0;

protected:
    ~PdfView() = default; // lives in its library
};
inline constexpr char pdfViewEntry[] = "kelvoPdfView";

} // namespace kelvo::drawing
