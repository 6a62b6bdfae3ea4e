#include "ppd_words.h"

#include "job_settings.h"

namespace kelvo {

namespace {

QString plain(const QString &text, const QString &keyword)
{
    const QString words = text.simplified();
    return words.isEmpty() ? keyword : words;
}

} // namespace

QString optionWords(const PpdOption &option)
{
    return plain(option.text, option.keyword);
}

QString choiceWords(const PpdOption &option, const QString &choice)
{
    const PpdChoice *found = option.findChoice(choice);
    return found ? plain(found->text, choice) : choice;
}

QString settingWords(const PpdOption &option, const QString &choice)
{
    return QStringLiteral("%1: %2").arg(optionWords(option), choiceWords(option, choice));
}

QString settingWords(const QString &keyword, const QString &choice, const PpdFile *ppd)
{
    const PpdOption *option = ppd ? ppd->findOption(keyword) : nullptr;
    return option ? settingWords(*option, choice) : QStringLiteral("%1: %2").arg(keyword, choice);
}

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

QString whyNotSent(const PpdFile *ppd)
{
    return ppd ? QStringLiteral("this printer does not have it")
               : QStringLiteral("the print server has no description of this printer");
}

bool readsTickets(const PpdFile *ppd)
{
    return ppd && ppd->attribute("KelvoTicket") == QStringLiteral("1");
}

bool isEquipment(const PpdOption &option, const PpdFile &ppd)
{
    const auto &groups = ppd.groups();
    return std::any_of(groups.cbegin(), groups.cend(), [&](const PpdGroup &group) {
        return isInstallable(group)
            && std::any_of(
                   group.options.cbegin(), group.options.cend(),
                   [&](const PpdOption &fitted) { return fitted.keyword == option.keyword; });
    });
}

} // namespace kelvo
