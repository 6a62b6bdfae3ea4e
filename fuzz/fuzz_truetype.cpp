#include "glyph_names.h"
#include "sfnt_strings.h"
#include "true_type.h"
#include "type42.h"

#include <QHash>
#include <QSet>
#include <QtEndian>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <utility>
#include <vector>

using namespace kelvo;

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

// ---- what holds of every program

QByteArrayView takeLine(QByteArrayView &text)
{
    const qsizetype end = text.indexOf('\n');
    require(end >= 0);
    const QByteArrayView line = text.first(end);
    text = text.sliced(end + 1);
    return line;
}

bool isName(QByteArrayView name)
{
    return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) {
        return c > ' ' && c < 0x7f && !QByteArrayView("()<>[]{}/%").contains(c);
    });
}

// "/NAME NUMBER def" each, no name twice.
void checkGlyphs(QByteArrayView text, int glyphs)
{
    QSet<QByteArrayView> names;
    while (!text.startsWith("end readonly def\n")) {
        const QByteArrayView line = takeLine(text);
        const qsizetype blank = line.indexOf(' ');
        require(line.startsWith('/') && line.endsWith(" def") && blank > 0);
        const QByteArrayView name = line.sliced(1, blank - 1);
        require(isName(name) && name.size() <= 127 && !names.contains(name));
        names.insert(name);
        bool isNumber = false;
        const int glyph = line.sliced(blank + 1).chopped(4).toInt(&isNumber);
        require(isNumber && glyph >= 0 && glyph < std::max(glyphs, 1));
        require((name == notdef) == (glyph == 0));
    }
    require(names.contains(notdef));
}

// The strings are the font, and none is too long.
QByteArrayView checkStrings(QByteArrayView text, QByteArrayView font)
{
    QByteArray bytes;
    bytes.reserve(font.size());
    while (text.startsWith('<')) {
        const qsizetype end = text.indexOf('>');
        require(end >= 0);
        const QByteArray string = QByteArray::fromHex(text.sliced(1, end - 1).toByteArray());
        require(string.endsWith('\0') && string.size() <= kStringBytes + 1);
        bytes += string.chopped(1);
        require(string.size() % 2 == 1 || bytes.size() == font.size());
        text = text.sliced(end + 1);
    }
    require(bytes == font);
    return text;
}

void checkFont(QByteArrayView font)
{
    const QString name = QString::fromUtf8(font.last(std::min<qsizetype>(font.size(), 600)));
    QByteArray output = "before";
    const auto converted = convertTTFtoPS42(font, name, output);
    if (!converted)
        return require(output == "before" && !converted.error().detail.isEmpty());

    const int glyphs = readGlyphCount(sfntDirectory(font)).value();
    require(output.size() - 6 <= 2 * font.size() + font.size() * 35 / 1000 + 140 * glyphs + 10'240);
    require(std::all_of(output.begin(), output.end(),
                        [](char c) { return c == '\n' || (c >= ' ' && c < 0x7f); }));
    QByteArrayView text = QByteArrayView(output).sliced(6);
    require(takeLine(text).startsWith("%!PS-TrueTypeFont-"));
    require(takeLine(text).startsWith("%%VMUsage: "));
    require(takeLine(text) == "11 dict begin");
    const QByteArrayView fontName = takeLine(text);
    require(fontName.startsWith("/FontName /") && fontName.endsWith(" def")
            && isName(fontName.sliced(11).chopped(4)));
    const QByteArrayView begin = "/sfnts [\n";
    text = checkStrings(text.sliced(text.indexOf(begin) + begin.size()), font);
    require(takeLine(text) == "] def");
    require(takeLine(text) == "/CharStrings " + QByteArray::number(glyphs) + " dict dup begin");
    checkGlyphs(text, glyphs);
}

} // namespace

