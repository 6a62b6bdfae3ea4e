#include "cover_options.h"

#include "stock_menus.h"

#include <algorithm>

namespace kelvo {

Cover newCover()
{
    Cover cover;
    DefaultStock(&cover.stock(), kJobContextCovers);
    // A cover without a source does not reach the printer.
    cover.stock().setSource(kCoverSourceAutomatic);
    return cover;
}

WorkingCovers workingCovers(const std::optional<Cover> &front, const std::optional<Cover> &back)
{
    WorkingCovers covers;
    if (front && back)
        covers.option = *front == *back ? kSameCovers : kFrontAndBackCovers;
    else if (front)
        covers.option = kFrontCoverOnly;
    else if (back)
        covers.option = kBackCoverOnly;
    if (front)
        covers.front = *front;
    if (back)
        covers.back = *back;
    return covers;
}

void setCoverOption(WorkingCovers &covers, std::int32_t option)
{
    covers.option = option;
    if (!hasFrontCover(option))
        covers.front = newCover();
    if (!hasBackCover(option))
        covers.back = newCover();
    settleCovers(covers);
}

void setSidesImaged(Cover &cover, std::int32_t sidesImaged)
{
    cover.setSidesImaged(sidesImaged);
    if (!offersSize(cover))
        cover.stock().setSize(kUnset);
}

bool offersSize(const Cover &cover)
{
    return cover.sidesImaged() == kCoverBlank;
}

void settleCovers(WorkingCovers &covers)
{
    setSidesImaged(covers.front, covers.front.sidesImaged());
    if (covers.option == kSameCovers)
        covers.back = covers.front;
    setSidesImaged(covers.back, covers.back.sidesImaged());
}

void enableStockItems(Menu &menu, const Cover &cover)
{
    const bool isOffered = offersSize(cover);
    for (MenuItem &item : menu.items) {
        if (item.command == kCommandStockSize)
            item.enabled = isOffered && !item.submenu.empty();
        else if (item.command == kCommandStockSource)
            item.enabled = isOffered;
    }
}

bool hasSource(const Menu &sources, const Cover &cover)
{
    return std::ranges::find(sources.items, cover.stock().source(), &MenuItem::reference)
        != sources.items.end();
}

Menu sourceMenu(const Menu &sources, const Cover &cover, const QString &notSet)
{
    Menu menu = sources;
    if (!hasSource(sources, cover)) {
        MenuItem item;
        item.text = notSet;
        item.reference = kUnset;
        menu.items.insert(menu.items.begin(), item);
    }
    return menu;
}

void handOver(const WorkingCovers &covers, std::optional<Cover> &front, std::optional<Cover> &back)
{
    const auto give = [](bool isThere, const Cover &working, std::optional<Cover> &cover) {
        if (isThere)
            cover = working;
        else
            cover.reset();
    };
    give(hasFrontCover(covers.option), covers.front, front);
    give(hasBackCover(covers.option), covers.back, back);
}

QString coverOptionPicture(std::int32_t option)
{
    switch (option) {
    case kNoCovers:
        return QStringLiteral("Covers_None.gif");
    case kFrontCoverOnly:
        return QStringLiteral("Covers_Front.gif");
    case kBackCoverOnly:
        return QStringLiteral("Covers_Back.gif");
    case kSameCovers:
        return QStringLiteral("Covers_Same.gif");
    case kFrontAndBackCovers:
        return QStringLiteral("Covers_Both.gif");
    }
    return {};
}

} // namespace kelvo
