#include "tab_shift.h"

#include <algorithm>
#include <limits>

namespace kelvo {

namespace {

constexpr int mostTenthsOfInch = 20;
constexpr int mostMillimetres = 50;

// Both round half away from zero; the division itself drops the fraction. The
// device counts 25 mm to the inch.
std::int32_t tenthsOfInch(std::int32_t millimetres)
{
    const std::int64_t half = millimetres < 0 ? 13 - 26 : 13;
    return static_cast<std::int32_t>((std::int64_t(millimetres) * 10 + half) / 25);
}

std::int32_t millimetresOf(std::int32_t tenths)
{
    const std::int64_t half = tenths < 0 ? 5 - 10 : 5;
    const std::int64_t millimetres = (std::int64_t(tenths) * 25 + half) / 10;
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(millimetres, std::numeric_limits<std::int32_t>::min(),
                                 std::numeric_limits<std::int32_t>::max()));
}

void setUnit(TabShift &shift, int unit)
{
    const bool inInches = unit == kTabUnitInches;
    shift.unit = unit;
    shift.maximum = inInches ? mostTenthsOfInch : mostMillimetres;
    shift.decimals = inInches ? 1 : 0;
}

} // namespace

TabShift tabShiftOf(const _IS_Options &options, QLocale::MeasurementSystem system, int unit)
{
    TabShift shift;
    switch (system) {
    case QLocale::ImperialUSSystem:
        setUnit(shift, kTabUnitInches);
        break;
    case QLocale::MetricSystem:
        setUnit(shift, kTabUnitMillimetres);
        break;
    default:
        setUnit(shift, unit);
        shift.maximum = 0;
        break;
    }
    const bool inInches = shift.unit == kTabUnitInches;
    if (options.option == kUnset) {
        shift.choice = kTabShiftNone;
    } else if (options.x1 == kTabTemplateShift) {
        shift.choice = inInches ? kTabShiftHalfInch : kTabShiftMillimetres;
    } else {
        shift.choice = kTabShiftCustom;
        shift.value = inInches ? tenthsOfInch(options.x1) : options.x1;
    }
    return shift;
}

TabShift withUnit(TabShift shift, int unit)
{
    if (unit == shift.unit)
        return shift;
    shift.value = unit == kTabUnitInches ? tenthsOfInch(shift.value) : millimetresOf(shift.value);
    setUnit(shift, unit);
    return shift;
}

TabShift withinReach(TabShift shift)
{
    if (shift.maximum > 0)
        shift.value = std::clamp(shift.value, -shift.maximum, shift.maximum);
    return shift;
}

bool isTabShiftEditable(const TabShift &shift)
{
    return shift.choice == kTabShiftCustom;
}

void storeTabShift(_IS_Options &options, const TabShift &shift)
{
    if (shift.choice == kTabShiftNone) {
        options.option = kUnset;
        return;
    }
    options.option = 1;
    options.inches = false;
    if (shift.choice == kTabShiftCustom)
        options.x1 = shift.unit == kTabUnitInches ? millimetresOf(shift.value) : shift.value;
    else
        options.x1 = kTabTemplateShift;
}

} // namespace kelvo
