#include "left_out_covers.h"

namespace kelvo {

void LeftOutCovers::look(const SpecialSheets &sheets, const QString &place)
{
    const std::array covers{sheets.frontCover, sheets.backCover};
    for (std::size_t i = 0; i < covers.size(); ++i) {
        Side &side = m_sides[i];
        if (covers[i] == SpecialSheets::Cover::Unsaid)
            side = {Cover::LeftOut, place};
        else if (covers[i] == SpecialSheets::Cover::Sheet)
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
