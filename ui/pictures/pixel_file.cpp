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
constexpr quint32 version = 1;

struct Header
{
    quint32 mark, version;
    quint32 masters, drawings; // rows
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

// `count` rows at byte `at`; none where they do not lie within the file.
template <typename Row>
std::span<const Row> rowsAt(const uchar *bytes, std::int64_t length, std::int64_t at,
                            std::int64_t count)
{
    if (at % std::int64_t(alignof(Row)) != 0 || at > length
        || count > (length - at) / std::int64_t(sizeof(Row)))
        return {};
    return {reinterpret_cast<const Row *>(bytes + at), std::size_t(count)};
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

    const Header header{mark, version, quint32(masterRows.size()), quint32(drawingRows.size())};
    const auto namesAt = qsizetype(sizeof header + masterRows.size() * sizeof(MasterRow)
                                   + drawingRows.size() * sizeof(DrawingRow));
    const qsizetype length = namesAt + names.size() + pixels.size();
    Q_ASSERT(length <= std::numeric_limits<int>::max());
    for (MasterRow &row : masterRows)
        row.nameAt += quint32(namesAt);
    for (DrawingRow &row : drawingRows)
        row.pixelsAt += quint32(namesAt + names.size());

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
    const std::int64_t length = m_file->size();
    const uchar *bytes = m_file->map(0, length);
    m_modified = m_file->fileTime(QFileDevice::FileModificationTime).toMSecsSinceEpoch();
    m_file->close(); // the mapping stays
    const auto header = rowsAt<Header>(bytes, bytes ? length : 0, 0, 1);
    if (header.empty() || header[0].mark != mark || header[0].version != version)
        return;
    m_bytes = bytes;
    m_length = length;
}

PixelFile::~PixelFile() = default;

std::optional<PixelMaster> PixelFile::find(const QString &masterFile) const
{
    const QFileInfo file(masterFile);
    if (!m_bytes || !file.exists() || file.lastModified().toMSecsSinceEpoch() > m_modified)
        return {};
    const Header &header = *reinterpret_cast<const Header *>(m_bytes);
    const auto masters = rowsAt<MasterRow>(m_bytes, m_length, sizeof(Header), header.masters);
    const auto drawings = rowsAt<DrawingRow>(
        m_bytes, m_length, std::int64_t(sizeof(Header) + masters.size_bytes()), header.drawings);
    const auto nameOf = [this](const MasterRow &row) {
        const auto name = rowsAt<char>(m_bytes, m_length, row.nameAt, row.nameLength);
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
        const auto pixels = rowsAt<quint32>(m_bytes, m_length, each.pixelsAt,
                                            std::int64_t(each.inkWidth) * each.inkHeight);
        const bool isWhole = pixels.size() == std::size_t(each.inkWidth) * each.inkHeight;
        if (!isWhole)
            return {};
        PixelMaster::Drawn drawn{.size = QSize(int(each.width), int(each.height)),
                                 .ratio = each.hundredths / 100.0,
                                 .at = QPoint(int(each.x), int(each.y))};
        if (!pixels.empty())
            drawn.pixels =
                QImage(reinterpret_cast<const uchar *>(pixels.data()), int(each.inkWidth),
                       int(each.inkHeight), qsizetype(each.inkWidth) * pixelBytes,
                       QImage::Format_ARGB32_Premultiplied);
        master.drawn.push_back(std::move(drawn));
    }
    return master;
}

} // namespace kelvo
