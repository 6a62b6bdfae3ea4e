#include "sfnt_strings.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace kelvo {

namespace {

constexpr qsizetype kLineBytes = 30;
constexpr qsizetype kBlockBytes = 16;
constexpr qsizetype kStringMarks = 4; // "<" and "00>"

struct Digits
{
    char pair[2];
};

constexpr std::array<Digits, 256> makeDigits()
{
    constexpr char digits[] = "0123456789ABCDEF";
    std::array<Digits, 256> table = {};
    for (std::size_t byte = 0; byte < table.size(); ++byte)
        table[byte] = {{digits[byte >> 4], digits[byte & 15]}};
    return table;
}
constexpr std::array<Digits, 256> kDigits = makeDigits();

// Sixteen bytes at once, by arithmetic on all of them that compilers make vectors of: twice as
// fast as the table.
void writeBlock(const char *bytes, char *text)
{
    std::uint16_t pairs[kBlockBytes];
    for (std::size_t i = 0; i < kBlockBytes; ++i) {
        const unsigned byte = static_cast<uchar>(bytes[i]);
        const unsigned halves = byte >> 4 | (byte & 15) << 8; // the high one comes first
        const unsigned letters = (halves + 0x0606) >> 4 & 0x0101;
        pairs[i] = qToLittleEndian(
            static_cast<std::uint16_t>(halves + 0x3030 + letters * ('A' - '9' - 1)));
    }
    std::memcpy(text, pairs, sizeof pairs);
}

char *writeLine(const char *bytes, char *text)
{
    // The blocks share two bytes.
    writeBlock(bytes, text);
    writeBlock(bytes + kLineBytes - kBlockBytes, text + 2 * (kLineBytes - kBlockBytes));
    text += 2 * kLineBytes;
    *text++ = '\n';
    return text;
}

char *writeBytes(const char *bytes, qsizetype count, char *text)
{
    for (qsizetype i = 0; i < count; ++i)
        std::memcpy(text + 2 * i, kDigits[static_cast<uchar>(bytes[i])].pair, 2);
    return text + 2 * count;
}

// The count that decides where a line ends, at the first byte of a string: as if the strings
// before had two bytes more, the "00" and what stands around it.
qsizetype countAt(qsizetype begin, std::size_t stringsBefore)
{
    return begin + 2 * qsizetype(stringsBefore);
}

std::vector<qsizetype> stringEnds(qsizetype size, const std::vector<qsizetype> &glyphStarts)
{
    std::vector<qsizetype> ends;
    qsizetype begin = 0;
    while (size - begin > kStringBytes) {
        qsizetype end = begin + kStringBytes;
        auto start = std::upper_bound(glyphStarts.begin(), glyphStarts.end(), end);
        while (start != glyphStarts.begin() && *--start > begin) {
            if ((*start - begin) % 2 == 0) {
                end = *start;
                break;
            }
        }
        ends.push_back(end);
        begin = end;
    }
    ends.push_back(size);
    return ends;
}

} // namespace

SfntStrings::SfntStrings(QByteArrayView font, const std::vector<qsizetype> &glyphStarts)
    : m_font(font)
    , m_ends(stringEnds(font.size(), glyphStarts))
{
}

qsizetype SfntStrings::textSize() const
{
    qsizetype size = 2 * m_font.size() + kStringMarks * qsizetype(m_ends.size());
    qsizetype begin = 0;
    for (std::size_t i = 0; i < m_ends.size(); ++i) {
        const qsizetype count = countAt(begin, i);
        size += (count + m_ends[i] - begin) / kLineBytes - count / kLineBytes; // line ends
        begin = m_ends[i];
    }
    return size;
}

void SfntStrings::writeText(char *text) const
{
    qsizetype begin = 0;
    for (std::size_t i = 0; i < m_ends.size(); ++i) {
        const char *bytes = m_font.data() + begin;
        const char *const end = m_font.data() + m_ends[i];
        *text++ = '<';
        const qsizetype toLineEnd = kLineBytes - countAt(begin, i) % kLineBytes;
        if (end - bytes >= toLineEnd) {
            text = writeBytes(bytes, toLineEnd, text);
            *text++ = '\n';
            bytes += toLineEnd;
        }
        for (; end - bytes >= kLineBytes; bytes += kLineBytes)
            text = writeLine(bytes, text);
        text = writeBytes(bytes, end - bytes, text);
        std::memcpy(text, "00>", 3);
        text += 3;
        begin = m_ends[i];
    }
}

} // namespace kelvo
