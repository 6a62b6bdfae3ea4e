#ifndef QT_NO_KEYWORDS
#define QT_NO_KEYWORDS
#endif
#include "pango_owner.h"

#include "confinement.h"
#include "font_folders.h"
#include "pdf_output.h"
#include "size_limits.h"
#include "tasks.h"
#include "texts.h"

#include <QFile>
#include <QStringDecoder>

#include <algorithm>
#include <optional>

namespace kelvo::documents {

namespace {

constexpr double margin = 20 / 25.4 * 72; // 20 mm, in points
constexpr const char *fontName = "Monospace 10";
constexpr int tabColumns = 8;

// A paragraph is laid out in pieces of this many bytes: the time that a layout
// takes grows faster than its text, and a file may be one line.
constexpr qsizetype pieceBytes = 8 * 1024;

// What Windows means by bytes that Latin-1 keeps for controls that no text has.
constexpr char16_t windowsCharacters[32] = {
    0x20ac, 0xfffd, 0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021, 0x02c6, 0x2030, 0x0160,
    0x2039, 0x0152, 0xfffd, 0x017d, 0xfffd, 0xfffd, 0x2018, 0x2019, 0x201c, 0x201d, 0x2022,
    0x2013, 0x2014, 0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0xfffd, 0x017e, 0x0178};

QByteArray fromLatin1(const QByteArray &bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (QChar &character : text) {
        if (character >= QChar(0x80) && character < QChar(0xa0))
            character = QChar(windowsCharacters[character.unicode() - 0x80]);
    }
    return text.toUtf8();
}

// `bytes` as UTF-8 without a byte order mark; nothing when they are no text.
std::optional<QByteArray> textFrom(const QByteArray &bytes)
{
    if (isUtf16(bytes)) {
        QStringDecoder decoder(QStringDecoder::Utf16);
        const QString text = decoder(bytes);
        if (decoder.hasError() || text.contains(QChar(0)))
            return std::nullopt;
        return text.toUtf8();
    }
    if (!looksLikeText(bytes))
        return std::nullopt;
    constexpr QByteArrayView mark = "\xef\xbb\xbf";
    const qsizetype begin = bytes.startsWith(mark) ? mark.size() : 0;
    // GLib's check is the one that Pango will apply.
    if (g_utf8_validate(bytes.constData() + begin, bytes.size() - begin, nullptr))
        return begin == 0 ? bytes : bytes.sliced(begin);
    return fromLatin1(bytes);
}

// A line without what only a terminal understands: "ESC [ … letter" sets
// colours, a backspace overstrikes to print bold.
QByteArray withoutTerminalCodes(QByteArrayView line)
{
    QByteArray plain;
    plain.reserve(line.size());
    for (qsizetype at = 0; at < line.size(); ++at) {
        const char byte = line[at];
        if (byte == '\x1b') {
            if (at + 1 < line.size() && line[at + 1] == '[') {
                at += 2;
                while (at < line.size() && !(line[at] >= '@' && line[at] <= '~'))
                    ++at;
            }
        } else if (byte == '\b') {
            while (!plain.isEmpty() && (static_cast<unsigned char>(plain.back()) & 0xc0) == 0x80)
                plain.chop(1);
            plain.chop(1);
        } else if (byte != '\x1a' && byte != '\v' && byte != '\r') {
            plain.append(byte);
        }
    }
    return plain;
}

// A piece of `text`, at most pieceBytes and not in the middle of a character.
qsizetype pieceLength(QByteArrayView text)
{
    if (text.size() <= pieceBytes)
        return text.size();
    qsizetype length = pieceBytes;
    while (length > 1 && (static_cast<unsigned char>(text[length]) & 0xc0) == 0x80)
        --length;
    return length;
}

// A character that no font here has.
struct MissingCharacter
{
    gunichar character = 0;
    int line = 0; // of the text, from 1
};

struct CharacterRange
{
    gunichar first, last;
};

// Unicode's Default_Ignorable_Code_Point: what nothing stands for on paper, such as
// joiners, variation selectors and fillers. Pango draws boxes for some of them.
constexpr CharacterRange ignorableCharacters[] = {
    {0x00ad, 0x00ad},   {0x034f, 0x034f},   {0x061c, 0x061c}, {0x115f, 0x1160}, {0x17b4, 0x17b5},
    {0x180b, 0x180f},   {0x200b, 0x200f},   {0x202a, 0x202e}, {0x2060, 0x206f}, {0x3164, 0x3164},
    {0xfe00, 0xfe0f},   {0xfeff, 0xfeff},   {0xffa0, 0xffa0}, {0xfff0, 0xfff8}, {0x1bca0, 0x1bca3},
    {0x1d173, 0x1d17a}, {0xe0000, 0xe0fff},
};

// Whether paper shows nothing for it, so that no font need have it.
bool needsNoGlyph(gunichar character)
{
    return g_unichar_type(character) == G_UNICODE_CONTROL
        || std::ranges::any_of(ignorableCharacters, [character](const CharacterRange &range) {
               return character >= range.first && character <= range.last;
           });
}

// Whether Unicode says what it looks like: not what everybody assigns for himself, nor
// what nobody has assigned.
bool isStandard(gunichar character)
{
    const GUnicodeType type = g_unichar_type(character);
    return type != G_UNICODE_PRIVATE_USE && type != G_UNICODE_UNASSIGNED;
}

struct ScriptFonts
{
    GUnicodeScript script;
    const char *name;
    const char *package; // of Debian
};

// What documents in offices are written in; the last row is for all others.
constexpr const char *mostScripts = "fonts-noto-core";
constexpr const char *farEast = "fonts-noto-cjk";
constexpr ScriptFonts scriptFonts[] = {
    {G_UNICODE_SCRIPT_HAN, QT_TRANSLATE_NOOP("Scripts", "Chinese or Japanese"), farEast},
    {G_UNICODE_SCRIPT_BOPOMOFO, QT_TRANSLATE_NOOP("Scripts", "Chinese"), farEast},
    {G_UNICODE_SCRIPT_HIRAGANA, QT_TRANSLATE_NOOP("Scripts", "Japanese"), farEast},
    {G_UNICODE_SCRIPT_KATAKANA, QT_TRANSLATE_NOOP("Scripts", "Japanese"), farEast},
    {G_UNICODE_SCRIPT_HANGUL, QT_TRANSLATE_NOOP("Scripts", "Korean"), farEast},
    {G_UNICODE_SCRIPT_ARABIC, QT_TRANSLATE_NOOP("Scripts", "Arabic"), mostScripts},
    {G_UNICODE_SCRIPT_ARMENIAN, QT_TRANSLATE_NOOP("Scripts", "Armenian"), mostScripts},
    {G_UNICODE_SCRIPT_BENGALI, QT_TRANSLATE_NOOP("Scripts", "Bengali"), mostScripts},
    {G_UNICODE_SCRIPT_CYRILLIC, QT_TRANSLATE_NOOP("Scripts", "Cyrillic"), mostScripts},
    {G_UNICODE_SCRIPT_DEVANAGARI, QT_TRANSLATE_NOOP("Scripts", "Devanagari"), mostScripts},
    {G_UNICODE_SCRIPT_ETHIOPIC, QT_TRANSLATE_NOOP("Scripts", "Ethiopic"), mostScripts},
    {G_UNICODE_SCRIPT_GEORGIAN, QT_TRANSLATE_NOOP("Scripts", "Georgian"), mostScripts},
    {G_UNICODE_SCRIPT_GREEK, QT_TRANSLATE_NOOP("Scripts", "Greek"), mostScripts},
    {G_UNICODE_SCRIPT_GUJARATI, QT_TRANSLATE_NOOP("Scripts", "Gujarati"), mostScripts},
    {G_UNICODE_SCRIPT_GURMUKHI, QT_TRANSLATE_NOOP("Scripts", "Gurmukhi"), mostScripts},
    {G_UNICODE_SCRIPT_HEBREW, QT_TRANSLATE_NOOP("Scripts", "Hebrew"), mostScripts},
    {G_UNICODE_SCRIPT_KANNADA, QT_TRANSLATE_NOOP("Scripts", "Kannada"), mostScripts},
    {G_UNICODE_SCRIPT_KHMER, QT_TRANSLATE_NOOP("Scripts", "Khmer"), mostScripts},
    {G_UNICODE_SCRIPT_LAO, QT_TRANSLATE_NOOP("Scripts", "Lao"), mostScripts},
    {G_UNICODE_SCRIPT_MALAYALAM, QT_TRANSLATE_NOOP("Scripts", "Malayalam"), mostScripts},
    {G_UNICODE_SCRIPT_MYANMAR, QT_TRANSLATE_NOOP("Scripts", "Burmese"), mostScripts},
    {G_UNICODE_SCRIPT_SINHALA, QT_TRANSLATE_NOOP("Scripts", "Sinhala"), mostScripts},
    {G_UNICODE_SCRIPT_TAMIL, QT_TRANSLATE_NOOP("Scripts", "Tamil"), mostScripts},
    {G_UNICODE_SCRIPT_TELUGU, QT_TRANSLATE_NOOP("Scripts", "Telugu"), mostScripts},
    {G_UNICODE_SCRIPT_THAI, QT_TRANSLATE_NOOP("Scripts", "Thai"), mostScripts},
    {G_UNICODE_SCRIPT_TIBETAN, QT_TRANSLATE_NOOP("Scripts", "Tibetan"), mostScripts},
};

Error noFont(const QString &where, const MissingCharacter &missing)
{
    const QString code =
        QStringLiteral("%1").arg(uint(missing.character), 4, 16, QLatin1Char('0')).toUpper();
    if (!isStandard(missing.character)) {
        return Error{Error::Code::Unsupported, where,
                     translate("Document",
                               "no font here has the character U+%1 in line %2, which Unicode "
                               "does not define; install the font that the text was written "
                               "with, or take the character out")
                         .arg(code, QString::number(missing.line))};
    }
    const auto row = std::ranges::find(scriptFonts, g_unichar_get_script(missing.character),
                                       &ScriptFonts::script);
    const bool isKnown = row != std::end(scriptFonts);
    const bool isPictograph = missing.character >= 0x1f000;
    const QString character =
        QString::fromUcs4(reinterpret_cast<const char32_t *>(&missing.character), 1);
    const QString line = QString::number(missing.line);
    const QString package = QLatin1String(isKnown            ? row->package
                                              : isPictograph ? "fonts-noto-color-emoji"
                                                             : mostScripts);
    return Error{Error::Code::Unsupported, where,
                 isKnown ? translate("Document",
                                     "no font here has the %1 character “%2” (U+%3) in line %4; "
                                     "install one, for example with the package “%5”",
                                     "%1: Arabic")
                               .arg(translate("Scripts", row->name), character, code, line, package)
                         : translate("Document",
                                     "no font here has the character “%1” (U+%2) in line %3; "
                                     "install one, for example with the package “%4”")
                               .arg(character, code, line, package)};
}

// Puts lines on pages, one after the other.
class Typesetter
{
public:
    Typesetter(PdfCanvas &canvas, const QSizeF &paper)
        : m_canvas(canvas)
        , m_paper(paper)
    {
        m_page = m_canvas.beginPage(paper);
        m_layout.reset(pango_cairo_create_layout(m_page));
        // A point on the page is a point of the font; Pango's own are a screen's.
        pango_cairo_context_set_resolution(pango_layout_get_context(m_layout.get()), 72);
        const PangoOwner<PangoFontDescription> font(pango_font_description_from_string(fontName));
        pango_layout_set_font_description(m_layout.get(), font.get());
        pango_layout_set_width(m_layout.get(),
                               static_cast<int>((paper.width() - 2 * margin) * PANGO_SCALE));
        pango_layout_set_wrap(m_layout.get(), PANGO_WRAP_WORD_CHAR);

        pango_layout_set_text(m_layout.get(), " ", 1);
        int width = 0;
        pango_layout_get_size(m_layout.get(), &width, nullptr);
        const PangoOwner<PangoTabArray> tabs(pango_tab_array_new(1, false));
        pango_tab_array_set_tab(tabs.get(), 0, PANGO_TAB_LEFT, width * tabColumns);
        pango_layout_set_tabs(m_layout.get(), tabs.get());
    }

