#pragma once

#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QStringList>

// The pictures of bundles and programs. Each is an SVG master; in the sizes that are usual the
// build has drawn it already (pixel_file.h), and others are drawn from the master, exactly alike.
namespace kelvo {

// Where a bundle's pictures lie. A name keeps the ending that the system gives
// it ("Paper_Plain-Blue.gif"); the file is the SVG master of the same base
// name. Empty when there is none.
QString pictureFile(const QString &resourcesPath, const QString &name);

// The picture as an icon that follows the device pixel ratio; null icon when
// it is missing or cannot be read.
QIcon pictureIcon(const QString &resourcesPath, const QString &name);
// The same of a master's file, at once: it is looked at when the icon is shown, and an icon that
// cannot be read shows nothing then. Null for an empty name.
QIcon iconOf(const QString &file);

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

} // namespace kelvo
