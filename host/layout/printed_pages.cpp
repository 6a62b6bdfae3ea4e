#include "printed_pages.h"

#include <algorithm>

namespace kelvo {

namespace {

constexpr double borderWidth = 0.5; // points

bool isIn(PageSet set, int page)
{
    return set == PageSet::All || (page % 2 != 0) == (set == PageSet::Odd);
}

} // namespace

PrintedPages::PrintedPages(PagesToPrint pages)
{
    auto data = std::make_shared<Data>();
    std::ranges::copy_if(pages.chosen, std::back_inserter(data->pages),
                         [&pages](int page) { return isIn(pages.set, page); });
    const int perSide = pages.layout.pagesPerSide;
    data->sides = (static_cast<int>(data->pages.size()) + perSide - 1) / perSide;
    if (!data->pages.empty())
        data->shape = pages.sizeOf(data->pages.front());
    data->request = std::move(pages);
    d = std::move(data);
}

int PrintedPages::count() const
{
    if (!d)
        return 0;
    const bool hasBlankBack = d->request.isReversed && d->request.pairsSides && d->sides % 2 != 0;
    return d->sides + (hasBlankBack ? 1 : 0);
}

int PrintedPages::documentPageCount() const
{
    return d ? static_cast<int>(d->pages.size()) : 0;
}

int PrintedPages::sideOf(int printed) const
{
    const int index = printed - 1;
    if (!d->request.isReversed)
        return index;
    if (!d->request.pairsSides)
        return count() - 1 - index;
    const bool isBack = index % 2 != 0;
    return count() - 2 - (isBack ? index - 1 : index) + (isBack ? 1 : 0);
}

QList<int> PrintedPages::onSide(int side) const
{
    const int perSide = d->request.layout.pagesPerSide;
    QList<int> pages;
    for (int place = 0; place < perSide; ++place) {
        const auto index = static_cast<std::size_t>(side) * static_cast<std::size_t>(perSide)
            + static_cast<std::size_t>(place);
        pages << (index < d->pages.size() ? d->pages[index] : 0);
    }
    return pages;
}

QList<int> PrintedPages::onPage(int printed) const
{
    return printed >= 1 && printed <= count() ? onSide(sideOf(printed)) : QList<int>();
}

int PrintedPages::firstOnPage(int printed) const
{
    return onPage(printed).value(0);
}

int PrintedPages::findPrinted(int documentPage) const
{
    if (!d)
        return 0;
    const auto found = std::ranges::find(d->pages, documentPage);
    if (found == d->pages.cend())
        return 0;
    const int side = static_cast<int>(found - d->pages.cbegin()) / d->request.layout.pagesPerSide;
    // Reversed twice is not reversed.
    return sideOf(side + 1) + 1;
}

bool PrintedPages::isAsItIs(int printed) const
{
    const int page = firstOnPage(printed);
    if (page == 0 || d->request.layout.pagesPerSide > 1)
        return false;
    const PageLayout &layout = d->request.layout;
    const bool keepsSize = layout.scaling == PageScaling::Shrink
        || layout.scaling == PageScaling::None
        || (layout.scaling == PageScaling::Percent && layout.percent == 100);
    const QSizeF &paper = d->request.paper.size;
    return keepsSize && (paper.isEmpty() || isSameSize(sizeOf(page), paper));
}

QSizeF PrintedPages::size(int printed) const
{
    return isAsItIs(printed) ? sizeOf(firstOnPage(printed)) : placement(printed).sheet;
}

SidePlacement PrintedPages::placement(int printed) const
{
    const QList<int> pages = onPage(printed);
    if (pages.isEmpty())
        return {};
    if (d->request.layout.pagesPerSide > 1) {
        QList<QSizeF> sizes;
        for (const int page : pages)
            sizes << (page > 0 ? sizeOf(page) : QSizeF());
        return placePages(sizes, d->shape, d->request.paper, d->request.layout);
    }
    if (pages.first() == 0) { // the back of the last sheet
        SidePlacement blank = placeScaledPage(d->shape, d->request.paper, d->request.layout);
        blank.pages.first().rect = {};
        return blank;
    }
    const QSizeF size = sizeOf(pages.first());
    return isAsItIs(printed) ? placePage(size, {}, Orientation::Portrait)
                             : placeScaledPage(size, d->request.paper, d->request.layout);
}

const PageLayout &PrintedPages::layout() const
{
    static const PageLayout none;
    return d ? d->request.layout : none;
}

LaidOutPage PrintedPages::laidOut(int printed, bool isUpsideDown) const
{
    const QList<int> pages = onPage(printed);
    LaidOutPage page;
    if (isAsItIs(printed) && !isUpsideDown) {
        page.pages.push_back({.page = pages.first()});
        page.isAsItIs = true;
        return page;
    }
    SidePlacement side = placement(printed);
    if (isUpsideDown)
        side.turnOver();
    page.size = side.sheet;
    page.border = layout().drawsBorders && pages.size() > 1 ? borderWidth : 0;
    for (qsizetype place = 0; place < pages.size(); ++place) {
        const PagePlacement &placed = side.pages[place];
        if (pages[place] > 0)
            page.pages.push_back({pages[place], placed.rect, placed.rotation, placed.place});
    }
    return page;
}

PdfLayout PrintedPages::pdfLayout(bool isUpsideDown) const
{
    PdfLayout pages;
    pages.reserve(static_cast<std::size_t>(count()));
    for (int printed = 1; printed <= count(); ++printed)
        pages.push_back(laidOut(printed, isUpsideDown));
    return pages;
}

} // namespace kelvo
