#include "cover_image_menu.h"

#include "setting_maps.h"
#include "watermark_menu.h"

namespace kelvo {

Menu coverImageMenu(const Device &device, const CoverSheetSettings &settings,
                    const QStringList &names)
{
    Menu menu;
    fillMenuWithNames(device, menu, CoverSheetImageMap, FaxCoverSizeMap, names);
    checkName(menu, settings.image);
    enableItems(menu, {kCommandEditCoverImage, kCommandDeleteCoverImage},
                names.contains(settings.image));
    if (MenuItem *sizes = findItem(menu, kCommandWatermarkOptions)) {
        for (MenuItem &size : sizes->submenu)
            size.checked = size.reference == settings.size;
    }
    return menu;
}

bool applyCoverSize(CoverSheetSettings &settings, OSType command)
{
    for (const SettingMap *size = FaxCoverSizeMap; size->localizedKey; ++size) {
        if (size->commandID == command) {
            settings.size = size->ticketValue;
            return true;
        }
    }
    return false;
}

} // namespace kelvo
