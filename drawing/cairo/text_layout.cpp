#include "text_layout.h"

#include "fonts.h"

#include <pango/pangofc-fontmap.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kelvo::drawing {

namespace {

double points(int units)
{
    return units / double(PANGO_SCALE);
}

// cairo turns from right to down, we from right to up.
double cairoAngle(double degrees)
{
    return -degrees * std::numbers::pi / 180;
}

PangoOwner<PangoFontDescription> fontFor(const TextStyle &style)
{
    const FontPattern pattern = findFontPattern(style.fontName);
    PangoOwner<PangoFontDescription> font(
        pattern ? pango_fc_font_description_from_pattern(pattern.get(), false)
                : pango_font_description_from_string("Sans"));
    // Not a number is taken as the smallest.
    const double size = std::min(std::max(1.0, style.size), largestText);
    pango_font_description_set_absolute_size(font.get(), size * PANGO_SCALE);
    return font;
}

// Where nothing is moved to suit the pixels of a screen. Each thread has fonts of its own.
PangoOwner<PangoContext> unhintedContext()
{
    PangoOwner<PangoContext> context(
        pango_font_map_create_context(pango_cairo_font_map_get_default()));
    cairo_font_options_t *options = cairo_font_options_create();
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    pango_cairo_context_set_font_options(context.get(), options);
    cairo_font_options_destroy(options);
    pango_context_set_round_glyph_positions(context.get(), false);
    return context;
}

} // namespace

TextLayout::TextLayout(const QString &text, const TextStyle &style)
    : m_style(style)
    , m_layout(pango_layout_new(unhintedContext().get()))
{
    pango_layout_set_font_description(m_layout.get(), fontFor(style).get());
    const QByteArray bytes = text.toUtf8();
    pango_layout_set_text(m_layout.get(), bytes.constData(), static_cast<int>(bytes.size()));
    m_baseline = points(pango_layout_get_baseline(m_layout.get()));
}

QRectF TextLayout::inkBounds() const
{
    PangoRectangle ink;
    pango_layout_get_extents(m_layout.get(), &ink, nullptr);
    if (ink.width == 0 || ink.height == 0)
        return {};
    const QRectF upright(points(ink.x), points(ink.y) - m_baseline, points(ink.width),
                         points(ink.height));
    const double cosine = std::cos(cairoAngle(m_style.angle));
    const double sine = std::sin(cairoAngle(m_style.angle));
    const QSizeF size = upright.size();
    const QPointF middle = upright.center();
    QRectF turned(0, 0, size.width() * std::abs(cosine) + size.height() * std::abs(sine),
                  size.width() * std::abs(sine) + size.height() * std::abs(cosine));
    turned.moveCenter(
        {middle.x() * cosine - middle.y() * sine, middle.x() * sine + middle.y() * cosine});
    return turned;
}

void TextLayout::draw(cairo_t *context, double x, double y) const
{
    const Color &color = m_style.color;
    cairo_save(context);
    cairo_translate(context, x, y);
    cairo_rotate(context, cairoAngle(m_style.angle));
    cairo_move_to(context, 0, -m_baseline);
    cairo_set_source_rgba(context, color.red, color.green, color.blue, color.alpha);
    pango_cairo_show_layout(context, m_layout.get());
    cairo_restore(context);
}

} // namespace kelvo::drawing
