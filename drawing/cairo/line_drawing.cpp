#include "line_drawing.h"

#include "text_context.h"

#include <hb.h>

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelvo::drawing {

namespace {

// What says how others are to be put in order, or stands for nothing.
bool isNoLetter(gunichar character)
{
    return character == wordJoiner || character == 0x061c || character == 0x200e
        || character == 0x200f || (character >= 0x202a && character <= 0x202e)
        || (character >= 0x2066 && character <= 0x2069);
}

// What moves the pen, together with what is put on it: readers of PDFs look for letters side
// by side, and take a mark that stands over another letter for the next word.
struct Cell
{
    double x = 0;
    std::vector<cairo_glyph_t> glyphs; // those that move the pen
    std::vector<cairo_glyph_t> marks;
    std::vector<std::string_view> letters; // in the text's order
};

// Glyphs of one font and what letters they are, as cairo takes them.
class TextGlyphs
{
public:
    void add(const std::vector<cairo_glyph_t> &glyphs, std::string_view letters)
    {
        if (glyphs.empty())
            return;
        m_letters.append(letters);
        m_glyphs.insert(m_glyphs.end(), glyphs.begin(), glyphs.end());
        m_clusters.push_back({static_cast<int>(letters.size()), static_cast<int>(glyphs.size())});
    }

    void show(cairo_t *context) const
    {
        if (m_glyphs.empty())
            return;
        cairo_show_text_glyphs(context, m_letters.data(), static_cast<int>(m_letters.size()),
                               m_glyphs.data(), static_cast<int>(m_glyphs.size()),
                               m_clusters.data(), static_cast<int>(m_clusters.size()), {});
    }

private:
    std::string m_letters;
    std::vector<cairo_glyph_t> m_glyphs;
    std::vector<cairo_text_cluster_t> m_clusters;
};

// A glyph without ink and width, to hang a letter on that has none of its own.
std::optional<hb_codepoint_t> findBlankGlyph(PangoFont *font)
{
    hb_font_t *face = pango_font_get_hb_font(font);
    for (const hb_codepoint_t character : {0x200cU, 0x200dU, 0x200bU, 0x2060U, 0xfeffU}) {
        hb_codepoint_t glyph = 0;
        hb_glyph_extents_t ink{};
        if (hb_font_get_nominal_glyph(face, character, &glyph)
            && hb_font_get_glyph_h_advance(face, glyph) == 0
            && (!hb_font_get_glyph_extents(face, glyph, &ink) || ink.width == 0 || ink.height == 0))
            return glyph;
    }
    return std::nullopt;
}

// A run of one font and direction; its glyphs lie from the left to the right.
class Run
{
public:
    Run(const PangoGlyphItem &run, const char *text)
        : m_text(text + run.item->offset, run.item->length)
        , m_font(run.item->analysis.font)
        , m_glyphs(*run.glyphs)
        , m_isFromTheRight((run.item->analysis.level & 1) != 0)
    {
    }

    void draw(cairo_t *context, double x, double y) const;

private:
    std::vector<Cell> cells(double x, double y) const;
    void addLetters(int offset, int end, Cell &cell) const;
    void add(const Cell &cell, std::optional<hb_codepoint_t> blank, double y,
             TextGlyphs &shown) const;

    std::string_view m_text;
    PangoFont *m_font;
    const PangoGlyphString &m_glyphs;
    bool m_isFromTheRight;
};

void Run::addLetters(int offset, int end, Cell &cell) const
{
    const char *last = m_text.data() + end;
    for (const char *at = m_text.data() + offset; at < last;) {
        const char *next = g_utf8_next_char(at);
        if (!isNoLetter(g_utf8_get_char(at)))
            cell.letters.emplace_back(at, next - at);
        at = next;
    }
}

// In the text's order.
std::vector<Cell> Run::cells(double x, double y) const
{
    std::vector<double> pens; // where each glyph begins, and the last ends
    for (int index = 0; index < m_glyphs.num_glyphs; ++index) {
        pens.push_back(x);
        x += points(m_glyphs.glyphs[index].geometry.width);
    }

    std::vector<Cell> cells;
    const int count = m_glyphs.num_glyphs;
    const auto at = [&](int order) { return m_isFromTheRight ? count - 1 - order : order; };
    for (int order = 0; order < count;) {
        const int offset = m_glyphs.log_clusters[at(order)];
        int next = order;
        bool movesThePen = false;
        while (next < count && m_glyphs.log_clusters[at(next)] == offset) {
            movesThePen |= m_glyphs.glyphs[at(next)].geometry.width != 0;
            ++next;
        }
        if (movesThePen || cells.empty())
            cells.push_back({pens[std::min(at(order), at(next - 1))], {}, {}, {}});
        Cell &cell = cells.back();
        addLetters(offset,
                   next < count ? m_glyphs.log_clusters[at(next)] : static_cast<int>(m_text.size()),
                   cell);
        for (int index = std::min(at(order), at(next - 1));
             index <= std::max(at(order), at(next - 1)); ++index) {
            const PangoGlyphInfo &info = m_glyphs.glyphs[index];
            if (info.glyph == PANGO_GLYPH_EMPTY || (info.glyph & PANGO_GLYPH_UNKNOWN_FLAG) != 0)
                continue;
            (info.geometry.width != 0 ? cell.glyphs : cell.marks)
                .push_back({info.glyph, pens[index] + points(info.geometry.x_offset),
                            y + points(info.geometry.y_offset)});
        }
        order = next;
    }
    return cells;
}

void Run::add(const Cell &cell, std::optional<hb_codepoint_t> blank, double y,
              TextGlyphs &shown) const
{
    const auto blankAt = [&](double x) {
        return blank ? std::vector<cairo_glyph_t>{{*blank, x, y}} : std::vector<cairo_glyph_t>();
    };
    std::vector<cairo_glyph_t> glyphs = cell.glyphs;
    std::vector<cairo_glyph_t> marks = cell.marks;
    if (glyphs.empty())
        glyphs.swap(marks);
    std::vector<std::string_view> letters = cell.letters;
    if (m_isFromTheRight && blank) {
        // Readers of PDFs turn letters that run from the right one by one: each needs its own
        // glyph, from the left to the right.
        constexpr double step = 1.0 / 128; // points: nobody sees it, and it is an order
        for (; letters.size() > 1; letters.pop_back())
            shown.add(blankAt(cell.x - step * double(letters.size() - 1)), letters.back());
    }
    std::string own;
    for (const std::string_view letter : letters)
        own += letter;
    if (!glyphs.empty())
        shown.add(glyphs, own);
    else if (!own.empty())
        shown.add(blankAt(cell.x), own);
    for (const cairo_glyph_t &mark : marks)
        shown.add({mark}, {});
}

void Run::draw(cairo_t *context, double x, double y) const
{
    cairo_scaled_font_t *font = pango_cairo_font_get_scaled_font(PANGO_CAIRO_FONT(m_font));
    if (!font)
        return;
    std::vector<Cell> drawn = cells(x, y);
    if (m_isFromTheRight)
        std::ranges::reverse(drawn);
    TextGlyphs shown;
    const std::optional<hb_codepoint_t> blank = findBlankGlyph(m_font);
    for (const Cell &cell : drawn)
        add(cell, blank, y, shown);
    cairo_set_scaled_font(context, font);
    shown.show(context);
}

} // namespace

void drawLine(cairo_t *context, PangoLayoutLine *line, double x, double y)
{
    const char *text = pango_layout_get_text(line->layout);
    for (const GSList *next = line->runs; next; next = next->next) {
        const auto &run = *static_cast<const PangoGlyphItem *>(next->data);
        Run(run, text).draw(context, x, y);
        x += points(pango_glyph_string_get_width(run.glyphs));
    }
}

} // namespace kelvo::drawing
