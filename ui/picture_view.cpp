#include "picture_view.h"

#include "accessible_role.h"
#include "control_interface.h"

#include <QFileInfo>
#include <QHash>
#include <QPainter>
#include <QSvgRenderer>

#include <memory>

namespace kelvo {

namespace {

constexpr double disabledOpacity = 0.4;
constexpr int fallbackSide = 64; // logical pixels, of a view without picture

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

} // namespace

QString pictureFile(const QString &resourcesPath, const QString &name)
{
    // A name can come from a PPD, and is never a path.
    if (name.isEmpty() || name.contains(u'/') || name.startsWith(u'.'))
        return {};
    const QString path =
        QStringLiteral("%1/pictures/%2.svg").arg(resourcesPath, QFileInfo(name).completeBaseName());
    return QFileInfo(path).isFile() ? path : QString();
}

QIcon pictureIcon(const QString &resourcesPath, const QString &name)
{
    const QString file = pictureFile(resourcesPath, name);
    return file.isEmpty() || !rendererFor(file) ? QIcon() : QIcon(file);
}

QSize pictureSize(const QStringList &files)
{
    for (const QString &file : files) {
        if (const auto renderer = rendererFor(file))
            return renderer->defaultSize();
    }
    return {};
}

QPixmap drawnPictures(const QStringList &files, const QSize &size, double ratio)
{
    QPixmap picture(size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const QString &file : files) {
        const auto renderer = rendererFor(file);
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

QImage drawnPart(const QString &file, const QRectF &part, const QSize &pixels, Edges edges)
{
    QImage image(pixels, QImage::Format_RGB32);
    image.fill(Qt::white);
    const auto renderer = rendererFor(file);
    if (!renderer || part.isEmpty())
        return image;
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, edges == Edges::Soft);
    const QSizeF whole(pixels.width() / part.width(), pixels.height() / part.height());
    const QPointF corner(-part.x() * whole.width(), -part.y() * whole.height());
    renderer->render(&painter, QRectF(corner, whole));
    return image;
}

PictureView::PictureView(QWidget *parent)
    : QWidget(parent)
{
    setAccessibleRole(this, QAccessible::Graphic);
}

void PictureView::setPictures(const QStringList &files, const QString &description)
{
    setAccessibleName(description);
    if (files == m_files)
        return;
    m_files = files;
    updateGeometry();
    update();
}

QSize PictureView::sizeHint() const
{
    const QSize size = pictureSize(m_files);
    return size.isEmpty() ? QSize(fallbackSide, fallbackSide) : size;
}

QSize PictureView::minimumSizeHint() const
{
    return {16, 16};
}

void PictureView::paintEvent(QPaintEvent *)
{
    // The layers are drawn over one another first and made paler together: the
    // lower ones must not shine through the upper.
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1.0 : disabledOpacity);
    painter.drawPixmap(0, 0, drawnPictures(m_files, size(), devicePixelRatioF()));
}

namespace {

class PictureViewInterface : public InterfaceOf<PictureView>
{
public:
    using InterfaceOf::InterfaceOf;

    QString text() const override // the pictures' names
    {
        QStringList names;
        for (const QString &file : widget()->pictures())
            names << QFileInfo(file).completeBaseName();
        return names.join(u',');
    }
};

} // namespace

std::unique_ptr<ControlInterface> interfaceOf(PictureView *view)
{
    return std::make_unique<PictureViewInterface>(view);
}

} // namespace kelvo
