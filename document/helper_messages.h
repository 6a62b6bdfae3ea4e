#pragma once

#include "document_files.h"
#include "outgoing_pdf.h"
#include "pdf_pages.h"
#include "picture_import.h"
#include "result.h"
#include "size_limits.h"

#include <QDataStream>
#include <QSize>

#include <vector>

// What the program asks of its document helpers, and how they answer: requests on standard
// input, an answer to each on standard output. Both sides are of one version (see
// document_helper.h), so the format is nobody else's business.
namespace kelvo {

// Before each request and answer: how many bytes it has.
using MessageSize = quint64;
inline constexpr MessageSize kMostAnswered = 256 * limits::MiB; // the sizes of 16 million pages

// A request begins with the tables that the program speaks by (textSource()) and the task;
// then come the arguments of the function. A helper has opened its files with its first
// request, and can open no others: only WritePdf comes after another one.
enum class Task : quint8 {
    TidyPdf,           // source, target, passwords → PdfPages, whether `source` is good as it is
    TidyPdfToWrite,    // source, target, passwords, written, name → the same; a sound one is kept
    WritePdf,          // layout, file: the one that was kept into `written`
    MakePdf,           // source, layout, file, target
    JoinPdfs,          // sources, target
    CheckEmbeddedFile, // pdf, name, bytes
    ConvertText,       // files, paper
    ConvertPicture,    // files → how many other files were left out
    ImportPicture,     // number of the file, which it has open → ImportedPicture
};

// A count, then so many values. What ends too early is an error of the stream.
template <typename Value>
QDataStream &operator<<(QDataStream &stream, const std::vector<Value> &values)
{
    stream << quint64(values.size());
    for (const Value &value : values)
        stream << value;
    return stream;
}

template <typename Value>
QDataStream &operator>>(QDataStream &stream, std::vector<Value> &values)
{
    quint64 count = 0;
    stream >> count;
    values.clear();
    while (count-- > 0 && stream.status() == QDataStream::Ok) {
        Value value;
        stream >> value;
        values.push_back(value);
    }
    return stream;
}

inline QDataStream &operator<<(QDataStream &stream, const PlacedPage &placed)
{
    return stream << qint32(placed.page) << placed.rect << qint32(placed.rotation) << placed.place;
}

inline QDataStream &operator>>(QDataStream &stream, PlacedPage &placed)
{
    qint32 page = 0;
    qint32 rotation = 0;
    stream >> page >> placed.rect >> rotation >> placed.place;
    placed.page = page;
    placed.rotation = rotation;
    return stream;
}

inline QDataStream &operator<<(QDataStream &stream, const LaidOutPage &page)
{
    return stream << page.size << page.pages << page.isAsItIs << page.border;
}

inline QDataStream &operator>>(QDataStream &stream, LaidOutPage &page)
{
    return stream >> page.size >> page.pages >> page.isAsItIs >> page.border;
}

inline QDataStream &operator<<(QDataStream &stream, const EmbeddedFile &file)
{
    return stream << file.name << file.mimeType << file.bytes;
}

inline QDataStream &operator>>(QDataStream &stream, EmbeddedFile &file)
{
    return stream >> file.name >> file.mimeType >> file.bytes;
}

inline QDataStream &operator<<(QDataStream &stream, const PdfPages &pages)
{
    return stream << pages.sizes << pages.isRepaired << pages.isSound;
}

inline QDataStream &operator>>(QDataStream &stream, PdfPages &pages)
{
    return stream >> pages.sizes >> pages.isRepaired >> pages.isSound;
}

inline QDataStream &operator<<(QDataStream &stream, const ImportedPicture &picture)
{
    return stream << picture.naturalSize << picture.size << picture.bytes << picture.leftOut;
}

inline QDataStream &operator>>(QDataStream &stream, ImportedPicture &picture)
{
    return stream >> picture.naturalSize >> picture.size >> picture.bytes >> picture.leftOut;
}

inline QDataStream &operator<<(QDataStream &stream, const ConverterFiles &files)
{
    return stream << files.folder << files.source << files.pdf << files.where;
}

inline QDataStream &operator>>(QDataStream &stream, ConverterFiles &files)
{
    return stream >> files.folder >> files.source >> files.pdf >> files.where;
}

inline QDataStream &operator<<(QDataStream &stream, const Error &error)
{
    return stream << qint32(error.code) << error.where << error.detail;
}

inline QDataStream &operator>>(QDataStream &stream, Error &error)
{
    qint32 code = 0;
    stream >> code >> error.where >> error.detail;
    error.code = code >= 0 && code <= qint32(Error::Code::Cancelled) ? Error::Code(code)
                                                                     : Error::Code::Damaged;
    return stream;
}

// A result is whether it is one, then the value or the error.
inline QDataStream &operator<<(QDataStream &stream, const Result<void> &result)
{
    stream << bool(result);
    return result ? stream : stream << result.error();
}

template <typename Value>
QDataStream &operator<<(QDataStream &stream, const Result<Value> &result)
{
    stream << bool(result);
    return result ? stream << result.value() : stream << result.error();
}

// ---- the helper that draws, which is asked again and again

// What it is asked for: the picture of a page. The PDF is an argument of the program.
struct DrawingRequest
{
    qint32 page = 0;              // from 1
    qint32 width = 0, height = 0; // pixels to fit it into
    qint32 isOnPaper = 1;         // 0: what the page leaves free is transparent
};

// Its answer: so many pixels follow, rows without gaps, QImage::Format_RGB32, or
// Format_ARGB32_Premultiplied without paper; none of a page that it cannot draw. It listens
// for nothing while it draws: who wants another page ends it.
struct DrawingAnswer
{
    qint32 width = 0, height = 0;
};

// Exit statuses of helpers, beside 0.
inline constexpr int kOtherVersionStatus = 20;
inline constexpr int kOutOfMemoryStatus = 21;

} // namespace kelvo
