#pragma once

#include <QByteArrayView>

#include <vector>

// A font file as the strings of a Type 42 program: hexadecimal, each "<", the bytes, and "00>". An
// interpreter ignores the last byte of a string with an odd number of them, which is that 00.
namespace kelvo {

// Of the font file, in one string. With the 00 it is the longest string of PostScript, 65535.
inline constexpr qsizetype kStringBytes = 65534;

class SfntStrings
{
public:
    // The strings are all of `font`, which must outlive this. One that is not the last ends at the
    // last of `glyphStarts` (offsets in the font, ascending) that is an even number of bytes, at
    // most kStringBytes, behind its begin: after an odd number the 00 would count, and move what
    // follows. Where there is none it has kStringBytes.
    SfntStrings(QByteArrayView font, const std::vector<qsizetype> &glyphStarts);

    // Where each string ends, as an offset in the font.
    const std::vector<qsizetype> &ends() const { return m_ends; }

    // Characters of the text. Line ends are counted by bytes: a line has 30, fewer where a string
    // begins.
    qsizetype textSize() const;
    // To `text`, which has room for textSize() characters.
    void writeText(char *text) const;

private:
    QByteArrayView m_font;
    std::vector<qsizetype> m_ends;
};

} // namespace kelvo
