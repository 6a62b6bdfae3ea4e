#pragma once

#include "result.h"

#include <QSizeF>

#include <cairo.h>

#include <cstddef>
#include <functional>
#include <memory>

namespace kelvo {

// A PDF drawn with cairo, page by page. It is given away as it is made: no page stays in
// memory here once it is done.
class PdfCanvas
{
public:
    // Takes the next bytes of the PDF; false when they are lost.
    using Writer = std::function<bool(const char *bytes, std::size_t size)>;

    explicit PdfCanvas(Writer writer);

    // Begins a page of `size` (points). The context is good until the next one.
    cairo_t *beginPage(const QSizeF &size);

    // Ends the page; false when nothing more can be drawn or written. close()
    // says why.
    bool endPage();

    // The writer has all bytes afterwards. NotWritable, of nothing in particular, when
    // anything could not be drawn or was lost.
    Result<void> close();

private:
    struct Closer
    {
        void operator()(cairo_surface_t *surface) const { cairo_surface_destroy(surface); }
        void operator()(cairo_t *context) const { cairo_destroy(context); }
    };
    // On the heap: cairo keeps a pointer to it.
    std::unique_ptr<Writer> m_writer;
    std::unique_ptr<cairo_surface_t, Closer> m_surface;
    std::unique_ptr<cairo_t, Closer> m_context;
};

} // namespace kelvo
