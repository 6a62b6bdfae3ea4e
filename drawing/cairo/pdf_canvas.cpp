#include "pdf_canvas.h"

#include <cairo-pdf.h>

namespace kelvo {

namespace {

cairo_status_t writeBlock(void *writer, const unsigned char *bytes, unsigned int size)
{
    return (*static_cast<PdfCanvas::Writer *>(writer))(reinterpret_cast<const char *>(bytes), size)
        ? CAIRO_STATUS_SUCCESS
        : CAIRO_STATUS_WRITE_ERROR;
}

} // namespace

PdfCanvas::PdfCanvas(Writer writer)
    : m_writer(std::make_unique<Writer>(std::move(writer)))
    , m_surface(cairo_pdf_surface_create_for_stream(writeBlock, m_writer.get(), 1, 1))
    , m_context(cairo_create(m_surface.get()))
{
}

cairo_t *PdfCanvas::beginPage(const QSizeF &size)
{
    cairo_pdf_surface_set_size(m_surface.get(), size.width(), size.height());
    cairo_identity_matrix(m_context.get());
    return m_context.get();
}

bool PdfCanvas::endPage()
{
    cairo_show_page(m_context.get());
    return cairo_status(m_context.get()) == CAIRO_STATUS_SUCCESS
        && cairo_surface_status(m_surface.get()) == CAIRO_STATUS_SUCCESS;
}

Result<void> PdfCanvas::close()
{
    cairo_surface_finish(m_surface.get());
    const cairo_status_t drawn = cairo_status(m_context.get());
    const cairo_status_t written = cairo_surface_status(m_surface.get());
    const cairo_status_t status = drawn != CAIRO_STATUS_SUCCESS ? drawn : written;
    if (status != CAIRO_STATUS_SUCCESS) {
        return Error{
            Error::Code::NotWritable, {}, QString::fromUtf8(cairo_status_to_string(status))};
    }
    return {};
}

} // namespace kelvo
