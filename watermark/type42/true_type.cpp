#include "true_type.h"

#include "glyph_names.h"
#include "texts.h"

#include <QtEndian>

#include <algorithm>

namespace kelvo {

namespace {

constexpr qsizetype kHeaderSize = 12;
constexpr qsizetype kRecordSize = 16;

// The caller has seen that `offset` and the number behind it are in `bytes`.
template <typename Number>
Number numberAt(QByteArrayView bytes, qsizetype offset)
{
    Q_ASSERT(offset >= 0 && offset + qsizetype(sizeof(Number)) <= bytes.size());
    return qFromBigEndian<Number>(bytes.data() + offset);
}

// What of `length` bytes from `offset` on is in `bytes`, if all of it is.
std::optional<QByteArrayView> part(QByteArrayView bytes, std::uint32_t offset, std::uint32_t length)
{
    if (offset > bytes.size() || length > bytes.size() - offset)
        return std::nullopt;
    return bytes.sliced(offset, length);
}

// A line of the directory.
struct TableRecord
{
    QByteArrayView tag;
    std::uint32_t checkSum;
    std::uint32_t offset;
    std::uint32_t length;
};

TableRecord recordAt(const SfntDirectory &directory, qsizetype index)
{
    const QByteArrayView record = directory.records.sliced(index * kRecordSize, kRecordSize);
    return {record.first(4), numberAt<std::uint32_t>(record, 4), numberAt<std::uint32_t>(record, 8),
            numberAt<std::uint32_t>(record, 12)};
}

qsizetype recordCount(const SfntDirectory &directory)
{
    return directory.records.size() / kRecordSize;
}

// ---- a collection's member as a font of its own

constexpr QByteArrayView kCollectionTag = "ttcf";
constexpr qsizetype kMemberCountAt = 8;
constexpr qsizetype kMembersAt = 12;

constexpr QByteArrayView kHeadTag = "head";
constexpr qsizetype kAdjustmentAt = 8; // head.checkSumAdjustment
constexpr std::uint32_t kWholeFileSum = 0xB1B0AFBA;

void append16(QByteArray &bytes, int number)
{
    char big[2];
    qToBigEndian(static_cast<std::uint16_t>(number), big);
    bytes.append(big, sizeof big);
}

void append32(QByteArray &bytes, qsizetype number)
{
    char big[4];
    qToBigEndian(static_cast<std::uint32_t>(number), big);
    bytes.append(big, sizeof big);
}

qsizetype paddedSize(qsizetype size)
{
    return (size + 3) / 4 * 4;
}

// `bytes` are a whole number of four-byte words.
std::uint32_t sumOfWords(QByteArrayView bytes)
{
    std::uint32_t sum = 0;
    for (qsizetype i = 0; i < bytes.size(); i += 4)
        sum += numberAt<std::uint32_t>(bytes, i);
    return sum;
}

// Number of tables, and what a reader needs to look a tag up by halves.
void appendHeader(QByteArray &font, QByteArrayView version, int tables)
{
    int power = 0; // of the greatest power of two that is not above `tables`
    while (2 << power <= tables)
        ++power;
    font.append(version);
    append16(font, tables);
    append16(font, int(kRecordSize) << power);
    append16(font, power);
    append16(font, int(kRecordSize) * (tables - (1 << power)));
}

struct MemberTable
{
    TableRecord record;
    QByteArrayView data;
};

std::vector<MemberTable> tablesOf(const SfntDirectory &directory)
{
    std::vector<MemberTable> tables;
    for (qsizetype i = 0; i < recordCount(directory); ++i) {
        const TableRecord record = recordAt(directory, i);
        if (const auto data = part(directory.file, record.offset, record.length))
            tables.push_back({record, *data});
    }
    return tables;
}

QByteArray fontOf(QByteArrayView version, const std::vector<MemberTable> &tables, qsizetype size)
{
    QByteArray font;
    font.reserve(size);
    appendHeader(font, version, int(tables.size()));
    qsizetype offset = kHeaderSize + qsizetype(tables.size()) * kRecordSize;
    qsizetype head = -1;
    for (const MemberTable &table : tables) {
        if (table.record.tag == kHeadTag && head < 0)
            head = offset;
        font.append(table.record.tag);
        append32(font, table.record.checkSum);
        append32(font, offset);
        append32(font, table.data.size());
        offset += paddedSize(table.data.size());
    }
    for (const MemberTable &table : tables) {
        font.append(table.data);
        font.append(paddedSize(font.size()) - font.size(), '\0');
    }
    if (head >= 0 && head + kAdjustmentAt + 4 <= font.size()) {
        char *adjustment = font.data() + head + kAdjustmentAt;
        qToBigEndian(std::uint32_t(0), adjustment);
        qToBigEndian(kWholeFileSum - sumOfWords(font), adjustment);
    }
    return font;
}

Error collectionError(Error::Code code, const QString &detail)
{
    return {code, translate("Font", "a font collection"), detail};
}

} // namespace

SfntDirectory sfntDirectory(QByteArrayView file, std::uint32_t offset)
{
    const auto header = part(file, offset, kHeaderSize);
    if (!header)
        return {file, {}, {}};
    const QByteArrayView behind = file.sliced(offset + kHeaderSize);
    const qsizetype records =
        std::min<qsizetype>(numberAt<std::uint16_t>(*header, 4), behind.size() / kRecordSize);
    return {file, *header, behind.first(records * kRecordSize)};
}

std::optional<QByteArrayView> find_table(QByteArrayView tag, const SfntDirectory &directory)
{
    for (qsizetype i = 0; i < recordCount(directory); ++i) {
        const TableRecord record = recordAt(directory, i);
        if (record.tag == tag)
            return part(directory.file, record.offset, record.length);
    }
    return std::nullopt;
}

bool hasTrueTypeOutlines(QByteArrayView fontData)
{
    const SfntDirectory directory = sfntDirectory(fontData);
    return find_table("glyf", directory) && find_table("loca", directory);
}

Result<QByteArray> sfntOfMember(QByteArrayView collection, int index)
{
    if (!collection.startsWith(kCollectionTag) || collection.size() < kMembersAt)
        return collectionError(Error::Code::OtherKind,
                               translate("Font", "the file is no font collection"));
    const auto count = numberAt<std::uint32_t>(collection, kMemberCountAt);
    if (index < 0 || std::uint32_t(index) >= count)
        return collectionError(Error::Code::OutOfRange,
                               translate("Font", "there is no font number %1 among its %2")
                                   .arg(QString::number(index), QString::number(count)));
    const qsizetype offsetAt = kMembersAt + qsizetype(index) * 4;
    const auto offset = offsetAt + 4 <= collection.size()
        ? std::optional(numberAt<std::uint32_t>(collection, offsetAt))
        : std::nullopt;
    const SfntDirectory directory = offset ? sfntDirectory(collection, *offset) : SfntDirectory();
    const std::vector<MemberTable> tables = tablesOf(directory);
    if (tables.empty())
        return collectionError(
            Error::Code::Damaged,
            translate("Font", "the tables of font number %1 are not in the file").arg(index));
    // Two tables may share their bytes (bitmaps under two names do); a hostile list could name
    // the whole file 65535 times.
    qsizetype size = kHeaderSize + qsizetype(tables.size()) * kRecordSize;
    const qsizetype most = size + 2 * collection.size();
    for (const MemberTable &table : tables)
        size += paddedSize(table.data.size());
    if (size > most)
        return collectionError(
            Error::Code::Damaged,
            translate("Font", "the tables of font number %1 lie upon one another").arg(index));
    return fontOf(directory.header.first(4), tables, size);
}

std::optional<HeadTable> readHead(const SfntDirectory &directory)
{
    constexpr qsizetype size = 54;
    const auto table = find_table(kHeadTag, directory);
    if (!table || table->size() < size)
        return std::nullopt;
    const HeadTable head{
        .version = numberAt<std::int32_t>(*table, 0),
        .fontRevision = numberAt<std::int32_t>(*table, 4),
        .magicNumber = numberAt<std::uint32_t>(*table, 12),
        .unitsPerEm = numberAt<std::uint16_t>(*table, 18),
        .xMin = numberAt<std::int16_t>(*table, 36),
        .yMin = numberAt<std::int16_t>(*table, 38),
        .xMax = numberAt<std::int16_t>(*table, 40),
        .yMax = numberAt<std::int16_t>(*table, 42),
        .indexToLocFormat = numberAt<std::int16_t>(*table, 50),
    };
    return head.unitsPerEm != 0 ? std::optional(head) : std::nullopt;
}

std::optional<std::uint16_t> readGlyphCount(const SfntDirectory &directory)
{
    const auto table = find_table("maxp", directory);
    if (!table || table->size() < 6)
        return std::nullopt;
    return numberAt<std::uint16_t>(*table, 4);
}

std::optional<PostTable> readPost(const SfntDirectory &directory)
{
    constexpr qsizetype size = 32;
    const auto table = find_table("post", directory);
    if (!table || table->size() < size)
        return std::nullopt;
    return PostTable{
        .format = numberAt<std::uint32_t>(*table, 0),
        .minMemType42 = numberAt<std::uint32_t>(*table, 16),
        .maxMemType42 = numberAt<std::uint32_t>(*table, 20),
        .names = table->sliced(size),
    };
}

Result<std::vector<QByteArrayView>> readGlyphNames(const PostTable &post, int glyphCount)
{
    const QByteArrayView table = post.names;
    const int count = table.size() >= 2 ? numberAt<std::uint16_t>(table, 0) : 0;
    if (count != glyphCount)
        return Error{
            Error::Code::Damaged, QString(),
            translate("Font", "the table post has names for %1 glyphs, but the font has %2")
                .arg(QString::number(count), QString::number(glyphCount))};
    const qsizetype stringsAt = 2 + 2 * qsizetype(count);
    if (stringsAt > table.size())
        return Error{
            Error::Code::Damaged, QString(),
            translate("Font", "the table post ends within the numbers of the glyphs’ names")};

    // Each with its length before it. Strings that no 16-bit number names are not read.
    constexpr std::size_t most = 0x10000 - macGlyphEncoding.size();
    std::vector<QByteArrayView> own;
    own.reserve(std::size_t(count)); // mostly as many
    for (QByteArrayView rest = table.sliced(stringsAt); !rest.empty() && own.size() < most;) {
        const auto length = static_cast<uchar>(rest[0]);
        if (length >= rest.size())
            break;
        own.push_back(rest.sliced(1, length));
        rest = rest.sliced(1 + length);
    }

    std::vector<QByteArrayView> names;
    names.resize(std::size_t(count));
    for (std::size_t glyph = 0; glyph < names.size(); ++glyph) {
        const std::size_t index = numberAt<std::uint16_t>(table, 2 + 2 * qsizetype(glyph));
        if (index < macGlyphEncoding.size())
            names[glyph] = macGlyphEncoding[index];
        else if (index - macGlyphEncoding.size() < own.size())
            names[glyph] = own[index - macGlyphEncoding.size()];
    }
    return names;
}

std::vector<qsizetype> readGlyphStarts(const SfntDirectory &directory, int glyphCount,
                                       int indexToLocFormat)
{
    const auto loca = find_table("loca", directory);
    const auto glyf = find_table("glyf", directory);
    if (!loca || !glyf || indexToLocFormat < 0 || indexToLocFormat > 1)
        return {};
    const bool isShort = indexToLocFormat == 0;
    const qsizetype glyphs = std::min<qsizetype>(glyphCount, loca->size() / (isShort ? 2 : 4));
    const qsizetype base = glyf->data() - directory.file.data();
    std::vector<qsizetype> starts;
    starts.reserve(std::size_t(glyphs));
    for (qsizetype i = 0; i < glyphs; ++i) {
        const qsizetype start = isShort ? 2 * qsizetype(numberAt<std::uint16_t>(*loca, 2 * i))
                                        : qsizetype(numberAt<std::uint32_t>(*loca, 4 * i));
        if (start <= glyf->size())
            starts.push_back(base + start);
    }
    if (!std::is_sorted(starts.begin(), starts.end()))
        std::sort(starts.begin(), starts.end());
    return starts;
}

} // namespace kelvo
