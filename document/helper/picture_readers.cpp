#include "picture_readers.h"

#include "confinement.h"
#include "size_limits.h"
#include "svg_references.h"
#include "texts.h"

#include <QBuffer>
#include <QSemaphore>
#include <QThreadPool>

#include <clocale>

namespace kelvo::documents {

namespace {

QByteArray formatOf(DocumentKind kind)
{
    return QByteArray(pictureFormat(kind).data(), pictureFormat(kind).size());
}

// Qt loads the reader of a format when it is first needed; that is too late here.
// Whether there is one.
bool loadReader(const QByteArray &format)
{
    if (!QImageReader::supportedImageFormats().contains(format))
        return false;
    QBuffer nothing;
    nothing.open(QIODevice::ReadOnly);
    (void)QImageReader(&nothing, format).canRead();
    return true;
}

// Qt converts large pictures on threads of its pool, and a thread needs files of its own to
// start with: it would end the process when no more can be had. So the pool has one, which
// starts here and stays.
void startPoolThread()
{
    QThreadPool *pool = QThreadPool::globalInstance();
    pool->setMaxThreadCount(1);
    pool->setExpiryTimeout(-1);
    QSemaphore started;
    pool->start([&started] { started.release(); });
    started.acquire();
}

} // namespace

Result<void> loadPictureReader(DocumentKind kind)
{
    const QByteArray format = formatOf(kind);
    if (loadReader(format))
        return {};
    return Error{Error::Code::Unsupported,
                 {},
                 translate("Document",
                           "%1 pictures cannot be read here; install the package "
                           "“qt6-image-formats-plugins”")
                     .arg(QString::fromLatin1(format).toUpper())};
}

void confinePictureReader()
{
    // Landlock holds for the thread that asks for it and those that it starts.
    confineTo({});
    startPoolThread();
    confineToOpenFiles();
}

void beginReading(QImageReader &reader, QIODevice &source, DocumentKind kind)
{
    QImageReader::setAllocationLimit(static_cast<int>(limits::picturePixels * 4 / limits::MiB) + 1);
    reader.setDevice(&source);
    reader.setFormat(formatOf(kind));
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
}

Result<QImage> readPicture(QImageReader &reader, int page)
{
    const QSize size = reader.size();
    if (size.isValid() && qint64(size.width()) * size.height() > limits::picturePixels) {
        return Error{Error::Code::TooLarge,
                     {},
                     translate("Document",
                               "a picture of %1 by %2 pixels is not printed; the "
                               "limit is %3 million")
                         .arg(size.width())
                         .arg(size.height())
                         .arg(limits::picturePixels / 1'000'000)};
    }
    QImage image = reader.read();
    if (!image.isNull())
        return image;
    return Error{
        Error::Code::Damaged,
        {},
        page > 0
            ? translate("Document", "page %1 of the picture cannot be read: %2")
                  .arg(QString::number(page), reader.errorString())
            : translate("Document", "the picture cannot be read: %1").arg(reader.errorString())};
}

SvgDrawing::SvgDrawing()
{
    // Texts in drawings need fonts, and those an application; no window is ever shown,
    // so no display is asked for.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    m_application.emplace(m_argc, m_argv);
    std::setlocale(LC_NUMERIC, "C"); // the application object took over the locale
    for (int kind = 0; kind <= int(DocumentKind::Svg); ++kind)
        loadReader(formatOf(DocumentKind(kind))); // of pictures that the drawing holds
    m_renderer.emplace();
}

Result<void> SvgDrawing::read(const QByteArray &svg)
{
    const std::optional<ClosedSvg> closed = withoutReferences(svg);
    if (!closed || !m_renderer->load(closed->bytes) || size().isEmpty())
        return Error{Error::Code::Damaged, {}, translate("Document", "the drawing cannot be read")};
    m_leftOut = closed->leftOut;
    return {};
}

QSizeF SvgDrawing::size() const
{
    return m_renderer->defaultSize();
}

} // namespace kelvo::documents
