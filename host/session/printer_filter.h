#pragma once

#include "printers.h"

#include <QList>
#include <QString>

#include <vector>

namespace kelvo {

// Finds printers as somebody types: every word that is typed stands somewhere in the name, the
// description, the place, or the make and model; capitals and accents count alike. Made for
// thousands of printers: of each, what it is looked for in is made ready once.
class PrinterFilter
{
public:
    PrinterFilter() = default;
    explicit PrinterFilter(const QList<Printer> &printers);

    struct Hits
    {
        std::vector<int> rows; // indices into the printers, in their order; all for blanks
        int best = -1; // into rows: the first whose name begins so, else the first; -1: no rows
    };
    Hits find(const QString &typed) const;

private:
    // Folded: "hall-3\nkim's hall\nfloor 2\nkelvo corvane c90". The name ends with the first line.
    std::vector<QString> m_texts;
};

} // namespace kelvo
