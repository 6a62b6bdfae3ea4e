#include "special_page_edits.h"

#include <algorithm>

namespace kelvo {

namespace {

// As a user types it. What a ticket has before page 1 are no pages.
QString rangeText(const ExceptionPage &page)
{
    const std::int32_t first = std::max(page.startPage(), 1);
    const std::int32_t last = page.endPage();
    if (last < first)
        return {};
    const QString text = QString::number(first);
    if (last == first)
        return text;
    return text + u'-' + (last >= kHighestPage ? QString() : QString::number(last));
}

} // namespace

InsertEdit insertEdit(const Insert *edited)
{
    InsertEdit edit;
    if (!edited) {
        DefaultStock(&edit.page.stock(), kJobContextInserts);
        return edit;
    }
    edit.page = *edited;
    if (edited->startPage() < 1)
        edit.position = kInsertBeforePage1;
    else
        edit.pages = QString::number(edited->startPage());
    return edit;
}

SheetLimits sheetLimits(const Insert &edited)
{
    return {std::min(1, edited.quantity()), std::max(kMostInsertedSheets, edited.quantity())};
}

OSStatus insertsFrom(const InsertEdit &edit, std::int32_t others, std::vector<Insert> *inserts)
{
    inserts->clear();
    std::vector<PageRange> ranges;
    if (edit.position == kInsertBeforePage1) {
        ranges.push_back({0, 1});
    } else {
        // As ranges: counted before there is an insert for each page.
        const OSStatus status = CreatePageRangesBySeparatingString(&edit.pages, true, &ranges);
        if (status != noErr)
            return status;
    }
    std::int64_t count = others;
    for (const PageRange &range : ranges)
        count += range.count;
    if (count > kMostInserts)
        return kTooManyInserts;
    if (edit.position == kInsertAfterPages)
        CreatePageRangesBySeparatingString(&edit.pages, false, &ranges);
    for (const PageRange &page : ranges)
        inserts->emplace_back(edit.page).setStartPage(page.first);
    return noErr;
}

ExceptionEdit exceptionEdit(const ExceptionPage *edited)
{
    ExceptionEdit edit;
    if (!edited) {
        DefaultStock(&edit.page.stock(), kJobContextExceptions);
        return edit;
    }
    edit.page = *edited;
    edit.pages = rangeText(*edited);
    return edit;
}

OSStatus exceptionsFrom(const ExceptionEdit &edit, std::vector<ExceptionPage> *exceptions)
{
    exceptions->clear();
    std::vector<PageRange> ranges;
    const OSStatus status = CreatePageRangesBySeparatingString(&edit.pages, true, &ranges);
    if (status != noErr)
        return status;
    if (std::ranges::any_of(ranges, [](const PageRange &range) { return range.first < 1; }))
        return kPageNumberTooLow;
    for (const PageRange &range : ranges) {
        ExceptionPage &page = exceptions->emplace_back(edit.page);
        page.setStartPage(range.first);
        page.setEndPage(range.first + range.count - 1);
    }
    return noErr;
}

bool isTabStock(const Stock &stock)
{
    return stock.type() == kStockTypeTab || stock.type() == kStockTypeHeavyTab;
}

void settleImageShift(ExceptionPage &page, bool wasTabStock)
{
    if (wasTabStock && !isTabStock(page.stock()))
        page.imageShift()->option = kUnset;
}

} // namespace kelvo
