#include "repeated_choices.h"

#include "values.h"

namespace kelvo {

RepeatedChoices repeatedChoicesOf(const Bundle *bundle)
{
    RepeatedChoices repeated;
    if (!bundle)
        return repeated;
    const Dictionary options =
        dictionary(bundle->info(), QStringLiteral("KelvoRepeatedChoices")).value_or(Dictionary());
    for (auto option = options.cbegin(); option != options.cend(); ++option) {
        for (const QVariant &key : array(option.value()).value_or(Array())) {
            if (const auto text = string(key))
                repeated[option.key()] << *text;
        }
    }
    return repeated;
}

void dropRepeats(Ticket &printSettings, const PPDDictionary &choices,
                 const RepeatedChoices &repeated)
{
    for (auto option = repeated.cbegin(); option != repeated.cend(); ++option) {
        if (!choices.contains(option.key()))
            continue;
        for (const QString &key : option.value())
            printSettings.entries.erase(key);
    }
}

} // namespace kelvo
