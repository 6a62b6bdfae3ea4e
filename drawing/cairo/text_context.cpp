#include "text_context.h"

#include "fonts.h"

#include <pango/pangofc-fontmap.h>

#include <algorithm>

namespace kelvo::drawing {

PangoOwner<PangoFontDescription> fontFor(const TextStyle &style)
{
    const FontPattern pattern =
        style.fontName.isEmpty() ? nullptr : findFontPattern(style.fontName);
    PangoOwner<PangoFontDescription> font(
        pattern ? pango_fc_font_description_from_pattern(pattern.get(), false)
                : pango_font_description_from_string("Sans"));
    if (style.isBold)
        pango_font_description_set_weight(font.get(), PANGO_WEIGHT_BOLD);
    // Not a number is taken as the smallest.
    const double size = std::min(std::max(1.0, style.size), largestText);
    pango_font_description_set_absolute_size(font.get(), size * PANGO_SCALE);
    return font;
}

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

} // namespace kelvo::drawing
