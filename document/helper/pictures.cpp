#include "confinement.h"
#include "font_folders.h"
#include "pdf_output.h"
#include "picture_readers.h"
#include "tasks.h"

#include <QBuffer>
#include <QFile>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include <cmath>
#include <ctime>

namespace kelvo::documents {

namespace {

constexpr double sharpest = 600; // dots per inch; more is lost on paper and costs time
constexpr int jpegQuality = 95;

// What the file says of its resolution, in dots per inch, where that makes
// sense; else what screens and browsers take.
double resolution(int dotsPerMeter)
{
    const double dpi = dotsPerMeter * 0.0254;
    return dpi >= 30 && dpi <= 2400 ? dpi : 96;
}

// Without transparency, in the pixel layout of cairo, and no sharper than paper.
QImage flattened(QImage image, const QSizeF &placed)
{
    const double most = sharpest / 72;
    const QSize enough(static_cast<int>(std::ceil(placed.width() * most)),
                       static_cast<int>(std::ceil(placed.height() * most)));
    const QSize size = image.size().boundedTo(enough).expandedTo(QSize(1, 1));
    if (size != image.size())
        image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (!image.hasAlphaChannel()) {
        image.convertTo(QImage::Format_RGB32);
        return image;
    }
    QImage flat(image.size(), QImage::Format_RGB32);
    flat.fill(Qt::white);
    QPainter painter(&flat);
    painter.drawImage(0, 0, image);
    return flat;
}

// Finishing makes whoever still holds the surface let go of the image's pixels.
struct Finisher
{
    void operator()(cairo_surface_t *surface) const
    {
        cairo_surface_finish(surface);
        cairo_surface_destroy(surface);
    }
};

// A photograph stays a JPEG in the PDF, encoded anew: what came in is damaged
// for all we know, and ends in printers.
void attachJpeg(cairo_surface_t *surface, const QImage &image)
{
    auto *bytes = new QByteArray;
    QBuffer buffer(bytes);
    buffer.open(QIODevice::WriteOnly);
    const bool isSaved = image.save(&buffer, "jpeg", jpegQuality);
    buffer.close();
    const auto destroy = [](void *data) { delete static_cast<QByteArray *>(data); };
    if (!isSaved
        || cairo_surface_set_mime_data(surface, CAIRO_MIME_TYPE_JPEG,
                                       reinterpret_cast<const unsigned char *>(bytes->constData()),
                                       static_cast<unsigned long>(bytes->size()), destroy, bytes)
            != CAIRO_STATUS_SUCCESS) {
        delete bytes;
    }
}

bool drawPicture(PdfCanvas &canvas, const QImage &image, const QSizeF &paper, bool isPhotograph)
{
    const QSizeF size(image.width() * 72 / resolution(image.dotsPerMeterX()),
                      image.height() * 72 / resolution(image.dotsPerMeterY()));
    const auto [page, placed] = placePicture(size, paper);
    QImage flat = flattened(image, placed.size());

    const std::unique_ptr<cairo_surface_t, Finisher> surface(
        cairo_image_surface_create_for_data(flat.bits(), CAIRO_FORMAT_RGB24, flat.width(),
                                            flat.height(), static_cast<int>(flat.bytesPerLine())));
    if (isPhotograph)
        attachJpeg(surface.get(), flat);

    cairo_t *context = canvas.beginPage(page);
    cairo_translate(context, placed.x(), placed.y());
    cairo_scale(context, placed.width() / flat.width(), placed.height() / flat.height());
    cairo_set_source_surface(context, surface.get(), 0, 0);
    cairo_paint(context);
    return canvas.endPage();
}

Result<void> drawPictures(QImageReader &reader, DocumentKind kind, PdfOutput &output,
                          const QSizeF &paper)
{
    // Only of a TIFF are all pictures pages; a GIF's are a film.
    const int pages = kind == DocumentKind::Tiff ? reader.imageCount() : 1;
    int page = 1;
    do {
        const Result<QImage> image = readPicture(reader, pages > 1 ? page : 0);
        if (!image)
            return image.error();
        if (!drawPicture(output.canvas(), image.value(), paper, kind == DocumentKind::Jpeg))
            break; // close() tells why
        ++page;
    } while (page <= pages && reader.jumpToNextImage());
    return output.close();
}

Result<void> convertPixels(QFile &file, DocumentKind kind, const QString &pdfPath)
{
    if (Result<void> loaded = loadPictureReader(kind); !loaded)
        return loaded;
    const QSizeF paper = localePaper();
    Result<PdfOutput> output = PdfOutput::create(pdfPath);
    if (!output)
        return output.error();
    confinePictureReader();
    QImageReader reader;
    beginReading(reader, file, kind);
    return drawPictures(reader, kind, output.value(), paper);
}

// As lines and curves, which stay sharp at any size. The value is as of convertPicture().
Result<int> convertSvg(QFile &source, const ConverterFiles &files)
{
    SvgDrawing drawing;
    const QSizeF paper = localePaper();
    Result<OutputFile> output = OutputFile::create(files.pdf);
    if (!output)
        return output.error();
    ::tzset(); // the PDF says when it was made
    confineTo(fontFolders(), files.folder);

    if (Result<void> read = drawing.read(source.readAll()); !read)
        return read.error();
    const QSizeF size = drawing.size() * 72 / 96;
    const auto [page, placed] = placePicture(size, paper);

    QFile file;
    if (!file.open(output.value().stream(), QIODevice::WriteOnly))
        return output.value().error();
    {
        QPdfWriter writer(&file);
        writer.setResolution(1200);
        writer.setPageMargins(QMarginsF());
        writer.setPageSize(QPageSize(page, QPageSize::Point, QString(), QPageSize::ExactMatch));
        QPainter painter(&writer);
        const double unit = writer.resolution() / 72.0;
        drawing.draw(painter, QRectF(placed.topLeft() * unit, placed.size() * unit));
    }
    if (!file.flush())
        return output.value().error();
    file.close();
    if (Result<void> closed = output.value().close(); !closed)
        return closed.error();
    return drawing.leftOut();
}

Result<int> convert(const ConverterFiles &files)
{
    QFile file(files.source);
    if (!file.open(QIODevice::ReadOnly))
        return Error{Error::Code::Damaged, {}, file.errorString()};
    const DocumentKind kind = documentKind(file.read(kKindBytes));
    file.seek(0);
    if (kind == DocumentKind::Svg)
        return convertSvg(file, files);
    if (Result<void> made = convertPixels(file, kind, files.pdf); !made)
        return made.error();
    return 0;
}

} // namespace

Result<int> convertPicture(const ConverterFiles &files)
{
    Result<int> made = convert(files);
    if (made || made.error().code == Error::Code::NotWritable)
        return made;
    return Error{made.error().code, files.where, made.error().detail};
}

} // namespace kelvo::documents
