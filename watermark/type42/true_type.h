#pragma once

#include "result.h"

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <optional>
#include <vector>

// What TrueType font files say of themselves. They are strangers' files: every offset, length
// and index in them is checked before it is used, and what leads out of the file, or of its
// table, counts as not there. Numbers are big-endian in the file. Views are into the file.
namespace kelvo {

// The list of a font's tables, and the file that its offsets count in.
struct SfntDirectory
{
    QByteArrayView file;
    QByteArrayView header;  // the 12 bytes before the list; empty where the file has no font there
    QByteArrayView records; // of 16 bytes; those that the file does not hold whole are left out
};

// Of the font that begins at `offset` of the file.
SfntDirectory sfntDirectory(QByteArrayView file, std::uint32_t offset = 0);

// The first table of that name of four characters.
std::optional<QByteArrayView> find_table(QByteArrayView tag, const SfntDirectory &directory);

// Whether the glyphs are TrueType outlines ('glyf' and 'loca'); fonts of the same file form may
// have others, which no Type 42 program can show.
bool hasTrueTypeOutlines(QByteArrayView fontData);

// Member `index`, from 0, of a collection (a file that begins with 'ttcf') as a font file of its
// own: tables in the order of its directory, on multiples of four, with the checksums that the
// directory has, and head.checkSumAdjustment made right for the new file. At most three times
// as large as the collection. Fails with OtherKind where the data is no collection, OutOfRange
// where it has no such member, and Damaged where the member is not in it or too large.
Result<QByteArray> sfntOfMember(QByteArrayView collection, int index);

// What is used of 'head'.
struct HeadTable
{
    static constexpr std::uint32_t kMagicNumber = 0x5F0F3CF5;

    std::int32_t version;      // 65536ths
    std::int32_t fontRevision; // 65536ths
    std::uint32_t magicNumber;
    std::uint16_t unitsPerEm;            // a table that says 0 is damaged, and not read
    std::int16_t xMin, yMin, xMax, yMax; // of all glyphs, in font units
    std::int16_t indexToLocFormat;       // of 'loca': 0 short, 1 long
};
std::optional<HeadTable> readHead(const SfntDirectory &directory);

// maxp.numGlyphs
std::optional<std::uint16_t> readGlyphCount(const SfntDirectory &directory);

// What is used of 'post'.
struct PostTable
{
    static constexpr std::uint32_t kWithNames = 0x00020000; // format 2.0

    std::uint32_t format;
    std::uint32_t minMemType42, maxMemType42; // bytes of the printer's memory; mostly 0
    QByteArrayView names;                     // behind these: the glyphs' names, in format 2.0
};
std::optional<PostTable> readPost(const SfntDirectory &directory);

// The names in a table of format 2.0, by glyph; null for a glyph whose name is not in the table.
// Fails, without a place, where the table is not made for `glyphCount` glyphs.
Result<std::vector<QByteArrayView>> readGlyphNames(const PostTable &post, int glyphCount);

// Where glyphs begin, as offsets in the file, in ascending order; none in a font without 'glyf'
// or 'loca'. What 'loca' says beyond the end of 'glyf' is left out.
std::vector<qsizetype> readGlyphStarts(const SfntDirectory &directory, int glyphCount,
                                       int indexToLocFormat);

} // namespace kelvo
