#include "ppd_words.h"

#include <algorithm>

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
