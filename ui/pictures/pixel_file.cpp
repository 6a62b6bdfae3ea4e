#include "pixel_file.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cstring>
#include <limits>
#include <ranges>
#include <span>

namespace kelvo {

namespace {

// The file: a header, a row for each master by name, a row for each drawing, those of a master
// together, the names, and the pixels. All numbers are the machine's own, as pixels are; what
// another kind of machine wrote has another mark.
constexpr quint32 mark = 0x4b565058; // "KVPX"
constexpr quint32 version = 2;

struct Header
{
    quint32 mark, version;
    quint32 masters, drawings; // rows
    quint32 length;            // bytes before the first pixel
};

struct MasterRow
{
    quint32 nameAt, nameLength; // bytes; UTF-8
    quint32 length;
    quint32 width, height;
    quint32 firstDrawing, drawings;
};

struct DrawingRow
{
    quint32 width, height, hundredths;
    quint32 x, y, inkWidth, inkHeight;
    quint32 pixelsAt; // bytes, whole pixels from the file's beginning
};

constexpr int pixelBytes = 4;

template <typename Row>
std::span<const char> bytesOf(const Row &row)
{
    return {reinterpret_cast<const char *>(&row), sizeof row};
}

QByteArray joinedRows(const auto &rows)
{
    QByteArray bytes;
    for (const auto &row : rows)
        bytes.append(bytesOf(row).data(), qsizetype(sizeof row));
    return bytes;
}

// `count` rows at byte `at`; none where they do not lie within `bytes`.
template <typename Row>
std::span<const Row> rowsAt(const QByteArray &bytes, std::int64_t at, std::int64_t count)
{
    if (at % std::int64_t(alignof(Row)) != 0 || at > bytes.size()
        || count > (bytes.size() - at) / std::int64_t(sizeof(Row)))
        return {};
    return {reinterpret_cast<const Row *>(bytes.constData() + at), std::size_t(count)};
}

// Rows of four-byte pixels have no gaps.
QByteArray pixelsOf(const QImage &image)
{
    Q_ASSERT(image.isNull() || image.format() == QImage::Format_ARGB32_Premultiplied);
    return {reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes()};
}

} // namespace

QString PixelFile::pathFor(const QString &folder)
{
    return folder + QStringLiteral(".pixels");
}

bool PixelFile::write(const QString &path, std::vector<PixelMaster> masters)
{
    const auto nameOf = [](const PixelMaster &master) { return master.name.toUtf8(); };
    std::ranges::sort(masters, {}, nameOf);

    std::vector<MasterRow> masterRows;
    std::vector<DrawingRow> drawingRows;
    QByteArray names, pixels;
    for (const PixelMaster &master : masters) {
        masterRows.push_back({quint32(names.size()), quint32(nameOf(master).size()),
                              quint32(master.length), quint32(master.size.width()),
                              quint32(master.size.height()), quint32(drawingRows.size()),
                              quint32(master.drawn.size())});
        names += nameOf(master);
        for (const PixelMaster::Drawn &drawn : master.drawn) {
            drawingRows.push_back({quint32(drawn.size.width()), quint32(drawn.size.height()),
                                   quint32(qRound(drawn.ratio * 100)), quint32(drawn.at.x()),
                                   quint32(drawn.at.y()), quint32(drawn.pixels.width()),
                                   quint32(drawn.pixels.height()), quint32(pixels.size())});
            pixels += pixelsOf(drawn.pixels);
        }
    }
    names.resize((names.size() + pixelBytes - 1) / pixelBytes * pixelBytes, '\0');

    const std::size_t tableBytes = sizeof(Header) + masterRows.size() * sizeof(MasterRow)
        + drawingRows.size() * sizeof(DrawingRow);
    const auto namesAt = static_cast<qsizetype>(tableBytes);
    const qsizetype pixelsAt = namesAt + names.size();
    const qsizetype length = pixelsAt + pixels.size();
    const Header header{mark, version, quint32(masterRows.size()), quint32(drawingRows.size()),
                        quint32(pixelsAt)};
    Q_ASSERT(length <= std::numeric_limits<int>::max());
    for (MasterRow &row : masterRows)
        row.nameAt += quint32(namesAt);
    for (DrawingRow &row : drawingRows)
        row.pixelsAt += quint32(pixelsAt);

    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly)
        && file.write(joinedRows(std::span(&header, 1)) + joinedRows(masterRows)
                      + joinedRows(drawingRows) + names + pixels)
        == length
        && file.commit();
}

