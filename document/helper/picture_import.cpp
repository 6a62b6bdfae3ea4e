#include "confinement.h"
#include "font_folders.h"
#include "picture_readers.h"
#include "size_limits.h"
#include "tasks.h"

#include <QFile>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace kelvo::documents {

namespace {

constexpr int sharpDrawing = 2048; // pixels of its longer side: 180 dots per inch on A4

// `size`, or its shape with at most limits::importedPixels.
QSize fewerPixels(const QSizeF &size)
{
    const double most = limits::importedPixels;
    const double smaller = std::min(1.0, std::sqrt(most / (size.width() * size.height())));
    const double width = std::max(1.0, std::floor(size.width() * smaller));
    const double height = std::max(1.0, std::floor(size.height() * smaller));
    // A line of pixels stays one.
    return QSize(static_cast<int>(std::min(width, most / height)),
                 static_cast<int>(std::min(height, most / width)));
}

ImportedPicture pictureOf(QImage image, const QSizeF &naturalSize, int leftOut = 0)
{
    image.convertTo(QImage::Format_ARGB32_Premultiplied);
    // Rows of four-byte pixels have no gaps.
    return {naturalSize, image.size(),
            QByteArray(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes()),
            leftOut};
}

Result<ImportedPicture> importPixels(QFile &file, DocumentKind kind)
{
    if (Result<void> loaded = loadPictureReader(kind); !loaded)
        return loaded.error();
    confinePictureReader();
    QImageReader reader;
    beginReading(reader, file, kind);
    Result<QImage> image = readPicture(reader);
    if (!image)
        return image.error();
    const QSize size = image.value().size();
    const QSize pixels = fewerPixels(size);
    return pictureOf(pixels == size ? std::move(image).value()
                                    : image.value().scaled(pixels, Qt::IgnoreAspectRatio,
                                                           Qt::SmoothTransformation),
                     size);
}

Result<ImportedPicture> importDrawing(QFile &file)
{
    SvgDrawing drawing;
    confineTo(fontFolders());
    if (Result<void> read = drawing.read(file.read(limits::pictureBytes)); !read)
        return read.error();
    const QSizeF size = drawing.size();
    const double sharp = sharpDrawing / std::max(size.width(), size.height());
    QImage image(fewerPixels(size * std::max(1.0, sharp)), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        drawing.draw(painter, QRectF(QPointF(), image.size()));
    }
    return pictureOf(std::move(image), size, drawing.leftOut());
}

} // namespace

Result<ImportedPicture> importPicture(int descriptor)
{
    QFile file;
    if (!file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle))
        return Error{Error::Code::Damaged, {}, file.errorString()};
    const DocumentKind kind = documentKind(file.read(kKindBytes));
    file.seek(0);
    return kind == DocumentKind::Svg ? importDrawing(file) : importPixels(file, kind);
}

} // namespace kelvo::documents
