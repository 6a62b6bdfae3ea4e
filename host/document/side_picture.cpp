#include "side_picture.h"

#include <QPainter>

namespace kelvo {

namespace {

void paint(QPainter &painter, const PictureLayer &layer)
{
    // Quarter turns move pixels and blur none.
    const QImage turned = layer.image.transformed(QTransform().rotate(layer.rotation));
    const QSize around = layer.rect.size() - turned.size();
    painter.drawImage(layer.rect.topLeft() + QPoint(around.width() / 2, around.height() / 2),
                      turned);
}

} // namespace

QImage composedSide(const QSize &pixels, const QList<PictureLayer> &pages,
                    const QList<OverlayLayer> &overlays)
{
    QImage picture(pixels, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
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
    return picture;
}

} // namespace kelvo
