#include "two_sided.h"

#include "offered_choices.h"
#include "setting_maps.h"

namespace kelvo {

namespace {

const QString option = QStringLiteral("Duplex");

} // namespace

Menu twoSidedMenu(const Device &device)
{
    Menu menu;
    PopulateMenuFromMap(device, menu, PlexMap, kJobContextJob, kNoCommand);
    if (device.hasOption(option))
        removeWhatIsNotOffered(menu, device.ppd, option);
    else
        std::erase_if(menu.items,
                      [](const MenuItem &item) { return item.reference != kPlexSimplex; });
    return menu;
}

bool canChooseTwoSided(const PaperOutputSettings &settings, const Device &device)
{
    return !settings.isBooklet() && device.hasOption(option);
}

std::int32_t shownTwoSided(const PaperOutputSettings &settings)
{
    return settings.isBooklet() ? kPlexDuplex : settings.duplex;
}

} // namespace kelvo
