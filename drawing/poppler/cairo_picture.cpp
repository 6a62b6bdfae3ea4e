// GLib first: Qt has macros by the names of its members.
#include <cairo.h>
#include <poppler.h>

#include "cairo_picture.h"

#include <QFile>

#include <cstring>
#include <fcntl.h>

namespace kelvo {

namespace {

struct Unref
{
    void operator()(gpointer object) const { g_object_unref(object); }
    void operator()(GBytes *bytes) const { g_bytes_unref(bytes); }
    void operator()(cairo_surface_t *surface) const { cairo_surface_destroy(surface); }
    void operator()(cairo_t *context) const { cairo_destroy(context); }
};
template <typename Type>
using Owned = std::unique_ptr<Type, Unref>;

// Null: it is no PDF, or needs a password.
Owned<PopplerDocument> load(const PdfSource &source)
{
    // It tells every oddity on standard error.
    g_log_set_handler(
        "Poppler", GLogLevelFlags(G_LOG_LEVEL_MASK), [](auto...) {}, nullptr);
    if (source.path.isEmpty()) {
        const Owned<GBytes> bytes(
            g_bytes_new_static(source.bytes.constData(), gsize(source.bytes.size())));
        return Owned<PopplerDocument>(
            poppler_document_new_from_bytes(bytes.get(), nullptr, nullptr));
    }
    // Not by its name: for that, GIO would load all of the desktop's ways to reach files.
    const int fd = ::open(QFile::encodeName(source.path).constData(), O_RDONLY | O_CLOEXEC);
    return Owned<PopplerDocument>(
        fd < 0 ? nullptr : poppler_document_new_from_fd(fd, nullptr, nullptr)); // which closes it
}

class GLibPictures final : public CairoPictures
{
public:
    explicit GLibPictures(const PdfSource &source)
        : m_source(source)
        , m_pdf(load(m_source))
    {
    }

    QImage draw(int page, const QSize &pixels, bool isOnWhite) override;

private:
    PdfSource m_source; // its bytes stay where they are
    Owned<PopplerDocument> m_pdf;
};

QImage GLibPictures::draw(int page, const QSize &pixels, bool isOnWhite)
{
    if (!m_pdf || page < 1 || page > poppler_document_get_n_pages(m_pdf.get()))
        return {};
    const Owned<PopplerPage> read(poppler_document_get_page(m_pdf.get(), page - 1));
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    if (!read || image.isNull())
        return {};
    image.fill(Qt::transparent);
    double width = 0; // points
    double height = 0;
    poppler_page_get_size(read.get(), &width, &height);

    const Owned<cairo_surface_t> surface(
        cairo_image_surface_create_for_data(image.bits(), CAIRO_FORMAT_ARGB32, image.width(),
                                            image.height(), int(image.bytesPerLine())));
    const Owned<cairo_t> context(cairo_create(surface.get()));
    cairo_scale(context.get(), pixels.width() / width, pixels.height() / height);
    poppler_page_render(read.get(), context.get());
    if (isOnWhite) {
        // Not before: what is blended is blended with what the page has, not with its paper.
        cairo_set_operator(context.get(), CAIRO_OPERATOR_DEST_OVER);
        cairo_set_source_rgb(context.get(), 1, 1, 1);
        cairo_paint(context.get());
    }
    cairo_surface_finish(surface.get());
    return cairo_status(context.get()) == CAIRO_STATUS_SUCCESS ? image : QImage();
}

} // namespace

} // namespace kelvo

extern "C" Q_DECL_EXPORT kelvo::CairoPictures *kelvoCairoPictures(const char *version,
                                                                  const kelvo::PdfSource &source)
{
    return std::strcmp(version, KELVO_VERSION) == 0 ? new kelvo::GLibPictures(source) : nullptr;
}
