#include "repeated_choices.h"

#include "values.h"

namespace kelvo {

RepeatedChoices repeatedChoicesIn(const JobDescription &description)
{
    RepeatedChoices repeated;
    for (const DescribedSetting &setting : description.settings) {
        if (setting.place.first() == kPPDChoices && !setting.repeats.isEmpty())
            repeated.insert(setting.place[1], setting.repeats);
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
