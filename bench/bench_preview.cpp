// Pages for the preview, drawn by the helper process, against poppler in the process
// itself: the same pages in the same pixels.
#include "ratios.h"

#include "document.h"
#include "page_drawing.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>
#include <poppler-qt6.h>

#include <algorithm>
#include <cstdio>

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
BENCHMARK(pagesInHelper);

void pagesInProcess(benchmark::State &state)
{
    drawPages(state, [](int number) { return drawInProcess(*inProcess, number); });
}
BENCHMARK(pagesInProcess);

// The first page of a document: the helper is started for it.
void firstPageInHelper(benchmark::State &state)
{
    for (auto _ : state) {
        PageDrawing drawing(document.pdfPath());
        if (!draw(drawing, 1))
            state.SkipWithError("the page was not drawn");
    }
}
BENCHMARK(firstPageInHelper);

void firstPageInProcess(benchmark::State &state)
{
    for (auto _ : state) {
        const auto pdf = load();
        if (!drawInProcess(*pdf, 1))
            state.SkipWithError("the page was not drawn");
    }
}
BENCHMARK(firstPageInProcess);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const auto opened =
        documentFromPdf(QStringLiteral(KELVO_SOURCE_DIR "/resources/demo/document.pdf"), {});
    if (!opened) {
        std::fprintf(stderr, "%s\n", qPrintable(opened.reason()));
        return 2;
    }
    document = opened.value();
    inProcess = load();
    const int result =
        bench::runAndCompare(argc, argv,
                             {
                                 {"pagesInHelper", "pagesInProcess", 2.0, bench::Clock::Wall},
                                 {"firstPageInHelper", "firstPageInProcess", 0, bench::Clock::Wall},
                             });
    document = {}; // and its folder
    return result;
}
