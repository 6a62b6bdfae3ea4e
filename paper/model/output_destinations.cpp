#include "output_destinations.h"

#include "offered_choices.h"
#include "setting_map.h"

#include <algorithm>

namespace kelvo {

namespace {

// Bins that a device has only with the unit they belong to, by ticket value of
// "OutputBin". All others are part of the device itself.
struct UnitBin
{
    std::int32_t bin;
    const char *feature;
};
constexpr UnitBin kUnitBins[] = {
    {1, "AutoSwitchTrayKey"},  // the device switches between trays by itself
    {5, "StackerTray1Key"},    // Upper
    {6, "StackerTray2Key"},    // Lower
    {4, "StackerTray1Key"},    // Stacker: any of its trays
    {3, "SimpleCatchTrayKey"}, // Side
    {7, "BookletFoldKey"},     // where the booklet maker delivers
};

bool isInstalled(const MenuItem &item, const Device &device)
{
    const auto *unit = std::ranges::find(kUnitBins, item.reference, &UnitBin::bin);
    return unit == std::end(kUnitBins) || device.has(unit->feature);
}

} // namespace

void PopulateOutputDestination(Menu &menu, const Device &device)
{
    menu.items.clear();
    const QString option = QStringLiteral("OutputBin");
    if (!device.hasOption(option))
        return;
    PopulateMenuWithOfferedChoices(menu, device.ppd, option, kNoCommand);
    std::erase_if(menu.items,
                  [&device](const MenuItem &item) { return !isInstalled(item, device); });
}

} // namespace kelvo
