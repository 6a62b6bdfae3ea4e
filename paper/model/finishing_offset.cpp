#include "finishing_offset.h"

#include <algorithm>
#include <utility>

namespace kelvo {

constexpr SettingMap OffsetMap[] = {
    {"No Offset", kOffsetNone},
    {"Offset Sets", kOffsetSets},
    {"Offset Subsets", kOffsetSubsets},
    {"Offset Sets and Subsets", kOffsetBoth},
    kEndOfMap,
};
static_assert(isWellFormed(OffsetMap) && valuesAreDistinct(OffsetMap));

namespace {

bool dividesSets(std::int32_t offset)
{
    return offset == kOffsetSubsets || offset == kOffsetBoth;
}

bool keepsSetsWhole(std::int32_t offset)
{
    return offset == kOffsetSets;
}

} // namespace

OffsetSettings offsetOf(const Finishing &finishing)
{
    OffsetSettings settings{.offset = finishing.offset,
                            .hasSubsets = finishing.offsetSubsetEnabled != 0};
    if (settings.hasSubsets)
        settings.pagesPerSubset = std::clamp(finishing.pagesPerSubset, 0, kMostPagesPerSubset);
    // A ticket may say what no user could choose: a set that is kept whole and
    // divided.
    return withOffset(settings, settings.offset);
}

bool isSet(const OffsetSettings &settings)
{
    return settings.hasSubsets
        || (settings.offset != kOffsetNone && settings.offset != kOffsetUnset);
}

Menu offsetMenu(const Device &device, std::int32_t offset)
{
    Menu menu;
    if (!keyOfValue(OffsetMap, offset)) {
        MenuItem item;
        item.text = device.text("PrinterDefault");
        item.reference = offset;
        menu.items.push_back(std::move(item));
    }
    PopulateMenuFromMap(device, menu, OffsetMap, kJobContextJob, kNoCommand);
    return menu;
}

void storeOffset(Finishing &finishing, const OffsetSettings &settings)
{
    finishing.offset = settings.offset;
    finishing.offsetSubsetEnabled = settings.hasSubsets ? 1 : 0;
    if (settings.hasSubsets)
        finishing.pagesPerSubset = settings.pagesPerSubset;
}

OffsetSettings withOffset(OffsetSettings settings, std::int32_t offset)
{
    settings.offset = offset;
    settings.earlierOffset.reset();
    if (dividesSets(offset)) {
        settings.hasSubsets = true;
    } else if (keepsSetsWhole(offset)) {
        settings.hasSubsets = false;
        settings.pagesPerSubset = 0;
    }
    return settings;
}

OffsetSettings withSubsets(OffsetSettings settings, bool hasSubsets)
{
    if (hasSubsets == settings.hasSubsets)
        return settings;
    if (hasSubsets && settings.earlierOffset)
        return withOffset(settings, *settings.earlierOffset);
    settings.hasSubsets = hasSubsets;
    settings.pagesPerSubset = 0;
    if (dividesSets(settings.offset))
        settings.earlierOffset = std::exchange(settings.offset, kOffsetSets);
    return settings;
}

bool isSubsetSwitchEnabled(const OffsetSettings &settings)
{
    return !keepsSetsWhole(settings.offset) || settings.earlierOffset;
}

QString offsetPicture(std::int32_t offset)
{
    switch (offset) {
    case kOffsetNone:
        return QStringLiteral("OffsetSubset_NoOffset.gif");
    case kOffsetSets:
        return QStringLiteral("OffsetSubset_OffsetSets.gif");
    case kOffsetSubsets:
        return QStringLiteral("OffsetSubset_OffsetSubset.gif");
    case kOffsetBoth:
        return QStringLiteral("OffsetSubset_OffsetBoth.gif");
    default:
        return QStringLiteral("OutputColor_PrnDef.gif");
    }
}

} // namespace kelvo
