#pragma once

#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QRectF>
#include <QString>
#include <QWidget>

#include <memory>
#include <optional>

namespace kelvo {

class ControlInterface;

// Where a bundle's pictures lie. A name keeps the ending that the system gives
// it ("Paper_Plain-Blue.gif"); the file is the SVG master of the same base
// name. Empty when there is none.
QString pictureFile(const QString &resourcesPath, const QString &name);

// The picture as an icon that follows the device pixel ratio; null icon when
// it is missing or cannot be read.
QIcon pictureIcon(const QString &resourcesPath, const QString &name);

// The size that the first of `files` that can be read is drawn for, in logical pixels; empty
// when there is none.
QSize pictureSize(const QStringList &files);

// The pictures on top of one another, the lowest first, each as large as fits into `size`
// (logical pixels) without distortion, with `ratio` device pixels for one of these. What
// cannot be read is left out.
QPixmap drawnPictures(const QStringList &files, const QSize &size, double ratio);

// The part of a picture, in shares of its width and height, stretched to `pixels`, on white;
// with soft edges, or each pixel of one color. All white for what cannot be read.
enum class Edges { Soft, Hard };
QImage drawnPart(const QString &file, const QRectF &part, const QSize &pixels,
                 Edges edges = Edges::Soft);

// Shows one picture, or several on top of one another, as large as fits
// without distortion. It is sharp at any device pixel ratio, and paler when
// disabled.
class PictureView : public QWidget
{
    Q_OBJECT

public:
    explicit PictureView(QWidget *parent = nullptr);

    // As drawnPictures() draws them; none draws nothing. `description` is what a
    // screen reader says.
    void setPictures(const QStringList &files, const QString &description = {});
    const QStringList &pictures() const { return m_files; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QStringList m_files;
};

std::unique_ptr<ControlInterface> interfaceOf(PictureView *view);

} // namespace kelvo
