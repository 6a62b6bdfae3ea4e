#pragma once

#include "job_description.h"

#include <QString>

#include <array>

namespace kelvo {

// Covers reach the device by their paper source alone. A panel that has a cover without
// one leaves the option without a choice, where it writes "no cover" for none; and once
// another panel has read that, the cover is gone. This remembers it.
class LeftOutCovers
{
public:
    // Looks at what all panels have written. `place` is where the user is among the
    // panels, in any form that differs from place to place.
    void look(const SpecialSheets &sheets, const QString &place);
    void forget(); // the settings are others

    enum class Cover { None, LeftOut, Gone };
    Cover front() const { return m_sides[0].cover; }
    Cover back() const { return m_sides[1].cover; }

private:
    struct Side
    {
        Cover cover = Cover::None;
        QString place; // where it was left out
    };
    std::array<Side, 2> m_sides;
};

} // namespace kelvo
