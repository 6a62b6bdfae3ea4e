#include "cover_options.h"

#include "setting_maps.h"
#include "stock_menus.h"
#include "stock_summary.h"

#include <algorithm>

namespace kelvo {

namespace {

const char *sourceHintKey(const Menu &sources, const Cover &cover)
{
    const std::int32_t source = cover.stock().source();
    if (sources.items.empty())
        return "Not on This Device";
    if (!hasSource(sources, cover))
        return source == kStockSourceInserter ? "Cover Source Inserter" : "Cover Source Missing";
    return source == kCoverSourceAutomatic ? "Cover Source Automatic" : "Cover Source Chosen";
}

} // namespace

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

Menu coverOptionsMenu(const Device &device, OSType command)
{
    Menu menu;
    PopulateMenuFromMap(device, menu, CoverOptionMap, kJobContextCovers, command);
    MenuItem same;
    same.key = QStringLiteral("Front and Back the Same");
    same.text = device.text("Front and Back the Same");
    same.command = command;
    same.reference = kSameCovers;
    menu.items.insert(std::ranges::find(menu.items, kFrontAndBackCovers, &MenuItem::reference),
                      same);
    return menu;
}

CoverView coverView(const Device &device, const WorkingCovers &covers, CoverPlace place,
                    const Menu &sources)
{
    const bool isFront = place == CoverPlace::Front;
    const Cover &cover = isFront ? covers.front : covers.back;
    const Stock &stock = cover.stock();
    const bool isThere = isFront ? hasFrontCover(covers.option) : hasBackCover(covers.option);
    const bool isFromSource = isThere && hasSource(sources, cover);

    CoverView view;
    view.isThere = isThere;
    view.isEditable = isThere && (isFront || covers.option != kSameCovers);
    view.isLeftOut = isThere && !isFromSource;
    if (!sources.items.empty() && stock.source() != kStockSourceInserter)
        view.source = stock.source();
    if (isThere)
        view.sourceHintKey = sourceHintKey(sources, cover);
    // The paper of a tray is what lies in it: whatever was chosen before is not shown as if
    // it came from there.
    if (isFromSource && stock.source() != kCoverSourceAutomatic) {
        const auto tray = std::ranges::find(sources.items, stock.source(), &MenuItem::reference);
        view.paper = QStringLiteral("- ") + tray->text;
    } else {
        view.paper = stockSummaryText(device, kJobContextCovers, isThere ? &stock : nullptr);
    }
    view.picture = isFromSource ? newCover().stock() : stock;
    return view;
}

const char *leftOutHeaderKey(bool frontIsLeftOut, bool backIsLeftOut)
{
    if (frontIsLeftOut)
        return backIsLeftOut ? "Covers Left Out Header" : "Front Cover Left Out Header";
    return backIsLeftOut ? "Back Cover Left Out Header" : nullptr;
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
