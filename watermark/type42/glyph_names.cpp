#include "glyph_names.h"

#include <cstddef>

namespace kelvo {

// clang-format off
constinit const std::array<QByteArrayView, 258> macGlyphEncoding = std::to_array<QByteArrayView>({
    ".notdef", ".null", "nonmarkingreturn", "space", "exclam", "quotedbl", "numbersign",
    "dollar", "percent", "ampersand", "quotesingle", "parenleft", "parenright", "asterisk",
    "plus", "comma", "hyphen", "period", "slash", "zero", "one", "two", "three", "four", "five",
    "six", "seven", "eight", "nine", "colon", "semicolon", "less", "equal", "greater",
    "question", "at", "A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L", "M", "N", "O",
    "P", "Q", "R", "S", "T", "U", "V", "W", "X", "Y", "Z", "bracketleft", "backslash",
    "bracketright", "asciicircum", "underscore", "grave", "a", "b", "c", "d", "e", "f", "g",
    "h", "i", "j", "k", "l", "m", "n", "o", "p", "q", "r", "s", "t", "u", "v", "w", "x", "y",
    "z", "braceleft", "bar", "braceright", "asciitilde", "Adieresis", "Aring", "Ccedilla",
    "Eacute", "Ntilde", "Odieresis", "Udieresis", "aacute", "agrave", "acircumflex",
    "adieresis", "atilde", "aring", "ccedilla", "eacute", "egrave", "ecircumflex", "edieresis",
    "iacute", "igrave", "icircumflex", "idieresis", "ntilde", "oacute", "ograve", "ocircumflex",
    "odieresis", "otilde", "uacute", "ugrave", "ucircumflex", "udieresis", "dagger", "degree",
    "cent", "sterling", "section", "bullet", "paragraph", "germandbls", "registered",
    "copyright", "trademark", "acute", "dieresis", "notequal", "AE", "Oslash", "infinity",
    "plusminus", "lessequal", "greaterequal", "yen", "mu", "partialdiff", "summation",
    "product", "pi", "integral", "ordfeminine", "ordmasculine", "Omega", "ae", "oslash",
    "questiondown", "exclamdown", "logicalnot", "radical", "florin", "approxequal", "Delta",
    "guillemotleft", "guillemotright", "ellipsis", "nonbreakingspace", "Agrave", "Atilde",
    "Otilde", "OE", "oe", "endash", "emdash", "quotedblleft", "quotedblright", "quoteleft",
    "quoteright", "divide", "lozenge", "ydieresis", "Ydieresis", "fraction", "currency",
    "guilsinglleft", "guilsinglright", "fi", "fl", "daggerdbl", "periodcentered",
    "quotesinglbase", "quotedblbase", "perthousand", "Acircumflex", "Ecircumflex", "Aacute",
    "Edieresis", "Egrave", "Iacute", "Icircumflex", "Idieresis", "Igrave", "Oacute",
    "Ocircumflex", "apple", "Ograve", "Uacute", "Ucircumflex", "Ugrave", "dotlessi",
    "circumflex", "tilde", "macron", "breve", "dotaccent", "ring", "cedilla", "hungarumlaut",
    "ogonek", "caron", "Lslash", "lslash", "Scaron", "scaron", "Zcaron", "zcaron", "brokenbar",
    "Eth", "eth", "Yacute", "yacute", "Thorn", "thorn", "minus", "multiply", "onesuperior",
    "twosuperior", "threesuperior", "onehalf", "onequarter", "threequarters", "franc", "Gbreve",
    "gbreve", "Idotaccent", "Scedilla", "scedilla", "Cacute", "cacute", "Ccaron", "ccaron",
    "dcroat",
});
// clang-format on

namespace {

// clang-format off
// The codes from 32 on, without a gap.
constexpr auto asciiNames = std::to_array<QByteArrayView>({
    "space", "exclam", "quotedbl", "numbersign", "dollar", "percent", "ampersand", "quoteright",
    "parenleft", "parenright", "asterisk", "plus", "comma", "hyphen", "period", "slash", "zero",
    "one", "two", "three", "four", "five", "six", "seven", "eight", "nine", "colon",
    "semicolon", "less", "equal", "greater", "question", "at", "A", "B", "C", "D", "E", "F",
    "G", "H", "I", "J", "K", "L", "M", "N", "O", "P", "Q", "R", "S", "T", "U", "V", "W", "X",
    "Y", "Z", "bracketleft", "backslash", "bracketright", "asciicircum", "underscore",
    "quoteleft", "a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l", "m", "n", "o", "p",
    "q", "r", "s", "t", "u", "v", "w", "x", "y", "z", "braceleft", "bar", "braceright",
    "asciitilde",
});

struct Assigned
{
    std::size_t code;
    QByteArrayView name;
};
constexpr Assigned upperNames[] = {
    {161, "exclamdown"}, {162, "cent"}, {163, "sterling"}, {164, "fraction"}, {165, "yen"},
    {166, "florin"}, {167, "section"}, {168, "currency"}, {169, "quotesingle"}, {170,
    "quotedblleft"}, {171, "guillemotleft"}, {172, "guilsinglleft"}, {173, "guilsinglright"},
    {174, "fi"}, {175, "fl"}, {177, "endash"}, {178, "dagger"}, {179, "daggerdbl"}, {180,
    "periodcentered"}, {182, "paragraph"}, {183, "bullet"}, {184, "quotesinglbase"}, {185,
    "quotedblbase"}, {186, "quotedblright"}, {187, "guillemotright"}, {188, "ellipsis"}, {189,
    "perthousand"}, {191, "questiondown"}, {193, "grave"}, {194, "acute"}, {195, "circumflex"},
    {196, "tilde"}, {197, "macron"}, {198, "breve"}, {199, "dotaccent"}, {200, "dieresis"},
    {202, "ring"}, {203, "cedilla"}, {205, "hungarumlaut"}, {206, "ogonek"}, {207, "caron"},
    {208, "emdash"}, {225, "AE"}, {227, "ordfeminine"}, {232, "Lslash"}, {233, "Oslash"}, {234,
    "OE"}, {235, "ordmasculine"}, {241, "ae"}, {245, "dotlessi"}, {248, "lslash"}, {249,
    "oslash"}, {250, "oe"}, {251, "germandbls"},
};
// clang-format on

constexpr std::array<QByteArrayView, 256> standardEncodings()
{
    std::array<QByteArrayView, 256> names;
    names.fill(notdef);
    for (std::size_t i = 0; i < asciiNames.size(); ++i)
        names[32 + i] = asciiNames[i];
    for (const Assigned &row : upperNames)
        names[row.code] = row.name;
    return names;
}

// What ends a name, or is not seen in one, and what begins an escape.
constexpr std::array<bool, 256> escapedBytes()
{
    std::array<bool, 256> escaped = {};
    for (std::size_t byte = 0; byte < escaped.size(); ++byte)
        escaped[byte] = byte <= ' ' || byte >= 0x7f;
    for (const char delimiter : {'(', ')', '<', '>', '[', ']', '{', '}', '/', '%', '#'})
        escaped[static_cast<std::size_t>(delimiter)] = true;
    return escaped;
}
constexpr std::array<bool, 256> isEscaped = escapedBytes();

void appendEscape(QByteArray &name, uchar byte)
{
    constexpr char digits[] = "0123456789ABCDEF";
    name += '#';
    name += digits[byte >> 4];
    name += digits[byte & 15];
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool mayBeginNumber(char c)
{
    return isDigit(c) || c == '+' || c == '-' || c == '.';
}

// 12, -.5, 6.02E23 and 16#1F; rather too much than too little, as "1-2".
bool mayReadAsNumber(QByteArrayView name)
{
    if (!mayBeginNumber(name[0]))
        return false;
    bool digits = false;
    for (const char c : name) {
        digits = digits || isDigit(c);
        if (c == '#')
            return digits;
        if (!isDigit(c) && !QByteArrayView("+-.eE").contains(c))
            return false;
    }
    return digits;
}

} // namespace

constinit const std::array<QByteArrayView, 256> StandardEncodings = standardEncodings();

QByteArray postScriptName(QByteArrayView raw)
{
    QByteArray name;
    name.reserve(raw.size());
    for (const char c : raw) {
        const auto byte = static_cast<uchar>(c);
        if (isEscaped[byte])
            appendEscape(name, byte);
        else
            name += c;
    }
    if (name.isEmpty())
        return "#";
    if (mayReadAsNumber(name)) {
        QByteArray escaped;
        appendEscape(escaped, static_cast<uchar>(name[0]));
        return escaped + name.mid(1);
    }
    return name;
}

bool isPlainName(QByteArrayView raw)
{
    if (raw.empty() || mayBeginNumber(raw[0]))
        return false;
    bool escapes = false;
    for (const char c : raw)
        escapes |= isEscaped[static_cast<uchar>(c)];
    return !escapes;
}

} // namespace kelvo