// Any bytes end in a program that holds the font and whose names are no code, or in an Error and
// nothing appended; a collection's members likewise.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    checkFont(bytes);
    for (const int index : {0, 1, 2, 70'000}) {
        const auto font = sfntOfMember(bytes, index);
        if (!font)
            continue;
        require(font.value().size() <= 3 * bytes.size());
        checkFont(font.value());
    }
    return 0;
}

// ---- the mutator: fonts whose directory is sound more often than not

// The fuzzer's own; not there when found inputs are replayed without it.
extern "C" __attribute__((weak)) std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size,
                                                              std::size_t maxSize);

namespace {

class FontMutator
{
public:
    FontMutator(QByteArrayView bytes, unsigned seed)
        : m_random(seed)
    {
        m_isCollection = bytes.startsWith("ttcf");
        const auto member = sfntOfMember(bytes, 0);
        const QByteArrayView font = member ? QByteArrayView(member.value()) : bytes;
        const SfntDirectory directory = sfntDirectory(font);
        m_version = directory.header.first(std::min<qsizetype>(4, directory.header.size()))
                        .toByteArray()
                        .leftJustified(4, '\0');
        for (qsizetype at = 0; at < directory.records.size() && m_tables.size() < 40; at += 16) {
            const QByteArray tag = directory.records.sliced(at, 4).toByteArray();
            if (const auto table = find_table(tag, directory))
                m_tables.emplace_back(tag, table->toByteArray());
        }
    }

    bool isFont() const { return !m_tables.empty(); }

    void changeSomething(qsizetype room)
    {
        auto &[tag, table] = m_tables[below(m_tables.size())];
        switch (below(12)) {
        case 0: // another tag
            tag = m_tables[below(m_tables.size())].first;
            break;
        case 1: // shorter
            table.truncate(below(table.size() + 1));
            break;
        case 2: { // longer, now and then than a string is
            const std::size_t most = below(8) == 0 ? 150'000 : 64;
            table.append(std::min<qsizetype>(room, below(most)), char(below(256)));
            break;
        }
        case 3:
            if (m_tables.size() > 1)
                m_tables.erase(m_tables.begin() + below(m_tables.size()));
            break;
        case 4:
            std::swap(m_tables[below(m_tables.size())], m_tables[below(m_tables.size())]);
            break;
        case 5: // any bytes
            mutateBytes(table, room);
            break;
        case 6:
            setGlyphCount(int(below(below(3) == 0 ? 0x10000 : 40)));
            break;
        case 7:
            setNumber(tableOf("head"), 2 * below(27), 2);
            break;
        case 8: // one of the glyphs' places
            setNumber(tableOf("loca"), 4 * below(tableOf("loca").size() / 4 + 1), 4);
            break;
        case 9: // a name's number, or a length
            setNumber(tableOf("post"), 32 + below(tableOf("post").size()), below(2) ? 2 : 1);
            break;
        case 10:
            makeSortedPlaces();
            break;
        default:
            setNumber(table, below(table.size() + 1), below(2) ? 4 : 2);
        }
    }

    QByteArray bytes()
    {
        const qsizetype base = m_isCollection ? 16 : 0;
        QByteArray directory = m_version + big(m_tables.size(), 2) + QByteArray(6, '\0');
        QByteArray data;
        const qsizetype dataAt = base + directory.size() + 16 * qsizetype(m_tables.size());
        for (const auto &[tag, table] : m_tables) {
            directory += tag + big(0, 4) + big(dataAt + data.size(), 4) + big(table.size(), 4);
            data += table + QByteArray((4 - table.size() % 4) % 4, '\0');
        }
        if (below(6) == 0) // a damaged directory
            setNumber(directory, 4 * below(directory.size() / 4), 4);
        QByteArray all = directory + data;
        if (m_isCollection)
            all = "ttcf" + big(0x00010000, 4) + big(1 + below(2), 4) + big(base, 4) + all;
        return all;
    }

