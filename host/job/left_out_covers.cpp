#include "left_out_covers.h"

namespace kelvo {

void LeftOutCovers::look(const SpecialSheetKeys &keys, const PPDDictionary &choices,
                         const PpdFile *ppd, const QString &place)
{
    const std::array<const SpecialSheetKeys::Cover *, 2> covers{&keys.frontCover, &keys.backCover};
    for (std::size_t i = 0; i < covers.size(); ++i) {
        const SpecialSheetKeys::Cover &cover = *covers[i];
        Side &side = m_sides[i];
        const PpdOption *option = ppd ? ppd->findOption(cover.option) : nullptr;
        // Without a choice the device does what it does by default, and that may be a cover.
        const bool needsChoice = option && option->defaultChoice == cover.none;
        if (needsChoice && !choices.contains(cover.option))
            side = {Cover::LeftOut, place};
        else if (!needsChoice || choices.value(cover.option) != cover.none)
            side = {};
        else if (side.cover == Cover::LeftOut)
            // In the same place the user has taken the cover away.
            side.cover = side.place == place ? Cover::None : Cover::Gone;
    }
}

void LeftOutCovers::forget()
{
    m_sides = {};
}

} // namespace kelvo
