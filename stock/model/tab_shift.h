#pragma once

#include "image_shift.h"

#include <cstdint>

#include <QLocale>

// The rules of the tab stock set-up: how far the image moves towards the tab.
namespace kelvo {

// Values of TabStockSetupMap.
inline constexpr std::int32_t kTabShiftNone = 1;
inline constexpr std::int32_t kTabShiftHalfInch = 2;    // a template for 8.5 by 11 inch
inline constexpr std::int32_t kTabShiftMillimetres = 3; // 12.7 mm, a template for A4
inline constexpr std::int32_t kTabShiftCustom = 4;
inline constexpr std::int32_t kTabTemplateShift = 13; // mm, of both templates

// Positions in TabStockRadioMap.
inline constexpr int kTabUnitInches = 1, kTabUnitMillimetres = 2;

// What the dialog shows. The value is tenths of an inch or whole millimetres.
struct TabShift
{
    std::int32_t choice = kTabShiftNone;
    int unit = kTabUnitInches; // as the window has it where the locale has neither
    std::int32_t value = 0;
    int maximum = 0; // 20 tenths of an inch, 50 mm; 0 where the locale has neither
    int decimals = 0;

    friend bool operator==(const TabShift &, const TabShift &) = default;
};

// What the dialog begins with. `unit` is the radio group's, kept where the locale
// is neither U.S. nor metric.
TabShift tabShiftOf(const _IS_Options &options, QLocale::MeasurementSystem system, int unit);
// The same shift in the other unit. One inch is 25 mm here, in both directions.
TabShift withUnit(TabShift shift, int unit);
// As far back from the tab as towards it. Where the locale has neither unit nothing can be
// shown until the user chooses one, and what is stored stays as it is.
TabShift withinReach(TabShift shift);
bool isTabShiftEditable(const TabShift &shift); // value and unit
// What OK stores: none unsets the option, else x1 in millimetres.
void storeTabShift(_IS_Options &options, const TabShift &shift);

} // namespace kelvo
