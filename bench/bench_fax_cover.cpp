// A cover sheet's preview, up to the bytes of its PDF, against the same page drawn with cairo
// and Pango by the shortest way.
#include "functions.h"

#include "fax_cover.h"

#include <cairo-pdf.h>
#include <pango/pangocairo.h>

#include <string>

using namespace kelvo;

namespace {

constexpr QSizeF letter(612, 792);
constexpr double margin = 31, firstLine = 103; // points from the edges

// As when somebody types: each time a letter more.
QString notes(int letters)
{
    const QString sentence = QStringLiteral("The figures for the third quarter are enclosed. ");
    return sentence.repeated(20) + QString(letters % 40, u'x');
}

struct Block
{
    QString label, text;
};

std::vector<Block> blocks(int letters)
{
    QStringList names;
    for (int number = 0; number < 20; ++number)
        names << QStringLiteral("Ann-Marie Lee %1").arg(number);
    return {{QStringLiteral("From:"), QStringLiteral("Pat\nKelvo\nPhone : 12 34\n")},
            {QStringLiteral("To:"), names.join(QStringLiteral(", "))},
            {QStringLiteral("Notes:"), notes(letters)}};
}

void refresh(benchmark::State &state)
{
    _MemoryConsumer consumer;
    int letters = 0;
    for (auto _ : state) {
        const std::vector<Block> page = blocks(++letters);
        _WatermarkData noImage;
        if (!DrawFaxCover(consumer, QRectF(QPointF(), letter), page[0].label, page[0].text,
                          page[1].label, page[1].text, page[2].label, page[2].text, &noImage, {}))
            state.SkipWithError("the page was not drawn");
    }
}

cairo_status_t append(void *pdf, const unsigned char *bytes, unsigned int count)
{
    static_cast<std::string *>(pdf)->append(reinterpret_cast<const char *>(bytes), count);
    return CAIRO_STATUS_SUCCESS;
}

// Its lines move the pen down.
void show(cairo_t *context, const QString &text, const char *font, double &y)
{
    PangoLayout *layout = pango_cairo_create_layout(context);
    PangoFontDescription *description = pango_font_description_from_string(font);
    pango_font_description_set_absolute_size(description, 12 * PANGO_SCALE);
    pango_layout_set_font_description(layout, description);
    pango_layout_set_width(layout, int(letter.width() - 2 * margin) * PANGO_SCALE);
    const QByteArray bytes = text.toUtf8();
    pango_layout_set_text(layout, bytes.constData(), int(bytes.size()));
    cairo_move_to(context, margin, y);
    pango_cairo_show_layout(context, layout);
    int height = 0;
    pango_layout_get_size(layout, nullptr, &height);
    y += double(height) / PANGO_SCALE;
    pango_font_description_free(description);
    g_object_unref(layout);
}

void cairoAlone(benchmark::State &state)
{
    std::string pdf;
    int letters = 0;
    for (auto _ : state) {
        pdf.clear();
        cairo_surface_t *surface =
            cairo_pdf_surface_create_for_stream(append, &pdf, letter.width(), letter.height());
        cairo_t *context = cairo_create(surface);
        cairo_set_source_rgb(context, 1, 1, 1);
        cairo_paint(context);
        cairo_set_source_rgb(context, 0, 0, 0);
        double y = firstLine;
        for (const Block &block : blocks(++letters)) {
            show(context, block.label, "Sans Bold", y);
            show(context, block.text, "Sans", y);
            y += 12;
        }
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
        {{bench::function("a fax cover sheet's preview, up to its PDF's bytes", refresh),
          bench::function("the page drawn with cairo alone", cairoAlone),
          {{bench::Figure::Processor, 2.0}}}},
        *options);
}
