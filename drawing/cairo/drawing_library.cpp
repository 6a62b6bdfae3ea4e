#include "fonts.h"
#include "library_entry.h"
#include "line_breaker.h"
#include "pdf_canvas.h"
#include "text_layout.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace kelvo::drawing {

namespace {

struct SurfaceRelease
{
    void operator()(cairo_surface_t *surface) const { cairo_surface_destroy(surface); }
};

// A part of a picture, and where it lies on the page; y counts down.
struct Part
{
    QRect pixels;
    QRectF place;
};

// What the page shows of a picture of `size` in `place`: whoever shows a PDF stretches its
// pictures as they are, and looks later what is beside the page.
Part visiblePart(const QSize &size, QRectF place, const QSizeF &page)
{
    // Of pixels that are larger than the page one or the corner of four is seen, however large.
    const double largest = std::max(page.width(), page.height());
    const QPointF middle = place.center();
    place.setSize(place.size().boundedTo(QSizeF(size) * largest));
    place.moveCenter(middle);

    const QRectF seen = place & QRectF(QPointF(), page);
    if (!(seen.width() > 0 && seen.height() > 0)) // nor where a number is none
        return {};
    const QSizeF pixel(place.width() / size.width(), place.height() / size.height());
    const QPointF from = seen.topLeft() - place.topLeft();
    const QPointF to = seen.bottomRight() - place.topLeft();
    const QRect pixels = QRect(QPoint(static_cast<int>(std::floor(from.x() / pixel.width())),
                                      static_cast<int>(std::floor(from.y() / pixel.height()))),
                               QPoint(static_cast<int>(std::ceil(to.x() / pixel.width())) - 1,
                                      static_cast<int>(std::ceil(to.y() / pixel.height())) - 1))
        & QRect(QPoint(), size);
    return {pixels,
            {place.x() + pixels.x() * pixel.width(), place.y() + pixels.y() * pixel.height(),
             pixels.width() * pixel.width(), pixels.height() * pixel.height()}};
}

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

    std::unique_ptr<WrappedText> wrapText(const QString &text, const TextStyle &style,
                                          double width) override;

    void drawPicture(const Picture &picture, const QRectF &rectangle) override
    {
        if (picture.isNull() || rectangle.isEmpty())
            return;
        const QRectF upright(rectangle.x(), m_size.height() - rectangle.y() - rectangle.height(),
                             rectangle.width(), rectangle.height());
        const auto [pixels, place] = visiblePart(picture.size, upright, m_size);
        if (pixels.isEmpty())
            return;
        const int stride = 4 * picture.size.width();
        const char *first =
            picture.bytes.constData() + qsizetype(stride) * pixels.y() + 4 * pixels.x();
        // Only read, though cairo's interface cannot say so.
        auto *bytes = reinterpret_cast<unsigned char *>(const_cast<char *>(first));
        const std::unique_ptr<cairo_surface_t, SurfaceRelease> surface(
            cairo_image_surface_create_for_data(bytes, CAIRO_FORMAT_ARGB32, pixels.width(),
                                                pixels.height(), stride));
        cairo_save(m_context);
        cairo_translate(m_context, place.x(), place.y());
        cairo_scale(m_context, place.width() / pixels.width(), place.height() / pixels.height());
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
    friend class LinesOfPage;

    PdfCanvas m_canvas;
    QSizeF m_size;
    double m_opacity = 1;
    cairo_t *m_context; // the canvas's
};

class LinesOfPage final : public WrappedText
{
public:
    LinesOfPage(PdfPage &page, const QString &text, const TextStyle &style, double width)
        : m_page(page)
        , m_color(style.color)
        , m_lines(text, style, width)
    {
    }

    std::optional<TextLine> nextLine() override { return m_lines.next(); }

    void drawLine(const QPointF &origin) override
    {
        cairo_t *context = m_page.m_context;
        cairo_set_source_rgba(context, m_color.red, m_color.green, m_color.blue,
                              m_color.alpha * m_page.m_opacity);
        m_lines.draw(context, origin.x(), m_page.m_size.height() - origin.y());
    }

private:
    PdfPage &m_page;
    Color m_color;
    LineBreaker m_lines;
};

std::unique_ptr<WrappedText> PdfPage::wrapText(const QString &text, const TextStyle &style,
                                               double width)
{
    return std::make_unique<LinesOfPage>(*this, text, style, width);
}

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

    LibraryVersions versions() const override
    {
        const int fontconfig = FcGetVersion(); // 21401 is 2.14.1
        return {
            {QStringLiteral("cairo"), QString::fromUtf8(cairo_version_string())},
            {QStringLiteral("Pango"), QString::fromUtf8(pango_version_string())},
            {QStringLiteral("HarfBuzz"), QString::fromUtf8(hb_version_string())},
            {QStringLiteral("GLib"),
             QStringLiteral("%1.%2.%3")
                 .arg(glib_major_version)
                 .arg(glib_minor_version)
                 .arg(glib_micro_version)},
            {QStringLiteral("fontconfig"),
             QStringLiteral("%1.%2.%3")
                 .arg(fontconfig / 10000)
                 .arg(fontconfig / 100 % 100)
                 .arg(fontconfig % 100)},
        };
    }

private:
    std::unique_ptr<Page> makePage(const QSizeF &size, Writer writer) const override
    {
        return std::make_unique<PdfPage>(size, std::move(writer));
    }
};

} // namespace

} // namespace kelvo::drawing

extern "C" Q_DECL_EXPORT const void *kelvoDrawing(const char *version)
{
    static const kelvo::drawing::CairoLibrary library;
    const kelvo::drawing::Library *part = &library;
    return std::strcmp(version, KELVO_VERSION) == 0 ? part : nullptr;
}
