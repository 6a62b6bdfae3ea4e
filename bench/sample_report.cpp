#include "sample_report.h"

#include <QFile>

#include <cairo-pdf.h>

#include <random>
#include <string>

namespace kelvo::bench {

bool writeReport(const QString &path, int pages)
{
    const QByteArray fileName = QFile::encodeName(path);
    cairo_surface_t *surface = cairo_pdf_surface_create(fileName.constData(), 595, 842); // A4
    cairo_t *page = cairo_create(surface);
    cairo_select_font_face(page, "DejaVu Sans", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(page, 10);
    std::mt19937 random(1);
    for (int number = 1; number <= pages; ++number) {
        for (int line = 0; line < 60; ++line) {
            std::string text;
            while (text.size() < 80)
                text += "aeinorstuldhc,. "[random() % 16];
            cairo_move_to(page, 50, 50 + 12 * line);
            cairo_show_text(page, text.c_str());
        }
        cairo_show_page(page);
    }
    cairo_destroy(page);
    cairo_surface_finish(surface);
    const bool isWritten = cairo_surface_status(surface) == CAIRO_STATUS_SUCCESS;
    cairo_surface_destroy(surface);
    return isWritten;
}

} // namespace kelvo::bench
