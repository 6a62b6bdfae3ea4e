#include "document_kind.h"

#include "texts.h"

#include <QtGlobal>

#include <algorithm>
#include <array>

namespace kelvo {

namespace {

struct Magic
{
    QByteArrayView bytes;
    DocumentKind kind;
};

// What a file of each kind begins with.
constexpr Magic magics[] = {
    {"%!PS", DocumentKind::PostScript},
    {"\x04%!PS", DocumentKind::PostScript}, // written for a serial line: an end of job comes first
    {"\xc5\xd0\xd3\xc6", DocumentKind::PostScript}, // EPS with a preview picture for DOS
    {"\x89PNG\r\n\x1a\n", DocumentKind::Png},
    {"\xff\xd8\xff", DocumentKind::Jpeg},
    {"GIF87a", DocumentKind::Gif},
    {"GIF89a", DocumentKind::Gif},
    {QByteArrayView("II*\0", 4), DocumentKind::Tiff},
    {QByteArrayView("MM\0*", 4), DocumentKind::Tiff},
    {QByteArrayView("II+\0", 4), DocumentKind::Tiff}, // with 64-bit offsets
    {QByteArrayView("MM\0+", 4), DocumentKind::Tiff},
};

struct Format
{
    DocumentKind kind;
    QLatin1String name;
};

constexpr Format formats[] = {
    {DocumentKind::Png, QLatin1String("png")},   {DocumentKind::Jpeg, QLatin1String("jpeg")},
    {DocumentKind::Gif, QLatin1String("gif")},   {DocumentKind::Bmp, QLatin1String("bmp")},
    {DocumentKind::Tiff, QLatin1String("tiff")}, {DocumentKind::WebP, QLatin1String("webp")},
    {DocumentKind::Svg, QLatin1String("svg")},
};

struct Stranger
{
    QByteArrayView bytes;
    const char *text;
};

// Files that people do try to print. The first row that fits names it.
constexpr Stranger strangers[] = {
    {"PK\x03\x04", QT_TRANSLATE_NOOP("Document", "this is a ZIP archive or an office document")},
    {"\xd0\xcf\x11\xe0",
     QT_TRANSLATE_NOOP("Document", "this is an office document of an old kind")},
    {"\x1f\x8b", QT_TRANSLATE_NOOP("Document", "this is a gzip-compressed file")},
    {"\x7f"
     "ELF",
     QT_TRANSLATE_NOOP("Document", "this is a program")},
    {"\x1b%-12345X", QT_TRANSLATE_NOOP("Document", "this is ready-made printer data")},
    {"\x1b"
     "E",
     QT_TRANSLATE_NOOP("Document", "this is ready-made printer data (PCL)")},
};

constexpr QByteArrayView universalExit = "\x1b%-12345X";
constexpr QByteArrayView utf8Mark = "\xef\xbb\xbf";

bool isBmp(QByteArrayView head)
{
    // "BM" alone begins many an English text; the size of the header that
    // follows the file header is one of a few.
    if (!head.startsWith("BM") || head.size() < 18)
        return false;
    constexpr std::array<char, 6> headerSizes = {12, 16, 40, 64, 108, 124};
    return std::ranges::find(headerSizes, head[14]) != headerSizes.end()
        && head.sliced(15, 3) == QByteArrayView("\0\0\0", 3);
}

bool isSpace(char byte)
{
    return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

// Steps over `begin` … `end` at the beginning of `text`.
bool skipped(QByteArrayView &text, QByteArrayView begin, QByteArrayView end)
{
    if (!text.startsWith(begin))
        return false;
    const qsizetype at = text.indexOf(end, begin.size());
    text = at < 0 ? QByteArrayView() : text.sliced(at + end.size());
    return true;
}

// Whether the first element is <svg> or <prefix:svg>: an HTML page may well
// hold a drawing, and is no picture.
bool isSvg(QByteArrayView text)
{
    if (text.startsWith(utf8Mark))
        text = text.sliced(utf8Mark.size());
    for (;;) {
        while (!text.isEmpty() && isSpace(text.front()))
            text = text.sliced(1);
        if (skipped(text, "<?", "?>") || skipped(text, "<!--", "-->"))
            continue;
        // A document type may hold entities in brackets, with '>' inside.
        if (text.startsWith("<!DOCTYPE")) {
            const qsizetype end = text.indexOf('>');
            const qsizetype bracket = text.indexOf('[');
            const bool hasEntities = bracket >= 0 && bracket < end;
            if (skipped(text, "<!DOCTYPE", hasEntities ? "]" : ">")) {
                if (hasEntities)
                    skipped(text, "", ">");
                continue;
            }
        }
        break;
    }
    if (!text.startsWith('<'))
        return false;
    const auto end = std::ranges::find_if(
        text, [](char byte) { return isSpace(byte) || byte == '>' || byte == '/'; });
    const QByteArrayView name(text.begin() + 1, end);
    return end != text.end() && (name == QByteArrayView("svg") || name.endsWith(":svg"));
}

// PostScript sent to a printer comes wrapped in job language lines.
bool isWrappedPostScript(QByteArrayView head)
{
    return head.startsWith(universalExit)
        && head.first(std::min<qsizetype>(head.size(), 4096)).indexOf("%!PS") > 0;
}

} // namespace

bool isUtf16(QByteArrayView head)
{
    return head.size() % 2 == 0 && (head.startsWith("\xff\xfe") || head.startsWith("\xfe\xff"));
}

bool looksLikeText(QByteArrayView bytes)
{
    return std::ranges::none_of(bytes, [](char byte) {
        const auto code = static_cast<unsigned char>(byte);
        const bool isKnown = (code >= '\b' && code <= '\r') || code == 0x1b || code == 0x1a;
        return (code < 0x20 && !isKnown) || code == 0x7f;
    });
}

DocumentKind documentKind(QByteArrayView head)
{
    if (head.isEmpty())
        return DocumentKind::Empty;
    for (const Magic &magic : magics) {
        if (head.startsWith(magic.bytes))
            return magic.kind;
    }
    if (head.size() >= 12 && head.startsWith("RIFF") && head.sliced(8, 4) == QByteArrayView("WEBP"))
        return DocumentKind::WebP;
    if (isBmp(head))
        return DocumentKind::Bmp;
    if (isSvg(head))
        return DocumentKind::Svg;
    if (isWrappedPostScript(head))
        return DocumentKind::PostScript;
    // Readers of PDF look for its header in the first 1,024 bytes.
    if (head.first(std::min<qsizetype>(head.size(), 1024)).indexOf("%PDF-") >= 0)
        return DocumentKind::Pdf;
    const bool isStranger = std::ranges::any_of(
        strangers, [head](const Stranger &row) { return head.startsWith(row.bytes); });
    if (!isStranger && (isUtf16(head) || looksLikeText(head)))
        return DocumentKind::Text;
    return DocumentKind::Unsupported;
}

QLatin1String pictureFormat(DocumentKind kind)
{
    const auto row = std::ranges::find(formats, kind, &Format::kind);
    return row == std::end(formats) ? QLatin1String() : row->name;
}

QString unsupportedKindText(QByteArrayView head)
{
    const auto row = std::ranges::find_if(
        strangers, [head](const Stranger &stranger) { return head.startsWith(stranger.bytes); });
    return row == std::end(strangers)
        ? translate("Document", "this is a file of a kind that is not known here")
        : translate("Document", row->text);
}

} // namespace kelvo
