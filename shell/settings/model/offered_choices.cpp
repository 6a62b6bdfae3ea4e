#include "offered_choices.h"

#include "ppd_choices.h"

namespace kelvo {

bool isOffered(const PpdFile *ppd, const QString &option, const QString &choice)
{
    return PPDCopyChoiceText(ppd, option, choice) && !ppd->isRuledOutByEquipment(option, choice);
}

bool isOffered(const PpdFile *ppd, const QString &option, std::int32_t ticketValue)
{
    const std::optional<QString> choice = PPDChoiceForTicketValue(option, ticketValue);
    return choice && isOffered(ppd, option, *choice);
}

int PopulateMenuWithOfferedChoices(Menu &menu, const PpdFile *ppd, const QString &option,
                                   OSType command, const QStringList &readByName)
{
    PPDPopulateMenuWithAllChoices(menu, ppd, option, command, readByName);
    std::erase_if(menu.items,
                  [&](const MenuItem &item) { return !isOffered(ppd, option, item.key); });
    return static_cast<int>(menu.items.size());
}

void removeWhatIsNotOffered(Menu &menu, const PpdFile *ppd, const QString &option)
{
    std::erase_if(menu.items,
                  [&](const MenuItem &item) { return !isOffered(ppd, option, item.reference); });
}

} // namespace kelvo
