#pragma once

#include <QByteArrayView>
#include <QLatin1String>
#include <QString>

namespace kelvo {

// What a document is, told by its bytes alone: names and endings are whatever a
// sender made them.
enum class DocumentKind {
    Empty,
    Pdf,
    PostScript,
    Png,
    Jpeg,
    Gif,
    Bmp,
    Tiff,
    WebP,
    Svg,
    Text,        // no sign of anything else, and no byte that text does not hold
    Unsupported, // bytes that we do not print
};

// How many bytes from its beginning tell a document's kind; what is text up to
// there can still turn out to be none.
inline constexpr qsizetype kKindBytes = 64 * 1024;

DocumentKind documentKind(QByteArrayView head);

// The name of the Qt image format ("png") of a picture's kind; empty for all
// others.
QLatin1String pictureFormat(DocumentKind kind);

// A clause on bytes that are Unsupported, for a message: "this is a ZIP archive or an office
// document". Never empty.
QString unsupportedKindText(QByteArrayView head);

// Whether `bytes` hold only what a text file holds: no control characters but
// line ends, tabs, form feeds, backspaces and escapes.
bool looksLikeText(QByteArrayView bytes);

// A text in UTF-16 with a byte order mark. It is full of zero bytes.
bool isUtf16(QByteArrayView head);

} // namespace kelvo