    int pages() const { return m_pages; }
    bool isFailed() const { return m_isFailed || m_missing; }
    // The first character that no font has; nothing more is set then.
    const std::optional<MissingCharacter> &missing() const { return m_missing; }

    void addParagraph(QByteArrayView text)
    {
        ++m_line;
        do {
            const qsizetype length = pieceLength(text);
            const bool isLast = length == text.size();
            text = text.sliced(addLines(text.first(length), isLast));
        } while (!text.isEmpty() && !isFailed());
    }

    void endPage()
    {
        m_isFailed = m_isFailed || !m_canvas.endPage();
        ++m_pages;
        m_y = 0;
    }

    void beginPage() { m_canvas.beginPage(m_paper); }

private:
    // The number of bytes set. Of a piece that is not the paragraph's last, the
    // last line waits for what follows it.
    qsizetype addLines(QByteArrayView piece, bool isLast)
    {
        pango_layout_set_text(m_layout.get(), piece.data(), static_cast<int>(piece.size()));
        const int count = pango_layout_get_line_count(m_layout.get());
        const PangoOwner<PangoLayoutIter> iterator(pango_layout_get_iter(m_layout.get()));
        for (int index = 0; index < count; ++index) {
            PangoLayoutLine *line = pango_layout_iter_get_line(iterator.get());
            if (!isLast && index > 0 && index == count - 1)
                return line->start_index;
            replaceBoxes(line);
            addLine(iterator.get(), line);
            pango_layout_iter_next_line(iterator.get());
        }
        return piece.size();
    }

