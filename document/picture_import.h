#pragma once

#include "result.h"

#include <QByteArray>
#include <QSize>
#include <QSizeF>
#include <QString>

#include <atomic>

// Pictures that users choose, read by the program that also makes documents of pictures: its
// crash or hang is an Error here.
namespace kelvo {

// Pixels as drawing::Picture has them: 32 bits, multiplied by their alpha, rows without gaps.
struct ImportedPicture
{
    QSizeF naturalSize; // points: one for each pixel of the file, or of a drawing's own size
    QSize size;         // pixels of `bytes`: fewer than the file has where it has very many
    QByteArray bytes;
    int leftOut = 0; // other files that a drawing would have shown
    bool isNull() const { return size.isEmpty(); }
    friend bool operator==(const ImportedPicture &, const ImportedPicture &) = default;
};

// PNG, JPEG, GIF (its first picture), BMP, TIFF (its first page) and SVG, told by their bytes,
// turned as a camera says; files that a drawing names are not shown. At most
// limits::importedPixels come back, of a drawing enough for a page. NotFound, NotReadable,
// Unsupported (not a picture, or a format without reader), TooLarge, Damaged, TimedOut after
// limits::importSeconds, Cancelled: each says the file and what to do. Blocks; any thread but
// the window's.
Result<ImportedPicture> importPicture(const QString &path,
                                      const std::atomic_bool *cancelled = nullptr);

} // namespace kelvo
