#include "pdf_layout.h"

#include "texts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kelvo {

namespace {

constexpr double leastSide = 3;
constexpr double mostSide = 14'400;
constexpr std::array rotations = {0, 90, 180, 270};

bool isSide(double length)
{
    return length >= leastSide && length <= mostSide;
}

bool isPlace(const QRectF &rect)
{
    return rect.width() > 0 && rect.height() > 0 && std::isfinite(rect.left())
        && std::isfinite(rect.top()) && std::isfinite(rect.right()) && std::isfinite(rect.bottom());
}

bool isOfSense(const PlacedPage &placed)
{
    return isPlace(placed.rect) && isPlace(placed.place)
        && std::ranges::find(rotations, placed.rotation) != rotations.end();
}

bool isOfSense(const LaidOutPage &page)
{
    if (page.isAsItIs)
        return page.pages.size() == 1;
    return isSide(page.size.width()) && isSide(page.size.height()) && page.border >= 0
        && page.border <= mostSide && std::ranges::all_of(page.pages, [](const PlacedPage &placed) {
               return isOfSense(placed);
           });
}

} // namespace

bool isAsItIs(const PdfLayout &layout, int pageCount)
{
    if (layout.empty())
        return true;
    int next = 1;
    return std::ssize(layout) == pageCount
        && std::ranges::all_of(layout, [&next](const LaidOutPage &page) {
               return page.isAsItIs && page.pages.front().page == next++;
           });
}

Result<void> checkLayout(const PdfLayout &layout, int pageCount, const QString &where)
{
    for (const LaidOutPage &page : layout) {
        const bool isThere = std::ranges::all_of(page.pages, [pageCount](const PlacedPage &placed) {
            return placed.page >= 1 && placed.page <= pageCount;
        });
        if (!isThere) {
            return Error{
                Error::Code::OutOfRange, where,
                translate("Document", "the document has %1 pages, and not all that are asked for")
                    .arg(pageCount)};
        }
        if (!isOfSense(page)) {
            return Error{Error::Code::OutOfRange, where,
                         translate("Document",
                                   "its pages cannot be laid out like this; choose another paper "
                                   "or scaling")};
        }
    }
    return {};
}

} // namespace kelvo
