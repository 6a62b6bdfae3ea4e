#include "overlay_painter.h"

#include "drawing.h"

namespace kelvo {

OverlayPainter overlayPainter(const OverlayDrawer &drawer)
{
    return [drawer](const Overlay &overlay, const QSizeF &page, const QSize &pixels,
                    const std::atomic_bool &cancelled) {
        const QByteArray pdf = drawer.draw(overlay, page, cancelled);
        if (pdf.isEmpty())
            return QImage();
        const auto picture = drawing::showPdf(pdf, pixels, false);
        if (!picture)
            return QImage();
        const auto &[size, bytes] = picture.value();
        return QImage(reinterpret_cast<const uchar *>(bytes.constData()), size.width(),
                      size.height(), QImage::Format_ARGB32_Premultiplied)
            .copy();
    };
}

} // namespace kelvo
