#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <array>

// The names of glyphs, as fonts and PostScript say them.
namespace kelvo {

// A font's first glyph, which stands for every character that the font lacks.
inline constexpr QByteArrayView notdef = ".notdef";

// The glyphs of the standard Macintosh order, by the number that a 'post' table says.
extern const std::array<QByteArrayView, 258> macGlyphEncoding;

// PostScript's standard encoding, by character code; ".notdef" where no character is.
extern const std::array<QByteArrayView, 256> StandardEncodings;

// `raw` as it may stand behind a slash in a PostScript program: two names never become one,
// and most stay as they are. Delimiters, blanks, '#', what is not seen and bytes beyond ASCII
// become # and two hexadecimal digits ("a b": a#20b), and so does the first byte of what
// PostScript could read as a number ("12": #312). "#" for the empty name.
QByteArray postScriptName(QByteArrayView raw);

// Whether `raw` is surely its own postScriptName(), as nearly all names are; told without making
// one.
bool isPlainName(QByteArrayView raw);

} // namespace kelvo
