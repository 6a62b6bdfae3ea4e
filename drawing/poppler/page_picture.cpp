// GLib first: Qt has macros by the names of its members.
#include <cairo.h>
#include <poppler.h>

#include "page_picture.h"
#include "splash_picture.h"

#include "size_limits.h"

#include <QFile>

#include <algorithm>
#include <fcntl.h>
#include <optional>

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

Error undrawable(const char *reason)
{
    return Error{Error::Code::Damaged, {}, QString::fromLatin1(reason)};
}

} // namespace

struct PagePictures::Private
{
    PdfSource source; // its bytes stay where they are
    Owned<PopplerDocument> pdf;
    std::optional<SplashPictures> splash; // from the first page on that cairo gives up
};

PagePictures::PagePictures(const PdfSource &source)
    : d(std::make_unique<Private>(source))
{
    d->pdf = load(d->source);
}

PagePictures::~PagePictures() = default;

QString PagePictures::version()
{
    return QString::fromLatin1(poppler_get_version());
}

Result<drawing::Picture> PagePictures::draw(int page, const QSize &room, bool isOnWhite)
{
    if (!d->pdf || page < 1 || page > poppler_document_get_n_pages(d->pdf.get()))
        return undrawable("no page");
    const Owned<PopplerPage> read(poppler_document_get_page(d->pdf.get(), page - 1));
    const QSizeF points = read ? sizeOf(*read) : QSizeF();
    if (points.isEmpty())
        return undrawable("no page");
    const QSize most = room.boundedTo({limits::drawnSide, limits::drawnSide});
    if (most.isEmpty())
        return drawing::Picture{};
    const QSize pixels = fitted(points, most);
    const QSizeF perPoint(pixels.width() / points.width(), pixels.height() / points.height());

    const int stride = 4 * pixels.width();
    QByteArray bytes(qsizetype(stride) * pixels.height(), isOnWhite ? '\xff' : '\0');
    const Owned<cairo_surface_t> surface(cairo_image_surface_create_for_data(
        reinterpret_cast<unsigned char *>(bytes.data()), CAIRO_FORMAT_ARGB32, pixels.width(),
        pixels.height(), stride));
    const Owned<cairo_t> context(cairo_create(surface.get()));
    cairo_scale(context.get(), perPoint.width(), perPoint.height());
    poppler_page_render(read.get(), context.get());
    cairo_surface_finish(surface.get());

    const cairo_status_t status = cairo_status(context.get());
    if (status == CAIRO_STATUS_SUCCESS)
        return drawing::Picture{pixels, bytes};
    if (status == CAIRO_STATUS_NO_MEMORY)
        return Error{
            Error::Code::TooLarge, {}, QString::fromLatin1(cairo_status_to_string(status))};
    // It has drawn nothing any more since then.
    bytes.clear();
    if (!d->splash)
        d->splash.emplace(d->source);
    const drawing::Picture picture = d->splash->draw(page, pixels, perPoint, isOnWhite);
    return picture.isNull() ? Result<drawing::Picture>(undrawable(cairo_status_to_string(status)))
                            : picture;
}

} // namespace kelvo
