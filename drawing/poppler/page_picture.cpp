// GLib first: Qt has macros by the names of its members.
#include <cairo.h>
#include <poppler.h>

#include "page_picture.h"
#include "splash_picture.h"

#include "size_limits.h"

#include <QFile>

#include <algorithm>
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

QSizeF sizeOf(PopplerPage &page) // points
{
    double width = 0;
    double height = 0;
    poppler_page_get_size(&page, &width, &height);
    return {width, height};
}

QSize fitted(const QSizeF &page, const QSize &room)
{
    const double scale = std::min(room.width() / page.width(), room.height() / page.height());
    return (page * scale).toSize().expandedTo(QSize(1, 1));
}

Error undrawable()
{
    return Error{Error::Code::Damaged, {}, {}};
}

struct ByCairo
{
    drawing::Picture picture;
    cairo_status_t status; // after another one than success, the picture has a part of the page
};

ByCairo drawnByCairo(PopplerPage &page, const QSize &pixels, const QSizeF &perPoint, bool isOnWhite)
{
    const int stride = 4 * pixels.width();
    QByteArray bytes(qsizetype(stride) * pixels.height(), '\0');
    const Owned<cairo_surface_t> surface(cairo_image_surface_create_for_data(
        reinterpret_cast<unsigned char *>(bytes.data()), CAIRO_FORMAT_ARGB32, pixels.width(),
        pixels.height(), stride));
    const Owned<cairo_t> context(cairo_create(surface.get()));
    cairo_scale(context.get(), perPoint.width(), perPoint.height());
    poppler_page_render(&page, context.get());
    if (isOnWhite) {
        // Not before: what is blended is blended with what the page has, not with its paper.
        cairo_set_operator(context.get(), CAIRO_OPERATOR_DEST_OVER);
        cairo_set_source_rgb(context.get(), 1, 1, 1);
        cairo_paint(context.get());
    }
    cairo_surface_finish(surface.get());
    return {{pixels, bytes}, cairo_status(context.get())};
}

} // namespace

struct PagePictures::Private
{
    explicit Private(const PdfSource &from)
        : source(from)
        , pdf(load(source))
        , splash(source)
    {
    }

    PdfSource source; // its bytes stay where they are
    Owned<PopplerDocument> pdf;
    SplashPictures splash;
};

PagePictures::PagePictures(const PdfSource &source)
    : d(std::make_unique<Private>(source))
{
}

PagePictures::~PagePictures() = default;

QString PagePictures::version()
{
    return QString::fromLatin1(poppler_get_version());
}

Result<drawing::Picture> PagePictures::draw(int page, const QSize &room, bool isOnWhite)
{
    if (!d->pdf || page < 1 || page > poppler_document_get_n_pages(d->pdf.get()))
        return undrawable();
    const Owned<PopplerPage> read(poppler_document_get_page(d->pdf.get(), page - 1));
    const QSizeF points = read ? sizeOf(*read) : QSizeF();
    if (points.isEmpty())
        return undrawable();
    const QSize most = room.boundedTo({limits::drawnSide, limits::drawnSide});
    if (most.isEmpty())
        return drawing::Picture{};
    const QSize pixels = fitted(points, most);
    const QSizeF perPoint(pixels.width() / points.width(), pixels.height() / points.height());

    if (!d->splash.hasDrawnLetters(page)) {
        const ByCairo drawn = drawnByCairo(*read, pixels, perPoint, isOnWhite);
        if (drawn.status == CAIRO_STATUS_SUCCESS)
            return drawn.picture;
        if (drawn.status == CAIRO_STATUS_NO_MEMORY)
            return Error{Error::Code::TooLarge, {}, {}};
    }
    const drawing::Picture picture = d->splash.draw(page, pixels, perPoint, isOnWhite);
    return picture.isNull() ? Result<drawing::Picture>(undrawable()) : picture;
}

} // namespace kelvo
