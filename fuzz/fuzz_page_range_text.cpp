#include "page_range_text.h"

#include <QString>

#include <cstdint>
#include <cstdlib>

using namespace kelvo;

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

using Ranges = std::vector<PageRange>;

Ranges pagesOf(const Ranges &ranges)
{
    Ranges pages;
    for (const PageRange &range : ranges) {
        for (std::int32_t page = range.first; page < range.first + range.count; ++page)
            pages.push_back({page, 1});
    }
    return pages;
}

} // namespace

// Whatever is typed, what comes back lies within the pages there can be, the same
// in both forms, and is read again from its own text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    constexpr std::int64_t mostPages = 20'000;
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    Ranges ranges{{-1, -1}};
    const OSStatus status = CreatePageRangesBySeparatingString(&text, true, &ranges);
    require((status == noErr) != ranges.empty());
    require(status == noErr || status == kPageNumberTooHigh || status == kPageRangesMalformed
            || status == kPageRangeBackwards);

    std::int64_t count = 0;
    QString typed;
    for (const PageRange &range : ranges) {
        require(range.first >= 0 && range.count >= 1);
        const std::int64_t last = std::int64_t(range.first) + range.count - 1;
        require(last <= kHighestPage);
        count += range.count;
        typed += QStringLiteral("%1-%2,").arg(range.first).arg(last);
    }
    if (status == noErr) {
        Ranges again;
        require(CreatePageRangesBySeparatingString(&typed, true, &again) == noErr);
        require(again == ranges);
    }
    if (count <= mostPages) { // three characters are a hundred thousand pages
        Ranges pages;
        require(CreatePageRangesBySeparatingString(&text, false, &pages) == status);
        require(pages == pagesOf(ranges));
    }
    return 0;
}
