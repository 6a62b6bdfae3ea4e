#include "device_offers.h"

#include "job_settings.h"
#include "ppd_words.h"

namespace kelvo {

bool offers(const PpdFile &ppd, const QString &keyword, const QString &choice)
{
    const PpdOption *option = ppd.findOption(keyword);
    if (!option)
        return false;
    if (isEquipment(*option, ppd))
        return option->defaultChoice == choice;
    if (option->findChoice(choice))
        return true;
    return option->keyword == QLatin1String("PageSize") && paperSize(choice, ppd);
}

bool lacks(const PpdFile *ppd, const QString &keyword, const QString &choice)
{
    if (ppd ? offers(*ppd, keyword, choice) : keyword == QLatin1String("PageSize"))
        return false;
    const bool asksForNothing = choice == QLatin1String("None") || choice == QLatin1String("False");
    return !asksForNothing || (ppd && ppd->findOption(keyword));
}

} // namespace kelvo
