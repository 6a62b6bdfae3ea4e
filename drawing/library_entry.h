#pragma once

#include "drawing.h"

namespace kelvo::drawing {

// The one function that a library is asked for by name: what it can do, or null where
// `version` is not its own. Both sides are of one build, or their classes do not agree.
template <typename Part>
using Entry = const Part *(const char *version);

// libkelvo_drawing.so has a Library.
inline constexpr char drawingEntry[] = "kelvoDrawing";

// libkelvo_pdf_view.so has this, what showPdf() asks. Any thread.
class PdfView
{
public:
    // `pixels` are more than none.
    virtual Result<Picture> show(const QByteArray &pdf, const QSize &pixels,
                                 bool isOnWhite) const = 0;

protected:
    ~PdfView() = default; // lives in its library
};
inline constexpr char pdfViewEntry[] = "kelvoPdfView";

} // namespace kelvo::drawing
