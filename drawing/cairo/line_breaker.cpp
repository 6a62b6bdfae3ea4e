#include "line_breaker.h"

#include "line_drawing.h"
#include "text_context.h"

#include <algorithm>
#include <set>

namespace kelvo::drawing {

namespace {

// UTF-16. More than a line of a page of paper has; a line with more is broken there.
constexpr qsizetype shortPart = 2'048, longestPart = 16'384;
// More than any letter has, and placing them takes time with the square of their number.
constexpr int mostMarks = 256;

bool breaksParagraph(QChar character)
{
    static const QString breaks = QStringLiteral("\n\v\f\r\u0085\u2028\u2029");
    return breaks.contains(character);
}

// Nothing is seen of these, and they are nowhere in a font; Pango takes a NUL for the end.
bool isControl(QChar character)
{
    return character.category() == QChar::Other_Control && character != u'\t';
}

// The languages of the desktop's locale, unless that is none: from them Pango knows which
// fonts a script is commonly set in.
PangoLanguage *ownLanguage()
{
    PangoLanguage *own = pango_language_get_default();
    return own == pango_language_from_string("c") ? pango_language_from_string("en") : own;
}

// Chinese, Japanese and Korean share signs, of which other fonts have some that look different.
PangoLanguage *languageOf(const QString &text)
{
    PangoLanguage *language = ownLanguage();
    if (pango_language_includes_script(language, PANGO_SCRIPT_HAN))
        return language;
    for (const QChar character : text) {
        switch (character.script()) {
        case QChar::Script_Hiragana:
        case QChar::Script_Katakana:
            return pango_language_from_string("ja");
        case QChar::Script_Hangul:
            return pango_language_from_string("ko");
        case QChar::Script_Han:
            language = pango_language_from_string("zh");
            break;
        default:
            break;
        }
    }
    return language;
}

// Those of the layout that no font has.
std::set<char32_t> unknownCharacters(PangoLayout *layout)
{
    std::set<char32_t> unknown;
    if (pango_layout_get_unknown_glyphs_count(layout) == 0)
        return unknown;
    for (const GSList *line = pango_layout_get_lines_readonly(layout); line; line = line->next) {
        const auto *runs = static_cast<const PangoLayoutLine *>(line->data)->runs;
        for (; runs; runs = runs->next) {
            const PangoGlyphString &glyphs = *static_cast<PangoGlyphItem *>(runs->data)->glyphs;
            for (int index = 0; index < glyphs.num_glyphs; ++index) {
                const PangoGlyph glyph = glyphs.glyphs[index].glyph;
                if (glyph != PANGO_GLYPH_EMPTY && (glyph & PANGO_GLYPH_UNKNOWN_FLAG) != 0)
                    unknown.insert(glyph & ~PANGO_GLYPH_UNKNOWN_FLAG);
            }
        }
    }
    return unknown;
}

// `text` with word joiners, as long as they, in place of `characters`.
QString without(const std::set<char32_t> &characters, const QString &text)
{
    QString left;
    left.reserve(text.size());
    for (const char32_t character : text.toUcs4()) {
        const int units = QChar::requiresSurrogates(character) ? 2 : 1;
        if (characters.contains(character))
            left.append(QString(units, wordJoiner));
        else
            left.append(QChar::fromUcs4(character));
    }
    return left;
}

// UTF-16 of the layout's text before the byte at `index`.
qsizetype unitsBefore(PangoLayout *layout, int index)
{
    return QString::fromUtf8(pango_layout_get_text(layout), index).size();
}

} // namespace

LineBreaker::LineBreaker(const QString &text, const TextStyle &style, double width)
    : m_text(text)
    , m_width(std::min(std::max(0.0, width), longestSide)) // not a number: 0
    , m_context(unhintedContext())
    , m_font(fontFor(style))
{
}

std::optional<TextLine> LineBreaker::next()
{
    if (++m_part.current >= m_part.lines && !beginPart())
        return std::nullopt;
    PangoLayoutLine *line = pango_layout_get_line_readonly(m_part.layout.get(), m_part.current);
    PangoRectangle logical;
    pango_layout_line_get_extents(line, nullptr, &logical);
    return TextLine{points(PANGO_ASCENT(logical)), points(PANGO_DESCENT(logical)), missingIn(line)};
}

void LineBreaker::draw(cairo_t *context, double x, double y) const
{
    if (m_part.current >= 0 && m_part.current < m_part.lines)
        drawLine(context, pango_layout_get_line_readonly(m_part.layout.get(), m_part.current), x,
                 y);
}

LineBreaker::Part LineBreaker::partFrom(qsizetype begin, qsizetype length) const
{
    Part part;
    part.begin = part.end = begin;
    const qsizetype most = std::min(begin + length, m_text.size());
    for (int marks = 0; part.end < most && !part.endsLine; ++part.end) {
        const QChar character = m_text[part.end];
        if (breaksParagraph(character)) {
            part.endsParagraph = part.endsLine = true;
            return part;
        }
        marks = character.isMark() ? marks + 1 : 0;
        part.endsLine = marks == mostMarks;
    }
    part.endsParagraph = part.end == m_text.size();
    part.endsLine |= part.endsParagraph || length >= longestPart;
    if (!part.endsParagraph && m_text[part.end].isLowSurrogate()
        && m_text[part.end - 1].isHighSurrogate())
        --part.end;
    return part;
}

void LineBreaker::layOut(Part &part) const
{
    // A surrogate that stands alone becomes one character, too.
    part.shown = QString::fromUtf8(m_text.sliced(part.begin, part.end - part.begin).toUtf8());
    std::ranges::replace_if(part.shown, isControl, QChar(wordJoiner));

    pango_context_set_language(m_context.get(), languageOf(part.shown));
    pango_context_set_base_dir(m_context.get(), m_direction.value_or(PANGO_DIRECTION_WEAK_LTR));
    part.layout.reset(pango_layout_new(m_context.get()));
    PangoLayout *layout = part.layout.get();
    pango_layout_set_font_description(layout, m_font.get());
    pango_layout_set_auto_dir(layout, !m_direction);
    pango_layout_set_wrap(layout, PANGO_WRAP_WORD_CHAR);
    pango_layout_set_width(layout, static_cast<int>(m_width * PANGO_SCALE));
    const auto setText = [&] {
        const QByteArray bytes = part.shown.toUtf8();
        pango_layout_set_text(layout, bytes.constData(), static_cast<int>(bytes.size()));
    };
    setText();
    if (const std::set<char32_t> unknown = unknownCharacters(layout); !unknown.empty()) {
        part.shown = without(unknown, part.shown);
        setText();
    }
}

// Lays out what comes next; false where there is nothing.
bool LineBreaker::beginPart()
{
    if (m_next >= m_text.size()) {
        m_part = {};
        return false;
    }
    qsizetype length = shortPart;
    do {
        m_part = partFrom(m_next, length);
        layOut(m_part);
        m_part.lines = pango_layout_get_line_count(m_part.layout.get());
        length *= 2;
    } while (m_part.lines == 1 && !m_part.endsLine);
    m_part.current = 0;

    PangoLayout *layout = m_part.layout.get();
    if (!m_direction)
        m_direction = pango_layout_get_direction(layout, 0);
    m_next = m_part.end;
    if (m_part.endsParagraph) {
        m_direction.reset();
        m_next += QStringView(m_text).sliced(m_part.end).startsWith(u"\r\n") ? 2 : 1;
    } else if (m_part.lines > 1) {
        // Where the last line ends depends on what follows.
        --m_part.lines;
        const PangoLayoutLine *last = pango_layout_get_line_readonly(layout, m_part.lines);
        m_next = m_part.begin + unitsBefore(layout, last->start_index);
    }
    return true;
}

// What word joiners stand for in `line`.
QString LineBreaker::missingIn(PangoLayoutLine *line) const
{
    QString missing;
    if (!m_part.shown.contains(wordJoiner))
        return missing;
    PangoLayout *layout = m_part.layout.get();
    const qsizetype first = unitsBefore(layout, line->start_index);
    const qsizetype last = unitsBefore(layout, line->start_index + line->length);
    for (qsizetype at = first; at < last; ++at) {
        const QChar typed = m_text[m_part.begin + at];
        if (m_part.shown[at] != wordJoiner || typed == wordJoiner || isControl(typed))
            continue;
        QString character = typed;
        if (typed.isHighSurrogate())
            character += m_text[m_part.begin + ++at];
        if (!missing.contains(character))
            missing += character;
    }
    return missing;
}

} // namespace kelvo::drawing
