#include "more_finishing.h"

#include "finishing_offset.h"
#include "paper_output_settings.h"
#include "texts.h"

#include <QStringList>

#include <algorithm>
#include <iterator>

namespace kelvo {

namespace {

struct Line
{
    OSType command;
    const char *textKey;
    std::optional<FinishingDialogKind> kind; // what it asks for; none: always there
    bool isInSummary;                        // the finishing summary has a line for it
};

// clang-format off
constexpr Line kLines[] = {
    {kCommandSingleStapleDialog,    "1 Staple...",         FinishingDialogKind::SingleStaple, true},
    {kCommandDualStapleDialog,      "2 Staples...",        FinishingDialogKind::DualStaple,   true},
    {kCommandHolePunchDialog,       "Hole Punch...",       FinishingDialogKind::HolePunch,    true},
    {kCommandFoldDialog,            "Fold...",             FinishingDialogKind::Fold,         true},
    {kCommandAdvancedFoldDialog,    "Advanced Fold...",    FinishingDialogKind::AdvancedFold, true},
    {kCommandZFoldDialog,           "Z Fold...",           FinishingDialogKind::ZFold,        true},
    {kCommandBindDialog,            "Bind...",             FinishingDialogKind::Bind,         false},
    {kCommandOffsetDialog,          "Offset...",           std::nullopt,                      false},
    {kCommandCustomFinishingDialog, "Custom Finishing...", std::nullopt,                      false},
};
// clang-format on

bool isOffered(const Line &line, const Device &device)
{
    return !line.kind || finishingChoices(*line.kind, device).size() > 1;
}

bool isSet(const Line &line, const Finishing &finishing, const Device &device)
{
    if (line.kind)
        return findSetChoice(*line.kind, finishingChoices(*line.kind, device), finishing)
                   .value_or(0)
            != 0;
    return line.command == kCommandOffsetDialog ? kelvo::isSet(offsetOf(finishing))
                                                : !finishing.custom.isEmpty();
}

const Line *findLine(OSType command)
{
    const Line *line = std::ranges::find(kLines, command, &Line::command);
    return line == std::end(kLines) ? nullptr : line;
}

} // namespace

void PopulateMoreFinishingMenu(Menu &menu, const Device &device)
{
    for (const Line &line : kLines) {
        if (!isOffered(line, device))
            continue;
        MenuItem item;
        item.text = device.text(line.textKey);
        item.key = QString::fromLatin1(line.textKey);
        item.command = line.command;
        menu.items.push_back(std::move(item));
    }
}

void MarkMoreFinishingMenu(Menu &menu, const PaperOutputSettings &settings, const Device &device)
{
    for (MenuItem &item : menu.items) {
        if (const Line *line = findLine(item.command))
            item.checked = isSet(*line, settings.finishing, device);
    }
}

std::optional<FinishingDialogKind> findFinishingDialog(OSType command)
{
    const Line *line = findLine(command);
    return line ? line->kind : std::nullopt;
}

QString moreFinishingText(const PaperOutputSettings &settings, const Device &device)
{
    QStringList names;
    for (const Line &line : kLines) {
        if (!line.isInSummary && isOffered(line, device) && isSet(line, settings.finishing, device))
            names << device.text(line.textKey).remove(u'…');
    }
    return separated(names);
}

} // namespace kelvo