    // What no font has is a box by now: nothing, where it needs no glyph, else missing.
    void replaceBoxes(PangoLayoutLine *line)
    {
        if (pango_layout_get_unknown_glyphs_count(m_layout.get()) == 0)
            return;
        for (GSList *run = line->runs; run && !m_missing; run = run->next) {
            PangoGlyphString *glyphs = static_cast<PangoLayoutRun *>(run->data)->glyphs;
            for (int index = 0; index < glyphs->num_glyphs && !m_missing; ++index) {
                PangoGlyphInfo &info = glyphs->glyphs[index];
                if (!(info.glyph & PANGO_GLYPH_UNKNOWN_FLAG))
                    continue;
                const gunichar character = info.glyph & ~PANGO_GLYPH_UNKNOWN_FLAG;
                if (needsNoGlyph(character))
                    info = {PANGO_GLYPH_EMPTY, {}, info.attr};
                else
                    m_missing = MissingCharacter{character, m_line};
            }
        }
    }

    void addLine(PangoLayoutIter *iterator, PangoLayoutLine *line)
    {
        PangoRectangle box;
        pango_layout_iter_get_line_extents(iterator, nullptr, &box);
        const double height = box.height / double(PANGO_SCALE);
        if (m_y > 0 && m_y + height > m_paper.height() - 2 * margin) {
            endPage();
            beginPage();
        }
        const double baseline =
            (pango_layout_iter_get_baseline(iterator) - box.y) / double(PANGO_SCALE);
        cairo_move_to(m_page, margin + box.x / double(PANGO_SCALE), margin + m_y + baseline);
        pango_cairo_show_layout_line(m_page, line);
        m_y += height;
    }

