#include "bundle_painters.h"

#include "drawing.h"

namespace kelvo {

namespace {

QImage imageOf(const QByteArray &pdf, const QSize &pixels, bool isOnWhite)
{
    if (pdf.isEmpty())
        return {};
    const auto picture = drawing::showPdf(pdf, pixels, isOnWhite);
    if (!picture)
        return {};
    const auto &[size, bytes] = picture.value();
    return QImage(reinterpret_cast<const uchar *>(bytes.constData()), size.width(), size.height(),
                  QImage::Format_ARGB32_Premultiplied)
        .copy();
}

} // namespace

OverlayPainter overlayPainter(const BundleDrawer &drawer)
{
    return [drawer](const Overlay &overlay, const QSizeF &page, const QSize &pixels,
                    const std::atomic_bool &cancelled) {
        return imageOf(drawer.draw(overlay, page, cancelled), pixels, false);
    };
}

LeadingPagePainter leadingPagePainter(const BundleDrawer &drawer)
{
    return
        [drawer](const LeadingPage &page, const QSize &pixels, const std::atomic_bool &cancelled) {
            return imageOf(drawer.draw(page, cancelled), pixels, true);
        };
}

} // namespace kelvo
