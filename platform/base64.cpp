#include "base64.h"

#include <QtEndian>

#include <array>
#include <string_view>
#include <utility>

namespace kelvo {

namespace {

constexpr std::string_view digits =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

// The two digits of twelve bits, as they lie in memory.
struct Pair
{
    char first, second;
};
constexpr auto pairs = [] {
    std::array<Pair, 4096> all{};
    for (std::size_t bits = 0; bits < all.size(); ++bits)
        all[bits] = {digits[bits >> 6], digits[bits & 0x3F]};
    return all;
}();

// What a character stands for at each place of a group, as bits of its 24; else one of these.
constexpr std::uint32_t notDigit = 1U << 24, space = 1U << 25;
constexpr auto bitsAt = [] {
    std::array<std::array<std::uint32_t, 256>, 4> places{};
    for (std::size_t place = 0; place < places.size(); ++place) {
        places[place].fill(notDigit);
        for (std::size_t value = 0; value < digits.size(); ++value) {
            places[place][static_cast<unsigned char>(digits[value])] =
                static_cast<std::uint32_t>(value << (18 - 6 * place));
        }
        for (const unsigned char blank : {' ', '\t', '\n', '\r'})
            places[place][blank] = notDigit | space;
    }
    return places;
}();

} // namespace

void appendBase64(QByteArray &out, QByteArrayView bytes)
{
    const qsizetype before = out.size();
    out.resize(before + (bytes.size() + 2) / 3 * 4);
    char *to = out.data() + before;
    const auto put = [&to](std::uint32_t bits) {
        const Pair pair = pairs[bits & 0xFFF];
        *to++ = pair.first;
        *to++ = pair.second;
    };
    const auto *from = reinterpret_cast<const unsigned char *>(bytes.data());
    const auto *const end = from + bytes.size();
    for (; end - from >= 8; from += 6) { // eight are read, six are taken
        const auto next = qFromBigEndian<quint64>(from);
        for (const int shift : {52, 40, 28, 16})
            put(static_cast<std::uint32_t>(next >> shift));
    }
    for (; end - from >= 3; from += 3) {
        const std::uint32_t next =
            std::uint32_t(from[0]) << 16 | std::uint32_t(from[1]) << 8 | from[2];
        put(next >> 12);
        put(next);
    }
    if (from == end)
        return;
    const bool areTwo = end - from == 2;
    const std::uint32_t last =
        std::uint32_t(from[0]) << 16 | (areTwo ? std::uint32_t(from[1]) << 8 : 0);
    put(last >> 12);
    put(last);
    to[-1] = '=';
    if (!areTwo)
        to[-2] = '=';
}

bool Base64Reader::addSlowly(unsigned char character)
{
    const std::uint32_t bits = bitsAt[3][character];
    if (bits & space)
        return true;
    if (character == '=' && m_held >= 2)
        return m_held + ++m_padding <= 4;
    if (bits & notDigit || m_padding > 0)
        return false;
    m_group = m_group << 6 | bits;
    if (++m_held == 4) {
        for (const int shift : {16, 8, 0})
            m_bytes.data()[m_used++] = static_cast<char>(m_group >> shift);
        m_group = 0;
        m_held = 0;
    }
    return true;
}

void Base64Reader::add(QByteArrayView text)
{
    // A group that was begun, and one byte more.
    if (const qsizetype room = m_used + text.size() / 4 * 3 + 8; room > m_bytes.size())
        m_bytes.resize(room);
    char *const bytes = m_bytes.data();
    const auto *from = reinterpret_cast<const unsigned char *>(text.data());
    const auto *const end = from + text.size();
    while (from != end && !m_isBad) {
        if (m_held == 0 && m_padding == 0) {
            for (; end - from >= 4; from += 4) {
                const std::uint32_t group = bitsAt[0][from[0]] | bitsAt[1][from[1]]
                    | bitsAt[2][from[2]] | bitsAt[3][from[3]];
                if (group & notDigit)
                    break;
                qToBigEndian(group << 8, bytes + m_used);
                m_used += 3;
            }
        }
        if (from != end)
            m_isBad = !addSlowly(*from++);
    }
}

std::optional<QByteArray> Base64Reader::take()
{
    const int held = std::exchange(m_held, 0);
    const int padding = std::exchange(m_padding, 0);
    const std::uint32_t group = std::exchange(m_group, 0) << 6 * padding;
    qsizetype used = std::exchange(m_used, 0);
    if (std::exchange(m_isBad, false) || (held != 0 && held + padding != 4))
        return std::nullopt;
    if (held != 0) {
        m_bytes.data()[used++] = static_cast<char>(group >> 16);
        if (held == 3)
            m_bytes.data()[used++] = static_cast<char>(group >> 8);
    }
    return QByteArray(m_bytes.constData(), used);
}

} // namespace kelvo
