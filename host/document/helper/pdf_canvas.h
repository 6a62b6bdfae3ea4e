#pragma once

#include "output_file.h"

#include <QSizeF>

#include <cairo.h>

#include <memory>

namespace kelvo {

// A PDF drawn with cairo, page by page, straight into a new 0600 file: no page
// stays in memory once it is done.
class PdfCanvas
{
public:
    static Result<PdfCanvas> create(const QString &path);

    // Begins a page of `size` (points). The context is good until the next one.
    cairo_t *beginPage(const QSizeF &size);

    // Ends the page; false when nothing more can be drawn or written. close()
    // says why.
    bool endPage();

    // NotWritable when anything was lost.
    Result<void> close();

private:
    struct Closer
    {
        void operator()(cairo_surface_t *surface) const { cairo_surface_destroy(surface); }
        void operator()(cairo_t *context) const { cairo_destroy(context); }
    };
    // On the heap: cairo keeps a pointer to it.
    std::unique_ptr<OutputFile> m_file;
    std::unique_ptr<cairo_surface_t, Closer> m_surface;
    std::unique_ptr<cairo_t, Closer> m_context;
};

} // namespace kelvo