PixelFile::PixelFile(const QString &path)
    : m_file(std::make_unique<QFile>(path))
{
    if (!m_file->open(QIODevice::ReadOnly))
        return;
    m_modified = m_file->fileTime(QFileDevice::FileModificationTime).toMSecsSinceEpoch();
    QByteArray beginning = m_file->read(sizeof(Header));
    const auto header = rowsAt<Header>(beginning, 0, 1);
    if (header.empty() || header[0].mark != mark || header[0].version != version
        || header[0].length > m_file->size() || header[0].length < sizeof(Header))
        return;
    const qsizetype rest = qsizetype(header[0].length) - beginning.size();
    m_index = beginning + m_file->read(rest);
}

PixelFile::~PixelFile() = default;

std::optional<PixelMaster> PixelFile::find(const QString &masterFile) const
{
    const QFileInfo file(masterFile);
    if (m_index.isEmpty() || !file.exists() || file.lastModified().toMSecsSinceEpoch() > m_modified)
        return {};
    const Header &header = rowsAt<Header>(m_index, 0, 1)[0];
    const auto masters = rowsAt<MasterRow>(m_index, sizeof(Header), header.masters);
    const auto drawings = rowsAt<DrawingRow>(
        m_index, std::int64_t(sizeof(Header) + masters.size_bytes()), header.drawings);
    const auto nameOf = [this](const MasterRow &row) {
        const auto name = rowsAt<char>(m_index, row.nameAt, row.nameLength);
        return QByteArrayView(name.data(), qsizetype(name.size()));
    };
    const QByteArray name = file.completeBaseName().toUtf8();
    const auto row = std::ranges::lower_bound(masters, QByteArrayView(name), std::less<>(), nameOf);
    if (row == masters.end() || nameOf(*row) != name || row->length != file.size()
        || row->firstDrawing > drawings.size()
        || row->drawings > drawings.size() - row->firstDrawing)
        return {};

    PixelMaster master{.name = file.completeBaseName(),
                       .length = row->length,
                       .size = QSize(int(row->width), int(row->height))};
    for (const DrawingRow &each : drawings.subspan(row->firstDrawing, row->drawings)) {
        const std::int64_t most = (m_file->size() - each.pixelsAt) / pixelBytes;
        const bool isWithin = each.pixelsAt % pixelBytes == 0
            && (each.inkHeight == 0 || each.inkWidth <= most / each.inkHeight);
        if (!isWithin)
            return {};
        // Its own pages alone: the system brings more of a mapping into memory than is looked at.
        const std::int64_t length = std::int64_t(each.inkWidth) * each.inkHeight * pixelBytes;
        const uchar *pixels = length > 0 ? m_file->map(each.pixelsAt, length) : nullptr;
        if (length > 0 && !pixels)
            return {};
        PixelMaster::Drawn drawn{.size = QSize(int(each.width), int(each.height)),
                                 .ratio = each.hundredths / 100.0,
                                 .at = QPoint(int(each.x), int(each.y))};
        if (pixels)
            drawn.pixels =
                QImage(pixels, int(each.inkWidth), int(each.inkHeight),
                       qsizetype(each.inkWidth) * pixelBytes, QImage::Format_ARGB32_Premultiplied);
        master.drawn.push_back(std::move(drawn));
    }
    return master;
}

} // namespace kelvo
