#include "page_ranges.h"

#include "size_limits.h"
#include "texts.h"

#include <QList>

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace kelvo {

namespace {

Error rangeError(Error::Code code, QStringView part, const QString &detail)
{
    return Error{code, translate("Document", "page range “%1”").arg(part.trimmed()), detail};
}

int length(const PageRun &run)
{
    return std::abs(run.last - run.first) + 1;
}

// A page number, or nothing where there is no number. One too long for an int
// is a page that no document has, not a mistake in writing.
std::optional<int> findNumber(QStringView text)
{
    text = text.trimmed();
    if (text.isEmpty())
        return std::nullopt;
    constexpr int most = 1'000'000'000;
    int number = 0;
    for (const QChar digit : text) {
        if (digit < u'0' || digit > u'9')
            return std::nullopt;
        number = number >= most / 10 ? most : number * 10 + (digit.unicode() - u'0');
    }
    return number;
}

Result<PageRun> pageRunFrom(QStringView part, int pageCount)
{
    const qsizetype dash = part.indexOf(u'-');
    const QStringView firstText = dash < 0 ? part : part.first(dash);
    const QStringView lastText = dash < 0 ? part : part.sliced(dash + 1);
    const std::optional<int> firstNumber = findNumber(firstText);
    const std::optional<int> lastNumber = findNumber(lastText);

    const bool firstIsOpen = dash >= 0 && firstText.trimmed().isEmpty();
    const bool lastIsOpen = dash >= 0 && lastText.trimmed().isEmpty();
    if ((!firstNumber && !firstIsOpen) || (!lastNumber && !lastIsOpen)
        || (firstIsOpen && lastIsOpen)) {
        return rangeError(Error::Code::Damaged, part,
                          translate("Document", "pages are written like this: 1-3, 7, 9-"));
    }

    const int first = firstNumber.value_or(1);
    const int last = lastNumber.value_or(pageCount);
    if (first < 1 || (lastNumber && last < 1))
        return rangeError(Error::Code::OutOfRange, part, translate("Document", "pages begin at 1"));
    if ((lastIsOpen ? first : std::min(first, last)) > pageCount) {
        return rangeError(Error::Code::OutOfRange, part,
                          translate("Document", "the document has pages 1 to %1").arg(pageCount));
    }
    return PageRun{std::min(first, pageCount), std::min(last, pageCount)};
}

} // namespace

Result<std::vector<PageRun>> pageRunsFrom(const QString &text, int pageCount)
{
    if (text.trimmed().isEmpty()) {
        return pageCount > 0 ? std::vector<PageRun>{{1, pageCount}} : std::vector<PageRun>{};
    }

    std::vector<PageRun> runs;
    qint64 pages = 0;
    for (const QStringView part : QStringView(text).split(u',')) {
        Result<PageRun> run = pageRunFrom(part, pageCount);
        if (!run)
            return run.error();
        pages += length(run.value());
        // "1-,1-,1-" multiplies a document: a line of text must not fill a disk.
        if (pages > std::max(limits::documentPages, pageCount)) {
            return rangeError(Error::Code::TooLarge, part,
                              translate("Document", "all ranges together may name %1 pages at most")
                                  .arg(std::max(limits::documentPages, pageCount)));
        }
        runs.push_back(run.value());
    }
    return runs;
}

int pageCount(const std::vector<PageRun> &runs)
{
    int count = 0;
    for (const PageRun &run : runs)
        count += length(run);
    return count;
}

std::vector<int> pagesIn(const std::vector<PageRun> &runs)
{
    std::vector<int> pages;
    pages.reserve(static_cast<std::size_t>(pageCount(runs)));
    for (const PageRun &run : runs) {
        const int step = run.first <= run.last ? 1 : -1;
        for (int page = run.first; page != run.last + step; page += step)
            pages.push_back(page);
    }
    return pages;
}

} // namespace kelvo
