#include "device_pictures.h"

#include "offered_choices.h"

#include <algorithm>

namespace kelvo {

namespace {

// From the lowest.
struct Part
{
    const char *feature;
    const char *picture;
    bool isOnFinisher = true;
};
constexpr Part parts[] = {
    {"SimpleCatchTrayKey", "Device_CatchTray.gif", false},
    {"FaxKey", "Device_Fax.gif", false},
    {"SingleStapleKey", "Device_Stapler.gif"},
    {"DualStapleKey", "Device_Stapler.gif"},
    {"MultipleStapleKey", "Device_Stapler.gif"},
    {"GenericPunchKey", "Device_HolePunch.gif"},
    {"DualPunchKey", "Device_HolePunch.gif"},
    {"TriplePunchKey", "Device_HolePunch.gif"},
    {"QuadruplePunchKey", "Device_HolePunch.gif"},
    {"StackerTray1Key", "Device_OneStackerTray.gif"},
    {"StackerTray2Key", "Device_TwoStackerTrays.gif"},
    {"BookletFoldKey", "Device_BookletMaker.gif"},
    {"PostPrintInserterKey", "Device_Inserter.gif"},
    {"CFoldKey", "Device_Folder.gif"},
    {"ZFoldKey", "Device_Folder.gif"},
    {"ZFoldHalfSheetKey", "Device_Folder.gif"},
};

// Below the first one, which every device has.
struct Drawer
{
    const char *tray;
    const char *picture;
};
constexpr Drawer drawers[] = {
    {"Tray2", "Device_Tray2.gif"},
    {"Tray3", "Device_Tray3.gif"},
    {"Tray4", "Device_Tray4.gif"},
};

} // namespace

QStringList devicePictures(const Device &device)
{
    QStringList pictures{QStringLiteral("Device_Base.gif")};
    for (const auto &drawer : drawers) {
        if (isOffered(device.ppd, QStringLiteral("InputSlot"), QString::fromLatin1(drawer.tray)))
            pictures << QString::fromLatin1(drawer.picture);
    }
    const auto isFitted = [&device](const Part &part) { return device.has(part.feature); };
    if (std::ranges::any_of(parts,
                            [&](const Part &part) { return part.isOnFinisher && isFitted(part); }))
        pictures << QStringLiteral("Device_Finisher.gif");
    for (const Part &part : parts) {
        if (isFitted(part))
            pictures << QString::fromLatin1(part.picture);
    }
    pictures.removeDuplicates();
    return pictures;
}

} // namespace kelvo
