#include "panel_summary.h"

#include "mnemonics.h"

namespace kelvo {

void addSummaryLine(std::vector<SummaryLine> &lines, const Device &device, const char *labelKey,
                    const QString &text)
{
    if (text.isEmpty())
        return;
    lines.push_back({withoutMnemonic(device.text(labelKey)), text});
}

void appendSummary(const std::vector<SummaryLine> &lines, SummaryArray *titles, SummaryArray *texts)
{
    if (!*titles)
        titles->emplace();
    if (!*texts)
        texts->emplace();
    for (const SummaryLine &line : lines) {
        (*titles)->append(line.title);
        (*texts)->append(line.text);
    }
}

} // namespace kelvo