    PdfCanvas &m_canvas;
    QSizeF m_paper;
    cairo_t *m_page = nullptr; // the canvas's, the same for all pages
    PangoOwner<PangoLayout> m_layout;
    double m_y = 0; // below the top margin
    int m_pages = 0;
    int m_line = 0; // of the text
    std::optional<MissingCharacter> m_missing;
    bool m_isFailed = false;
};

} // namespace

Result<void> convertText(const ConverterFiles &files, const QSizeF &paper)
{
    QFile file(files.source);
    if (!file.open(QIODevice::ReadOnly))
        return Error{Error::Code::NotReadable, files.where, file.errorString()};
    Result<PdfOutput> output = PdfOutput::create(files.pdf);
    if (!output)
        return output.error();
    confineTo(fontFolders());

    std::optional<QByteArray> text = textFrom(file.readAll());
    if (!text) {
        return Error{
            Error::Code::Unsupported, files.where,
            translate("Document", "this begins like a text but holds bytes that no text has")};
    }

    text->replace("\xc2\x85", "\n"); // the line end of mainframes, U+0085

    Typesetter typesetter(output.value().canvas(), paper);
    QByteArrayView rest(*text);
    while (!rest.isEmpty() && !typesetter.isFailed()) {
        if (typesetter.pages() >= limits::documentPages) {
            return Error{Error::Code::TooLarge, files.where,
                         translate("Document", "a text of more than %1 pages is not printed")
                             .arg(limits::documentPages)};
        }
        // A line ends with a line feed (after a return or not), a return alone,
        // or a form feed, which ends the page as well.
        const auto end = std::ranges::find_if(
            rest, [](char byte) { return byte == '\n' || byte == '\r' || byte == '\f'; });
        const QByteArrayView line = rest.first(end - rest.begin());
        const char terminator = end == rest.end() ? '\n' : *end;
        rest = rest.sliced(std::min(line.size() + 1, rest.size()));
        if (terminator == '\r' && rest.startsWith('\n'))
            rest = rest.sliced(1);

        if (terminator != '\f' || !line.isEmpty())
            typesetter.addParagraph(withoutTerminalCodes(line));
        if (terminator == '\f' && !rest.isEmpty()) {
            typesetter.endPage();
            typesetter.beginPage();
        }
    }
    if (typesetter.missing())
        return noFont(files.where, *typesetter.missing());
    typesetter.endPage();
    return output.value().close();
}

} // namespace kelvo::documents
