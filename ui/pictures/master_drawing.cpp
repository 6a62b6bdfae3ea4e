#include "master_drawing.h"

#include <QHash>
#include <QPainter>
#include <QSvgRenderer>

#include <cstring>
#include <memory>

namespace kelvo {

namespace {

// The pictures are the bundle's own, a few dozen: read once and kept. Null when
// the file is missing or no picture.
std::shared_ptr<QSvgRenderer> rendererFor(const QString &file)
{
    static QHash<QString, std::shared_ptr<QSvgRenderer>> renderers;
    auto found = renderers.find(file);
    if (found == renderers.end()) {
        auto renderer = std::make_shared<QSvgRenderer>(file);
        if (!renderer->isValid() || renderer->defaultSize().isEmpty())
            renderer = nullptr;
        found = renderers.insert(file, renderer);
    }
    return *found;
}

class SvgMasterDrawing final : public MasterDrawing
{
public:
    QSize sizeOf(const QString &master) const override
    {
        const auto renderer = rendererFor(master);
        return renderer ? renderer->defaultSize() : QSize();
    }

    QImage draw(const QStringList &masters, const QSize &size, double ratio) const override
    {
        QImage picture(size * ratio, QImage::Format_ARGB32_Premultiplied);
        picture.setDevicePixelRatio(ratio);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        for (const QString &master : masters) {
            const auto renderer = rendererFor(master);
            if (!renderer)
                continue;
            const QSizeF fitted =
                QSizeF(renderer->defaultSize()).scaled(QSizeF(size), Qt::KeepAspectRatio);
            const QPointF corner((size.width() - fitted.width()) / 2,
                                 (size.height() - fitted.height()) / 2);
            renderer->render(&painter, QRectF(corner, fitted));
        }
        return picture;
    }

    QImage drawPart(const QString &master, const QRectF &part, const QSize &pixels,
                    bool hasSoftEdges) const override
    {
        QImage image(pixels, QImage::Format_RGB32);
        image.fill(Qt::white);
        const auto renderer = rendererFor(master);
        if (!renderer || part.isEmpty())
            return image;
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing, hasSoftEdges);
        const QSizeF whole(pixels.width() / part.width(), pixels.height() / part.height());
        const QPointF corner(-part.x() * whole.width(), -part.y() * whole.height());
        renderer->render(&painter, QRectF(corner, whole));
        return image;
    }
};

} // namespace

} // namespace kelvo

extern "C" Q_DECL_EXPORT const void *kelvoMasterDrawing(const char *version)
{
    if (std::strcmp(version, KELVO_VERSION) != 0)
        return nullptr;
    static const kelvo::SvgMasterDrawing drawing;
    return static_cast<const kelvo::MasterDrawing *>(&drawing);
}
