#include "side_picture.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace kelvo {

namespace {

// Quarter turns move pixels and blur none.
PictureLayer upright(PictureLayer layer)
{
    layer.image = layer.image.transformed(QTransform().rotate(std::exchange(layer.rotation, 0)));
    return layer;
}

void paint(QPainter &painter, const PictureLayer &layer)
{
    const QSize around = layer.rect.size() - layer.image.size();
    const QPoint corner = layer.rect.topLeft() + QPoint(around.width() / 2, around.height() / 2);
    if (layer.clip.isNull()) {
        painter.drawImage(corner, layer.image);
        return;
    }
    const QRect seen = QRect(corner, layer.image.size()) & layer.clip;
    painter.drawImage(seen.topLeft(), layer.image, seen.translated(-corner));
}

void paintLayers(QPainter &painter, const QList<PictureLayer> &pages,
                 const QList<OverlayLayer> &overlays)
{
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    for (const auto &[layer, place] : overlays) {
        if (place == Overlay::Place::Behind)
            paint(painter, layer);
    }
    for (const PictureLayer &page : pages)
        paint(painter, page);
    for (const auto &[layer, place] : overlays) {
        if (place == Overlay::Place::Behind)
            continue;
        painter.setCompositionMode(place == Overlay::Place::Blended
                                       ? QPainter::CompositionMode_Multiply
                                       : QPainter::CompositionMode_SourceOver);
        paint(painter, layer);
    }
}

} // namespace

QImage composedSide(const QSize &pixels, QList<PictureLayer> pages, QList<OverlayLayer> overlays)
{
    std::ranges::transform(pages, pages.begin(), upright);
    for (OverlayLayer &overlay : overlays)
        overlay.layer = upright(overlay.layer);
    QImage picture(pixels, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    // Of more rows at once Qt paints a part on threads of its own, and waits for ever for one
    // that the system does not give.
    constexpr int rows = 64;
    for (int top = 0; top < pixels.height(); top += rows) {
        painter.setClipRect(0, top, pixels.width(), rows);
        paintLayers(painter, pages, overlays);
    }
    return picture;
}

} // namespace kelvo
