// Pages for the preview, drawn by the helper process: ordinary ones against poppler in the process
// itself, one that is hard to draw against pdftocairo. The same pages in the same pixels.
#include "functions.h"
#include "processes.h"

#include "document.h"
#include "page_drawing.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cairo-pdf.h>
#include <poppler-qt6.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <random>

using namespace kelvo;

namespace {

constexpr QSize pixels(508, 720); // of A4 in the window at twice the usual resolution

Document document;
std::unique_ptr<Poppler::Document> inProcess;

std::unique_ptr<Poppler::Document> load()
{
    auto pdf = Poppler::Document::load(document.pdfPath());
    pdf->setRenderHint(Poppler::Document::Antialiasing);
    pdf->setRenderHint(Poppler::Document::TextAntialiasing);
    return pdf;
}

bool drawInProcess(const Poppler::Document &pdf, int number)
{
    const auto page = pdf.page(number - 1);
    const QSizeF size = page->pageSizeF();
    const double scale = std::min(pixels.width() / size.width(), pixels.height() / size.height());
    const QSize fitted = (size * scale).toSize();
    return !page->renderToImage(72 * scale, 72 * scale, 0, 0, fitted.width(), fitted.height())
                .isNull();
}

bool draw(PageDrawing &drawing, int number)
{
    return !drawing.draw(number, pixels, [] { return false; }).image.isNull();
}

template <typename Draw>
void drawPages(benchmark::State &state, const Draw &drawOne)
{
    int number = 0;
    for (auto _ : state) {
        if (!drawOne(number % document.pageCount() + 1))
            state.SkipWithError("a page was not drawn");
        ++number;
    }
    state.SetItemsProcessed(number);
}

// One after the other, as a user turns them.
void pagesInHelper(benchmark::State &state)
{
    PageDrawing drawing(document.pdfPath());
    draw(drawing, 1); // it is running
    drawPages(state, [&drawing](int number) { return draw(drawing, number); });
}

void pagesInProcess(benchmark::State &state)
{
    drawPages(state, [](int number) { return drawInProcess(*inProcess, number); });
}

// The first page of a document: the helper is started for it.
void firstPageInHelper(benchmark::State &state, const QString &path)
{
    for (auto _ : state) {
        PageDrawing drawing(path);
        if (!draw(drawing, 1))
            state.SkipWithError("the page was not drawn");
    }
}

void firstPageInProcess(benchmark::State &state)
{
    for (auto _ : state) {
        const auto pdf = load();
        if (!drawInProcess(*pdf, 1))
            state.SkipWithError("the page was not drawn");
    }
}

// A page as drawing programs and maps have them. Whether it was written.
bool writeTriangles(const QString &path)
{
    constexpr int triangles = 6000;
    constexpr double width = 595, height = 842, reach = 300; // points
    const QByteArray fileName = QFile::encodeName(path);
    cairo_surface_t *surface = cairo_pdf_surface_create(fileName.constData(), width, height);
    cairo_t *page = cairo_create(surface);
    std::mt19937 random(1);
    const auto upTo = [&random](double most) { return most * double(random() % 1000) / 1000; };
    for (int i = 0; i < triangles; ++i) {
        const std::array from{upTo(width), upTo(height)};
        cairo_move_to(page, from[0], from[1]);
        for (int corner = 0; corner < 2; ++corner)
            cairo_line_to(page, from[0] + upTo(2 * reach) - reach,
                          from[1] + upTo(2 * reach) - reach);
        cairo_close_path(page);
        cairo_set_source_rgb(page, upTo(1), upTo(1), upTo(1));
        cairo_fill(page);
    }
    cairo_destroy(page);
    cairo_surface_finish(surface);
    const bool isWritten = cairo_surface_status(surface) == CAIRO_STATUS_SUCCESS;
    cairo_surface_destroy(surface);
    return isWritten;
}

bench::Side pdftocairo(const QString &path, const QString &picture)
{
    const QString file = picture + QStringLiteral(".png");
    return bench::wholeProcess(
        "pdftocairo, from start to picture",
        {.words = {QStringLiteral("pdftocairo"), QStringLiteral("-png"),
                   QStringLiteral("-singlefile"), QStringLiteral("-scale-to-x"),
                   QString::number(pixels.width()), QStringLiteral("-scale-to-y"),
                   QString::number(pixels.height()), path, picture},
         .prepare = [file] { QFile::remove(file); },
         .isDone = [file] { return QFile::exists(file); }});
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const auto options = bench::optionsFrom(argc, argv);
    if (!options)
        return 2;
    const auto opened =
        documentFromPdf(QStringLiteral(KELVO_SOURCE_DIR "/resources/demo/document.pdf"), {});
    if (!opened) {
        std::fprintf(stderr, "%s\n", qPrintable(opened.reason()));
        return 2;
    }
    document = opened.value();
    inProcess = load();
    const QTemporaryDir folder;
    const QString triangles = folder.filePath(QStringLiteral("triangles.pdf"));
    if (!writeTriangles(triangles)) {
        std::fprintf(stderr, "%s cannot be written\n", qPrintable(triangles));
        return 2;
    }
    using enum bench::Figure;
    const auto firstPage = [](const char *name, const QString &path) {
        return bench::function(name, [path](auto &state) { firstPageInHelper(state, path); });
    };
    const int result = bench::compare(
        {{bench::function("a page of the preview, drawn by the helper", pagesInHelper),
          bench::function("poppler in the process", pagesInProcess),
          {{Elapsed, 2.0}}},
         {firstPage("the first page of a document, with the helper's start", document.pdfPath()),
          bench::function("poppler in the process", firstPageInProcess),
          {{Elapsed}}},
         {firstPage("a first page of 6,000 triangles", triangles),
          pdftocairo(triangles, folder.filePath(QStringLiteral("picture"))),
          {{Elapsed, 1.2}}}},
        *options);
    document = {}; // and its folder
    return result;
}
