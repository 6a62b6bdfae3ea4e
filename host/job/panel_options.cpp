#include "panel_options.h"

#include "ppd_file.h"
#include "ppd_words.h"
#include "texts.h"

#include <QSet>

#include <algorithm>

namespace kelvo {

namespace {

// In this order.
constexpr const char *usualOptions[] = {"Duplex",    "ColorModel", "cupsPrintQuality",
                                        "InputSlot", "MediaType",  "OutputBin"};
// The left column has them, or what means the same.
constexpr const char *hostOptions[] = {"PageSize", "PageRegion", "Collate", "Copies",
                                       "ManualCopies"};

template <std::size_t N>
bool isAmong(const char *const (&names)[N], const QString &keyword)
{
    return std::ranges::any_of(names, [&keyword](const char *name) {
        return keyword.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
    });
}

PanelOption panelOptionFrom(const PpdOption &option, const PpdFile &ppd)
{
    PanelOption offered{option.keyword, optionWords(option), {}, option.defaultChoice};
    bool isRuledOut = false;
    for (const PpdChoice &choice : option.choices) {
        // Of any size or value: libcups adds it, and it says nothing without that.
        if (choice.keyword == QLatin1String("Custom"))
            continue;
        if (ppd.isRuledOutByEquipment(option.keyword, choice.keyword)) {
            isRuledOut = true;
            continue;
        }
        offered.menu.items.push_back(
            {.text = choiceWords(option, choice.keyword),
             .key = choice.keyword,
             .reference = static_cast<std::int32_t>(offered.menu.items.size())});
    }
    offered.isFixed = isRuledOut && offered.menu.items.size() < 2;
    return offered;
}

bool isWorthALine(const PanelOption &option)
{
    return option.isFixed || option.menu.items.size() > 1;
}

} // namespace

std::vector<PanelSection> panelSections(const PpdFile &ppd)
{
    std::vector<PanelSection> sections(1);
    QSet<QString> taken;
    for (const char *name : usualOptions) {
        const PpdOption *option = ppd.findOption(QLatin1String(name));
        if (!option || isEquipment(*option, ppd) || taken.contains(option->keyword))
            continue;
        taken.insert(option->keyword);
        if (PanelOption offered = panelOptionFrom(*option, ppd); isWorthALine(offered))
            sections.front().options.push_back(std::move(offered));
    }
    const bool hasUsual = !sections.front().options.empty();
    sections.front().title = translate("Job", "General");
    for (const PpdGroup &group : ppd.groups()) {
        if (isInstallable(group))
            continue;
        // libcups puts into a group of that name what stands in none.
        const bool isGeneral = group.name == QLatin1String("General");
        PanelSection section{isGeneral && hasUsual
                                 ? translate("Job", "More")
                                 : (group.text.isEmpty() ? group.name : group.text).simplified(),
                             {}};
        for (const PpdOption &option : group.options) {
            if (taken.contains(option.keyword) || isAmong(hostOptions, option.keyword))
                continue;
            taken.insert(option.keyword);
            if (PanelOption offered = panelOptionFrom(option, ppd); isWorthALine(offered))
                section.options.push_back(std::move(offered));
        }
        sections.push_back(std::move(section));
    }
    std::erase_if(sections, [](const PanelSection &section) { return section.options.empty(); });
    return sections;
}

int chosenLine(const PanelOption &option, const PPDDictionary &choices)
{
    const QString choice = choices.value(option.keyword, option.defaultChoice);
    const auto &items = option.menu.items;
    const auto found = std::ranges::find(items, choice, &MenuItem::key);
    return found == items.end() ? 0 : int(found - items.begin()) + 1;
}

} // namespace kelvo
