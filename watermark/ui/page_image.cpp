#include "page_image.h"

#include "drawing.h"

namespace kelvo {

Result<QImage> imageOfPage(const _MemoryConsumer &pdf, const QSize &pixels)
{
    if (pixels.isEmpty())
        return QImage();
    // The PDF alone: what stands behind it in the buffer means nothing.
    const auto shown = drawing::showPdf(
        QByteArray::fromRawData(pdf.buffer.data(), qsizetype(pdf.position)), pixels, true);
    if (!shown)
        return shown.error();
    const drawing::Picture &picture = shown.value();
    return QImage(reinterpret_cast<const uchar *>(picture.bytes.constData()), picture.size.width(),
                  picture.size.height(), QImage::Format_ARGB32_Premultiplied)
        .copy(); // the bytes go
}

} // namespace kelvo
