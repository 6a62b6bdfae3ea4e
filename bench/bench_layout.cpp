// What the helpers do for a job of 500 pages, from the start of the first one to the PDF that was
// looked at again: pages as they are, scaled to the paper, and four on a sheet. The yardstick
// copies the same document.
#include "functions.h"
#include "processes.h"
#include "sample_report.h"

#include "pdf_ahead.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

using namespace kelvo;
using namespace Qt::StringLiterals;

namespace {

constexpr int pages = 500;
constexpr QSizeF a4(595, 842);

// `perSheet` pages on each sheet, below and beside one another, a little smaller than they could
// be.
PdfLayout sheets(int perSheet, int columns)
{
    const QSizeF cell = a4 / columns;
    PdfLayout layout;
    for (int page = 1; page <= pages; ++page) {
        const int index = (page - 1) % perSheet;
        if (index == 0)
            layout.push_back({a4, {}});
        const QRectF place(QPointF(index % columns * cell.width(), index / columns * cell.height()),
                           cell);
        layout.back().pages.push_back({page, place.adjusted(6, 8.5, -6, -8.5), 0, place});
    }
    return layout;
}

std::optional<QString> made(const QString &folder, const PdfLayout &layout)
{
    auto helpers = PdfHelpers::start();
    if (!helpers)
        return std::nullopt;
    const std::atomic_bool notCancelled = false;
    const QString name = u"ticket"_s;
    PdfAhead ahead(std::move(*helpers), name);
    if (!ahead.tidy(folder + u"/source.pdf"_s, folder + u"/document.pdf"_s, {}, notCancelled))
        return std::nullopt;
    const auto written = ahead.write(layout, {name, "text/plain", "ticket"});
    return written ? std::optional(written.value()) : std::nullopt;
}

void makeJobs(benchmark::State &state, const QString &report, const PdfLayout &layout)
{
    const QTemporaryDir folder;
    const QString source = folder.filePath(u"source.pdf"_s);
    for (auto _ : state) {
        state.PauseTiming();
        for (const QString &name : {u"source.pdf"_s, u"document.pdf"_s, u"written.pdf"_s})
            QFile::remove(folder.filePath(name));
        QFile::copy(report, source);
        state.ResumeTiming();
        const auto path = made(folder.path(), layout);
        if (!path || QFile(*path).size() == 0)
            state.SkipWithError("the job was not made");
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const auto options = bench::optionsFrom(argc, argv);
    if (!options)
        return 2;
    const QTemporaryDir folder;
    const QString report = folder.filePath(u"500.pdf"_s), copy = folder.filePath(u"copy.pdf"_s);
    if (!bench::writeReport(report, pages)) {
        std::fprintf(stderr, "%s cannot be written\n", qPrintable(report));
        return 2;
    }
    using enum bench::Figure;
    const auto jobs = [&report](const char *name, const PdfLayout &layout) {
        return bench::function(
            name, [=](auto &state) { makeJobs(state, report, layout); }, 1);
    };
    const bench::Side qpdf =
        bench::wholeProcess("qpdf --object-streams=preserve IN OUT",
                            {.words = {u"qpdf"_s, u"--object-streams=preserve"_s, report, copy},
                             .prepare = [copy] { QFile::remove(copy); },
                             .isDone = [copy] { return QFile(copy).size() > 0; }});
    return bench::compare(
        {{jobs("500 pages as they are", {}), qpdf, {{Elapsed}}},
         {jobs("500 pages, each scaled", sheets(1, 1)), qpdf, {{Elapsed, 2.0}}},
         {jobs("500 pages, four on a sheet", sheets(4, 2)), qpdf, {{Elapsed, 2.0}}}},
        *options);
}
