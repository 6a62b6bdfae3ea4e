#include "fonts.h"
#include "library_entry.h"
#include "pdf_canvas.h"
#include "text_layout.h"

#include <algorithm>
#include <cstring>

namespace kelvo::drawing {

namespace {

struct SurfaceRelease
{
    void operator()(cairo_surface_t *surface) const { cairo_surface_destroy(surface); }
};

class PdfPage final : public Page
{
public:
    PdfPage(const QSizeF &size, Writer writer)
        : m_canvas(std::move(writer))
        , m_size(size)
        , m_context(m_canvas.beginPage(size))
    {
    }

    void setOpacity(double opacity) override { m_opacity = std::clamp(opacity, 0.0, 1.0); }

    void fill(const Color &color) override
    {
        cairo_set_source_rgba(m_context, color.red, color.green, color.blue,
                              color.alpha * m_opacity);
        cairo_rectangle(m_context, 0, 0, m_size.width(), m_size.height());
        cairo_fill(m_context);
    }

    void drawText(const QString &text, const TextStyle &style, const QPointF &origin) override
    {
        TextStyle seenThrough = style;
        seenThrough.color.alpha *= m_opacity;
        TextLayout(text, seenThrough).draw(m_context, origin.x(), m_size.height() - origin.y());
    }

    void drawPicture(const Picture &picture, const QRectF &rectangle) override
    {
        if (picture.isNull() || rectangle.isEmpty())
            return;
        // Only read, though cairo's interface cannot say so.
        auto *bytes = reinterpret_cast<unsigned char *>(const_cast<char *>(picture.bytes.data()));
        const std::unique_ptr<cairo_surface_t, SurfaceRelease> surface(
            cairo_image_surface_create_for_data(bytes, CAIRO_FORMAT_ARGB32, picture.size.width(),
                                                picture.size.height(), 4 * picture.size.width()));
        cairo_save(m_context);
        cairo_translate(m_context, rectangle.x(),
                        m_size.height() - rectangle.y() - rectangle.height());
        cairo_scale(m_context, rectangle.width() / picture.size.width(),
                    rectangle.height() / picture.size.height());
        cairo_set_source_surface(m_context, surface.get(), 0, 0);
        cairo_paint_with_alpha(m_context, m_opacity);
        cairo_restore(m_context);
        // The page keeps the surface until it is finished; the pixels are not ours.
        cairo_surface_finish(surface.get());
    }

    Result<void> finish() override
    {
        m_canvas.endPage(); // close() tells whether it went well
        return m_canvas.close();
    }

private:
    PdfCanvas m_canvas;
    QSizeF m_size;
    double m_opacity = 1;
    cairo_t *m_context; // the canvas's
};

class CairoLibrary final : public Library
{
public:
    std::optional<Font> findFont(const QString &postScriptName) const override
    {
        const FontPattern pattern = findFontPattern(postScriptName);
        return pattern ? fontOf(pattern.get()) : std::nullopt;
    }

    std::vector<Font> fonts() const override { return installedFonts(); }

    QRectF inkBounds(const QString &text, const TextStyle &style) const override
    {
        return TextLayout(text, style).inkBounds();
    }

private:
    std::unique_ptr<Page> makePage(const QSizeF &size, Writer writer) const override
    {
        return std::make_unique<PdfPage>(size, std::move(writer));
    }
};

} // namespace

} // namespace kelvo::drawing

extern "C" Q_DECL_EXPORT const kelvo::drawing::Library *kelvoDrawing(const char *version)
{
    static const kelvo::drawing::CairoLibrary library;
    return std::strcmp(version, KELVO_VERSION) == 0 ? &library : nullptr;
}
