#include "picture_view.h"

#include "accessible_role.h"
#include "control_interface.h"
#include "pictures.h"

#include <QFileInfo>
#include <QPainter>

#include <memory>

namespace kelvo {

namespace {

constexpr double disabledOpacity = 0.4;
constexpr int fallbackSide = 64; // logical pixels, of a view without picture

} // namespace

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
