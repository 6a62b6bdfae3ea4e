// A watermark's preview, up to the bytes of its PDF, against the same page drawn with cairo
// and Pango by the shortest way.
#include "functions.h"

#include "watermark_drawing.h"

#include <cairo-pdf.h>
#include <pango/pangocairo.h>

#include <numbers>
#include <string>

using namespace kelvo;

namespace {

constexpr QSizeF letter(612, 792);

_WatermarkData draft(int angle)
{
    _WatermarkData watermark = newWatermark();
    setText(watermark.textString, QStringLiteral("CONFIDENTIAL"));
    watermark.angle = angle;
    return watermark;
}

void preview(benchmark::State &state)
{
    _MemoryConsumer consumer;
    int angle = 0;
    for (auto _ : state) {
        _WatermarkData watermark = draft(++angle % 90);
        if (!drawWatermarkPage(&watermark, letter, WatermarkGround::White, {}, consumer))
            state.SkipWithError("the page was not drawn");
    }
}

cairo_status_t append(void *pdf, const unsigned char *bytes, unsigned int count)
{
    static_cast<std::string *>(pdf)->append(reinterpret_cast<const char *>(bytes), count);
    return CAIRO_STATUS_SUCCESS;
}

void cairoAlone(benchmark::State &state)
{
    std::string pdf;
    int angle = 0;
    for (auto _ : state) {
        ++angle;
        pdf.clear();
        cairo_surface_t *surface =
            cairo_pdf_surface_create_for_stream(append, &pdf, letter.width(), letter.height());
        cairo_t *context = cairo_create(surface);
        cairo_set_source_rgb(context, 1, 1, 1);
        cairo_paint(context);

        PangoLayout *layout = pango_cairo_create_layout(context);
        PangoFontDescription *font = pango_font_description_from_string("Liberation Sans");
        pango_font_description_set_absolute_size(font, 72 * PANGO_SCALE);
        pango_layout_set_font_description(layout, font);
        pango_layout_set_text(layout, "CONFIDENTIAL", -1);
        PangoRectangle ink;
        pango_layout_get_extents(layout, &ink, nullptr);
        cairo_translate(context, letter.width() / 2, letter.height() / 2);
        cairo_rotate(context, -(angle % 90) * std::numbers::pi / 180);
        cairo_move_to(context, -(ink.x + ink.width / 2) / double(PANGO_SCALE),
                      -(ink.y + ink.height / 2) / double(PANGO_SCALE));
        cairo_set_source_rgba(context, 0, 0, 1, 0.25);
        pango_cairo_show_layout(context, layout);

        pango_font_description_free(font);
        g_object_unref(layout);
        cairo_show_page(context);
        cairo_destroy(context);
        cairo_surface_finish(surface);
        if (cairo_surface_status(surface) != CAIRO_STATUS_SUCCESS)
            state.SkipWithError("the page was not drawn");
        cairo_surface_destroy(surface);
    }
}

} // namespace

int main(int argc, char **argv)
{
    const auto options = bench::optionsFrom(argc, argv);
    if (!options)
        return 2;
    return bench::compare(
        {{bench::function("a watermark's preview, up to its PDF's bytes", preview),
          bench::function("the page drawn with cairo alone", cairoAlone),
          {{bench::Figure::Processor, 2.0}}}},
        *options);
}
