#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <optional>

// Base64 with padding, as property lists have it: the fonts of a store are megabytes of it. Our
// own, because Qt's takes a byte at a time, wants no white space, and makes a copy of everything.
namespace kelvo {

// Appends `bytes` to `out`, in one line.
void appendBase64(QByteArray &out, QByteArrayView bytes);

// Takes it in pieces, with white space anywhere.
class Base64Reader
{
public:
    void add(QByteArrayView text);
    bool isBad() const { return m_isBad; } // a character was none of base64
    // What it stood for; nothing where a character was none of base64, or the last group has no
    // padding: a text that was cut off must not be taken. Begins anew.
    std::optional<QByteArray> take();

private:
    bool addSlowly(unsigned char character);

    QByteArray m_bytes;        // keeps its memory
    qsizetype m_used = 0;      // of it
    std::uint32_t m_group = 0; // of digits, six bits each
    int m_held = 0;            // digits in the group
    int m_padding = 0;         // "=" behind it
    bool m_isBad = false;
};

} // namespace kelvo
