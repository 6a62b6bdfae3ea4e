#include "panel_summary.h"

#include "ticket_values.h"

namespace kelvo {

void addSummaryLine(std::vector<SummaryLine> &lines, CFBundleRef bundle, const char *labelKey,
                    const QString &text)
{
    if (text.isEmpty())
        return;
    QString title = localizedText(bundle, QString::fromLatin1(labelKey));
    lines.push_back({title.remove(u'&'), text});
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
