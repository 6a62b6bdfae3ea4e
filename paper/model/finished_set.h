#pragma once

#include "device.h"
#include "stock.h"

#include <QSizeF>
#include <QStringList>

#include <cstdint>

// One set of the job as it leaves the device, as far as its settings tell: what the panel
// draws and says of it.
namespace kelvo {

struct PaperOutputSettings;

// "Left", "top" and the like are those of the sheet as one looks at it, with the page upright
// but for reverse orientations.
struct FinishedSet
{
    enum class Kind { Paper, Transparency, Tab, Envelope, Labels };
    // Where the back is printed: over which edge one turns the sheet to read it.
    enum class Turn { None, OverLeft, OverTop, Unknown };
    enum class Fold {
        None,
        Middle,
        C,     // in three, both ends to the front
        Z,     // in three, one end to the front
        HalfZ, // one half lies flat, the other is folded in and out again
    };
    enum class Edge { None, Left, Right, Top };
    enum class Offset { None, Sets, Subsets, Both };

    QSizeF sheet; // points; folds lie across its longer side
    Kind kind = Kind::Paper;
    std::int32_t paperColor = kStockColorWhite;
    bool hasSeparators = false; // a sheet of paper behind each transparency
    std::int32_t separatorColor = kStockColorWhite;
    bool isColored = false;    // known to be printed in colors
    bool isUpsideDown = false; // its text
    Turn turn = Turn::None;
    bool isBooklet = false; // two pages on each side of a sheet
    Fold fold = Fold::None;
    bool isStapledInFold = false;
    int staples = 0;               // 1: in the upper left corner; more: along the left edge
    int holes = 0;                 // along the left edge
    bool hasHolesOfDevice = false; // in a pattern that is set there
    Edge tape = Edge::None;
    Offset offset = Offset::None;

    // It has several sheets that hold together.
    bool isBound() const { return staples > 0 || isStapledInFold || tape != Edge::None; }

    friend bool operator==(const FinishedSet &, const FinishedSet &) = default;
};

// What is written into the job's ticket decides, not what was chosen: pages in reverse
// orientation get staples that nobody chose. What the device does not offer, or is set in a
// way that is not known, is left out.
FinishedSet finishedSet(const PaperOutputSettings &settings, const Device &device);

// In words, one for each thing: "2-sided print", "2 staples along the left edge".
QStringList finishedSetWords(const FinishedSet &set, const Device &device);

} // namespace kelvo
