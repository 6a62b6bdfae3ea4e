#include "lighten_darken.h"

#include "ppd_choices.h"
#include "setting_map.h"

namespace kelvo {

constexpr LightenDarkenStep LightenDarkenMap[] = {
    {"Lighten5", -5}, {"Lighten4", -4}, {"Lighten3", -3}, {"Lighten2", -2},
    {"Lighten1", -1}, {"Normal", 0},    {"Darken1", 1},   {"Darken2", 2},
    {"Darken3", 3},   {"Darken4", 4},   {"Darken5", 5},   {nullptr, 0},
};

std::int32_t lightenDarkenStep(const QString &choice)
{
    // The number of a choice that the keyword map does not have is also a step's.
    const QString option = QStringLiteral("KVImageQuality");
    const std::int32_t step = PPDTicketValueForChoice(option, choice);
    return PPDChoiceForTicketValue(option, step) == choice ? step : kUnset;
}

const char *lightenDarkenKey(std::int32_t value)
{
    const LightenDarkenStep *step = LightenDarkenMap;
    while (step->localizedKey && step->value != value)
        ++step;
    return step->localizedKey;
}

} // namespace kelvo
