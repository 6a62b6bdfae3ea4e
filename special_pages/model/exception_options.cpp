#include "exception_options.h"

#include "lighten_darken.h"
#include "offered_choices.h"
#include "ppd_choices.h"
#include "setting_maps.h"
#include "special_page_edits.h"
#include "string_table.h"
#include "tab_shift.h"
#include "ticket_values.h"

namespace kelvo {

namespace {

MenuItem itemOf(const Device &device, const char *key, OSType command, std::int32_t reference)
{
    MenuItem item;
    item.key = QString::fromLatin1(key);
    item.text = device.text(key);
    item.command = command;
    item.reference = reference;
    return item;
}

Menu withJobSetting(const Device &device, Menu menu, const QString &option, OSType command)
{
    removeWhatIsNotOffered(menu, device.ppd, option);
    menu.items.insert(menu.items.begin(), itemOf(device, "UseJobSetting", command, kUnset));
    return menu;
}

} // namespace

Menu exceptionSidesMenu(const Device &device, OSType command)
{
    Menu menu;
    PopulateMenuFromMap(device, menu, PlexMap, kJobContextExceptions, command);
    return withJobSetting(device, std::move(menu), kExceptionSidesOption, command);
}

Menu exceptionLightnessMenu(const Device &device)
{
    Menu menu;
    for (const LightenDarkenStep *step = LightenDarkenMap; step->localizedKey; ++step)
        menu.items.push_back(itemOf(device, step->localizedKey, kNoCommand, step->value));
    return withJobSetting(device, std::move(menu), kExceptionLightnessOption, kNoCommand);
}

QString jobSettingHint(const Device &device, const Ticket &printSettings, const QString &option)
{
    const auto choice = PPDCopyChoiceOrDefault(device.ppd, printSettings, option);
    const auto text = choice ? PPDCopyChoiceText(device.ppd, option, *choice) : std::nullopt;
    return text ? formatted(device.text("Job Setting Hint"), {*text}) : QString();
}

QString tabShiftWords(const Device &device, const ExceptionPage &page,
                      QLocale::MeasurementSystem system)
{
    const TabShift shift = tabShiftOf(*page.imageShift(), system, kTabUnitMillimetres);
    if (shift.choice == kTabShiftNone && !isTabStock(page.stock()))
        return device.text("Tab Shift Not Needed");
    if (shift.choice != kTabShiftCustom)
        return textOfValue(device, TabStockSetupMap, shift.choice);
    return formatted(device.text(shift.unit == kTabUnitInches ? "Tab Shift Words Inches"
                                                              : "Tab Shift Words Millimeters"),
                     {CreateLocalizedCFStringFromNumberWithDecimals(shift.value, shift.decimals)
                          .value_or(QString())});
}

} // namespace kelvo
