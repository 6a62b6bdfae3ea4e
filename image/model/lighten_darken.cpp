#include "lighten_darken.h"

namespace kelvo {

constexpr LightenDarkenStep LightenDarkenMap[] = {
    {"Lighten5", -5}, {"Lighten4", -4}, {"Lighten3", -3}, {"Lighten2", -2},
    {"Lighten1", -1}, {"Normal", 0},    {"Darken1", 1},   {"Darken2", 2},
    {"Darken3", 3},   {"Darken4", 4},   {"Darken5", 5},   {nullptr, 0},
};

const char *lightenDarkenKey(std::int32_t value)
{
    const LightenDarkenStep *step = LightenDarkenMap;
    while (step->localizedKey && step->value != value)
        ++step;
    return step->localizedKey;
}

} // namespace kelvo
