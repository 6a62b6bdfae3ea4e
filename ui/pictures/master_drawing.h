#pragma once

#include <QImage>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QStringList>

// Pictures drawn from their SVG masters. Qt Svg does it in a library that is opened when first
// something is shown that has no pixels (pixel_file.h): the dialog's first frame does without.
namespace kelvo {

// For the GUI thread, or a program that has no other.
class MasterDrawing
{
public:
    // The logical pixels that a master is drawn for; empty where the file is missing or no
    // picture.
    virtual QSize sizeOf(const QString &master) const = 0;

    // The masters on top of one another, the lowest first, each as large as fits into `size`
    // (logical pixels) without distortion, with `ratio` device pixels for one of these, on
    // nothing; premultiplied. What cannot be read is left out.
    virtual QImage draw(const QStringList &masters, const QSize &size, double ratio) const = 0;

    // The part of a master, in shares of its width and height, stretched to `pixels`, on white;
    // with soft edges, or each pixel of one color. All white for what cannot be read.
    virtual QImage drawPart(const QString &master, const QRectF &part, const QSize &pixels,
                            bool hasSoftEdges) const = 0;

protected:
    ~MasterDrawing() = default; // lives in its library
};

// libkelvo_svg.so has this; its entry is a PartEntry (part_library.h).
inline constexpr char masterDrawingLibraryName[] = "libkelvo_svg.so";
inline constexpr char masterDrawingEntry[] = "kelvoMasterDrawing";

} // namespace kelvo

// What the entry has; for the build's own programs, which link the library.
extern "C" const void *kelvoMasterDrawing(const char *version);
