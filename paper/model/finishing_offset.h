#pragma once

#include "finishing.h"
#include "menu.h"
#include "setting_map.h"

#include <QString>

#include <cstdint>
#include <optional>

// The rules of the offset dialog: which sets, and which parts of them, the
// device moves aside.
namespace kelvo {

extern const SettingMap OffsetMap[]; // of kOffset…, in menu order

inline constexpr int kMostPagesPerSubset = 99'999;

struct OffsetSettings
{
    std::int32_t offset = kOffsetNone; // kOffset…
    bool hasSubsets = false;
    std::int32_t pagesPerSubset = 0;
    // Of subsets, as it was before the user turned them off; none once another offset
    // has been chosen.
    std::optional<std::int32_t> earlierOffset = {};

    friend bool operator==(const OffsetSettings &, const OffsetSettings &) = default;
};

// The user has one, of sets or of parts of them; else it is the device's affair.
bool isSet(const OffsetSettings &settings);

// What the dialog begins with; without subsets their pages are shown as 0.
OffsetSettings offsetOf(const Finishing &finishing);
// The offsets to choose from. One that cannot be chosen here stands in front until another
// is chosen: the pop-up says what is set, and OK keeps it.
Menu offsetMenu(const Device &device, std::int32_t offset);
// What OK stores. Pages per subset only with subsets.
void storeOffset(Finishing &finishing, const OffsetSettings &settings);

// The user chose `offset`, or switched subsets. Turning them off and on again brings
// back the offset that there was.
OffsetSettings withOffset(OffsetSettings settings, std::int32_t offset);
OffsetSettings withSubsets(OffsetSettings settings, bool hasSubsets);

// "between sets" knows no subsets; the field for their pages goes with the switch.
bool isSubsetSwitchEnabled(const OffsetSettings &settings);

QString offsetPicture(std::int32_t offset);

} // namespace kelvo