    void toggleCollection() { m_isCollection = !m_isCollection; }
    unsigned below(std::size_t limit) { return limit ? unsigned(m_random() % limit) : 0; }

private:
    static QByteArray big(quint64 number, qsizetype size)
    {
        char bytes[8];
        qToBigEndian(number, bytes);
        return {bytes + 8 - size, size};
    }

    // One that is likely to be at somebody's limit.
    quint64 number()
    {
        const quint64 limits[] = {0,      1,       2,       29,         30,         255,
                                  256,    257,     258,     259,        0x7FFF,     0x8000,
                                  0xFFFE, 0xFFFF,  65'534,  65'535,     0x00010000, 0x00020000,
                                  100,    0x30000, 0x28000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
        const quint64 size = m_tables[below(m_tables.size())].second.size();
        switch (below(4)) {
        case 0:
            return m_random();
        case 1:
            return size + below(3) - 1;
        case 2:
            return below(600);
        default:
            return limits[below(std::size(limits))];
        }
    }

    void setNumber(QByteArray &table, qsizetype offset, qsizetype size)
    {
        if (offset + size <= table.size())
            table.replace(offset, size, big(number(), size));
    }

    // Any table where there is none of that tag.
    QByteArray &tableOf(QByteArrayView tag)
    {
        for (auto &[name, table] : m_tables) {
            if (name == tag)
                return table;
        }
        return m_tables.front().second;
    }

    // In 'maxp' and in 'post', whose numbers of names grow with it.
    void setGlyphCount(int count)
    {
        QByteArray &maxp = tableOf("maxp"), &post = tableOf("post");
        if (&maxp == &post || maxp.size() < 6 || post.size() < 34)
            return;
        maxp.replace(4, 2, big(count, 2));
        const int before = qFromBigEndian<quint16>(post.constData() + 32);
        post.replace(32, 2, big(count, 2));
        QByteArray numbers;
        for (int i = before; i < count; ++i)
            numbers += big(below(2) ? number() : 258 + i, 2);
        post.insert(std::min<qsizetype>(post.size(), 34 + 2 * before), numbers);
    }

    void makeSortedPlaces()
    {
        QByteArray &loca = tableOf("loca");
        std::vector<quint32> places;
        for (qsizetype i = 0; i + 4 <= loca.size(); i += 4)
            places.push_back(below(tableOf("glyf").size() + 2));
        std::sort(places.begin(), places.end());
        loca.clear();
        for (const quint32 place : places)
            loca += big(place, 4);
    }

    void mutateBytes(QByteArray &table, qsizetype room)
    {
        const qsizetype size = table.size();
        if (size == 0)
            return; // the fuzzer cannot
        table.resize(size + std::min<qsizetype>(room, 64));
        auto *data = reinterpret_cast<std::uint8_t *>(table.data());
        table.truncate(qsizetype(LLVMFuzzerMutate(data, size, table.size())));
    }

    std::minstd_rand m_random;
    bool m_isCollection = false;
    QByteArray m_version;
    std::vector<std::pair<QByteArray, QByteArray>> m_tables;
};

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size,
                                               std::size_t maxSize, unsigned seed)
{
    FontMutator font(QByteArrayView(data, static_cast<qsizetype>(size)), seed);
    if (size > 0 && (!font.isFont() || font.below(16) == 0))
        return LLVMFuzzerMutate(data, size, maxSize);
    if (!font.isFont())
        return size;
    if (font.below(16) == 0)
        font.toggleCollection();
    const auto most = static_cast<qsizetype>(maxSize);
    for (unsigned changes = 1 + font.below(4); changes > 0; --changes)
        font.changeSomething(std::max<qsizetype>(0, most - qsizetype(size)));
    const QByteArray bytes = font.bytes().left(most);
    std::copy(bytes.begin(), bytes.end(), data);
    return static_cast<std::size_t>(bytes.size());
}
