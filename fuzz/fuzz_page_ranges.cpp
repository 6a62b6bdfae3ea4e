#include "page_ranges.h"

#include <QString>

#include <algorithm>
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
        if (std::min(run.first, run.last) < 1 || std::max(run.first, run.last) > pages)
            std::abort();
    }
    const std::vector<int> all = kelvo::pagesIn(runs.value());
    if (all.empty() || all.back() != runs.value().back().last
        || static_cast<int>(all.size()) != kelvo::pageCount(runs.value()))
        std::abort();
    return 0;
}
