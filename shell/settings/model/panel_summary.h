#pragma once

#include "device.h"
#include "plugin_abi.h"

#include <QString>

#include <vector>

// What a panel has chosen, in words, line by line.
namespace kelvo {

struct SummaryLine
{
    QString title; // "Job type:"
    QString text;
};

// Adds a line under the text of a control's label, without its mnemonic. A setting
// without words is left out.
void addSummaryLine(std::vector<SummaryLine> &lines, const Device &device, const char *labelKey,
                    const QString &text);

// Behind what other panels have said; arrays that are missing are made. Neither
// pointer is null.
void appendSummary(const std::vector<SummaryLine> &lines, SummaryArray *titles,
                   SummaryArray *texts);

} // namespace kelvo
