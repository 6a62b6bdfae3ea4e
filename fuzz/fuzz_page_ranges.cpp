#include "page_ranges.h"

#include <QString>

#include <cstdint>
#include <cstdlib>

// Whatever is typed, every run that comes back lies within the document.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    constexpr int pages = 1000;
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto runs = kelvo::pageRunsFrom(text, pages);
    if (!runs)
        return 0;
    for (const kelvo::PageRun &run : runs.value()) {
        if (run.first < 1 || run.last < run.first || run.last > pages)
            std::abort();
    }
    const int count = kelvo::pageCount(runs.value());
    if (count < 1 || kelvo::documentPage(runs.value(), count - 1) != runs.value().back().last)
        std::abort();
    return 0;
}
