#include "pdf_canvas.h"

#include <cairo-pdf.h>

namespace kelvo {

namespace {

cairo_status_t writeBlock(void *file, const unsigned char *bytes, unsigned int size)
{
    return static_cast<OutputFile *>(file)->write(reinterpret_cast<const char *>(bytes), size)
        ? CAIRO_STATUS_SUCCESS
        : CAIRO_STATUS_WRITE_ERROR;
}

} // namespace

Result<PdfCanvas> PdfCanvas::create(const QString &path)
{
    Result<OutputFile> file = OutputFile::create(path);
    if (!file)
        return file.error();
    PdfCanvas canvas;
    canvas.m_file = std::make_unique<OutputFile>(std::move(file).value());
    canvas.m_surface.reset(
        cairo_pdf_surface_create_for_stream(writeBlock, canvas.m_file.get(), 1, 1));
    canvas.m_context.reset(cairo_create(canvas.m_surface.get()));
    return canvas;
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
    if (Result<void> closed = m_file->close(); !closed)
        return closed.error();
    const cairo_status_t status = drawn != CAIRO_STATUS_SUCCESS ? drawn : written;
    if (status != CAIRO_STATUS_SUCCESS) {
        return Error{Error::Code::NotWritable, m_file->error().where,
                     QString::fromUtf8(cairo_status_to_string(status))};
    }
    return {};
}

} // namespace kelvo
