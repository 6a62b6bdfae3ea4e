#pragma once

#include "result.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

// TrueType fonts as PostScript programs, so that a printer can show a watermark in its font.
namespace kelvo {

// Appends the Type 42 program of a font file (one font; a member of a collection is made one by
// sfntOfMember()) that defines `postScriptName`. That name, at most 511 bytes of UTF-8, and those
// of glyphs stand as postScriptName() of glyph_names.h makes them; glyph names that would be longer
// than 127 bytes, the most that printers take, are replaced by "#g" and the glyph's number. Of
// glyphs with one name the first has it, and glyph 0 is always ".notdef". A font whose 'post' table
// is not of format 2.0 has names for no other glyph. Any font loads; only one that
// hasTrueTypeOutlines() shows anything.
//
// The text has two characters for each byte of the font, at most 35 more for a thousand of them,
// at most 140 for each glyph, and 10 KB. It is written once, into memory of just its size.
//
// Where 'maxp', 'head', 'post' or 'name' is missing or damaged, head.magicNumber is wrong or 'post'
// has names for another number of glyphs, nothing is appended. The first two are said on standard
// error, too.
Result<void> convertTTFtoPS42(QByteArrayView fontData, const QString &postScriptName,
                              QByteArray &output);

} // namespace kelvo
