#include "type42.h"

#include "glyph_names.h"
#include "named_glyphs.h"
#include "sfnt_strings.h"
#include "terminal.h"
#include "texts.h"
#include "true_type.h"

#include <algorithm>
#include <charconv>
#include <cstring>

namespace kelvo {

namespace {

constexpr qsizetype kFontNameBytes = 511;  // as long as a watermark's record can name its font
constexpr qsizetype kGlyphNameBytes = 127; // a printer's limit on names

// The tables that no font can be without.
struct VitalTables
{
    HeadTable head;
    PostTable post;
    int glyphCount;
};

Error fontError(const QString &font, const QString &detail)
{
    return {Error::Code::Damaged, font, detail};
}

Result<VitalTables> readVitalTables(const SfntDirectory &directory, const QString &font)
{
    const auto maxp = readGlyphCount(directory);
    const auto head = readHead(directory);
    const auto post = readPost(directory);
    const char *missing = !maxp          ? "maxp"
        : !head                          ? "head"
        : !post                          ? "post"
        : !find_table("name", directory) ? "name"
                                         : nullptr;
    if (missing) {
        printLine(stderr, QStringLiteral("DEBUG: Malformed TrueType file - missing vital table."));
        return fontError(font,
                         translate("Font", "the table %1 is missing or damaged")
                             .arg(QLatin1StringView(missing)));
    }
    if (head->magicNumber != HeadTable::kMagicNumber) {
        printLine(stderr, QStringLiteral("DEBUG: Malformed TrueType file - Bad magic number"));
        return fontError(font, translate("Font", "the table head has a wrong magic number"));
    }
    return VitalTables{*head, *post, *maxp};
}

// A number as printf's %.*f has it in the C locale.
QByteArray decimals(double number, int digits)
{
    char text[32]; // the greatest is 32768, with a sign and six digits
    const auto end =
        std::to_chars(text, text + sizeof text, number, std::chars_format::fixed, digits);
    return {text, end.ptr - text};
}

// 16.16
QByteArray fixedPoint(std::int32_t number)
{
    return decimals(number / 65536.0, 4);
}

QByteArray fontNameOf(const QString &postScriptName)
{
    const QByteArray raw = postScriptName.toUtf8();
    qsizetype size = std::min(raw.size(), kFontNameBytes);
    while (size > 0 && size < raw.size() && (raw[size] & 0xC0) == 0x80) // within a character
        --size;
    return kelvo::postScriptName(raw.first(size));
}

void appendNumber(QByteArray &text, int number)
{
    char digits[16];
    const auto end = std::to_chars(digits, digits + sizeof digits, number);
    text.append(digits, end.ptr - digits);
}

QByteArray encodingText(const NamedGlyphs &glyphs)
{
    QByteArray text = "/Encoding 256 array\n";
    for (std::size_t code = 0; code < StandardEncodings.size(); ++code) {
        const QByteArrayView name = StandardEncodings[code];
        text += "dup ";
        appendNumber(text, int(code));
        text += " /";
        text += glyphs.contains(name) ? name : notdef;
        text += " put\n";
    }
    return text += "readonly def";
}

// Up to the strings.
QByteArray beginText(const VitalTables &tables, const QString &postScriptName,
                     const NamedGlyphs &glyphs)
{
    const HeadTable &head = tables.head;
    QByteArray text = "%!PS-TrueTypeFont-" + fixedPoint(head.version) + '-'
        + fixedPoint(head.fontRevision) + '\n';
    text += "%%VMUsage: " + QByteArray::number(std::int32_t(tables.post.minMemType42)) + ' '
        + QByteArray::number(std::int32_t(tables.post.maxMemType42)) + '\n';
    text += "11 dict begin\n";
    text += "/FontName /" + fontNameOf(postScriptName) + " def\n";
    text += encodingText(glyphs);
    text += "/PaintType 0 def\n"
            "/FontMatrix [1 0 0 1 0 0] def\n";
    const auto inEm = [&head](int units) { return decimals(double(units) / head.unitsPerEm, 6); };
    text += "/FontBBox [" + inEm(head.xMin) + ' ' + inEm(head.yMin) + ' ' + inEm(head.xMax) + ' '
        + inEm(head.yMax) + "] def\n";
    text += "/FontType 42 def\n"
            "/FontInfo 8 dict dup begin\n"
            "end readonly def\n"
            "/sfnts [\n";
    return text;
}

constexpr QByteArrayView kGlyphLineEnd = " def\n";
constexpr qsizetype kGlyphMarks = 12; // of a line beside the name: "/", " 65535", " def\n"

// "/NAME NUMBER def"; gives the line's end.
char *writeGlyph(const NamedGlyphs::Glyph &glyph, char *text)
{
    const QByteArrayView name(glyph.name.data(), qsizetype(glyph.name.size()));
    *text++ = '/';
    if (name.size() <= kGlyphNameBytes && isPlainName(name)) {
        for (const char c : name) // they are short
            *text++ = c;
    } else {
        QByteArray safe = postScriptName(name);
        if (safe.size() > kGlyphNameBytes)
            safe = "#g" + QByteArray::number(glyph.number);
        text = std::copy(safe.begin(), safe.end(), text);
    }
    *text++ = ' ';
    text = std::to_chars(text, text + 5, glyph.number).ptr;
    return std::copy(kGlyphLineEnd.begin(), kGlyphLineEnd.end(), text);
}

// From the strings on.
QByteArray endText(int glyphCount, const NamedGlyphs &glyphs)
{
    const QByteArray begin =
        "] def\n/CharStrings " + QByteArray::number(glyphCount) + " dict dup begin\n";
    constexpr QByteArrayView end = "end readonly def\n"
                                   "FontName currentdict end definefont pop\n";
    qsizetype most = begin.size() + end.size();
    for (const NamedGlyphs::Glyph &glyph : glyphs.list())
        most += kGlyphMarks + std::min(3 * qsizetype(glyph.name.size()) + 1, kGlyphNameBytes);

    QByteArray text(most, Qt::Uninitialized);
    char *at = std::copy(begin.begin(), begin.end(), text.data());
    for (const NamedGlyphs::Glyph &glyph : glyphs.list())
        at = writeGlyph(glyph, at);
    at = std::copy(end.begin(), end.end(), at);
    text.truncate(at - text.constData());
    return text;
}

} // namespace

Result<void> convertTTFtoPS42(QByteArrayView fontData, const QString &postScriptName,
                              QByteArray &output)
{
    const SfntDirectory directory = sfntDirectory(fontData);
    const auto tables = readVitalTables(directory, postScriptName);
    if (!tables)
        return tables.error();
    const auto &[head, post, glyphCount] = tables.value();

    std::vector<QByteArrayView> names;
    if (post.format == PostTable::kWithNames) {
        auto read = readGlyphNames(post, glyphCount);
        if (!read)
            return fontError(postScriptName, read.error().detail);
        names = std::move(read).value();
    }
    const NamedGlyphs glyphs(names);

    const QByteArray begin = beginText(tables.value(), postScriptName, glyphs);
    const SfntStrings strings(fontData,
                              readGlyphStarts(directory, glyphCount, head.indexToLocFormat));
    const QByteArray end = endText(glyphCount, glyphs);

    const qsizetype before = output.size();
    const qsizetype stringsSize = strings.textSize();
    const qsizetype size = before + begin.size() + stringsSize + end.size();
    output.reserve(size); // or it would grow to a power of two
    output.resize(size);
    char *text = output.data() + before;
    std::memcpy(text, begin.data(), std::size_t(begin.size()));
    strings.writeText(text + begin.size());
    std::memcpy(text + begin.size() + stringsSize, end.data(), std::size_t(end.size()));
    return {};
}

} // namespace kelvo
