#pragma once

#include "device.h"
#include "popup_button.h"
#include "ppd_choices.h"
#include "setting_map.h"

#include <cstdint>

class QLabel;
class QWidget;

// Pop-up buttons filled from maps, history and PPD.
namespace kelvo {

class SummaryView;
class TabControl;

// Replaces the items; the maximum becomes the returned count, which is the
// map's length, skipped rows included.
std::int16_t PopulatePopupButtonFromMap(const Device &device, PopupButton *popup,
                                        const SettingMap *map, JobContext jobContext,
                                        OSType commandOverride);
// For the current device.
std::int16_t PopulatePopupButtonFromMap(CFBundleRef bundle, PopupButton *popup,
                                        const SettingMap *map, JobContext jobContext,
                                        OSType commandOverride);
// The same, then the history's strings after item `insertAfter`, in order, with
// `historyCommand`; each adds one to the count.
std::int16_t PopulatePopupButtonFromMapAndHistory(CFBundleRef bundle, PopupButton *popup,
                                                  const SettingMap *map, JobContext jobContext,
                                                  const QString &historyKey, int insertAfter,
                                                  OSType historyCommand, OSType commandOverride);
// Shows the first item with that value; false, and unchanged, when there is none.
bool SetPopupButtonToTicketValue(PopupButton *popup, std::int32_t value);
std::int32_t GetPopupButtonTicketValue(const PopupButton *popup); // kUnset for null

// PPDPopulateMenuWithChoices into a pop-up; the count becomes its maximum.
int PPDPopulatePopupWithChoices(PopupButton *popup, PpdFile *ppd, const QString &keyword,
                                bool honourConstraints);

// How every panel and dialog fills and shows a PPD option. Null is taken and left.
//
// Fills the pop-up with what the device offers (offered_choices.h); the count becomes
// its maximum. Where that is nothing it is disabled with its label, and stays in its
// place, so that users of several devices find it there. It says that it sets the option.
struct PpdFilling
{
    QStringList readByName = {}; // as PPDPopulateMenuWithChoices has it
    OSType command = kNoCommand; // of the items
    bool isExpected = false;     // a PPD without the option is named on standard error
};
void fillFromPpd(PopupButton *popup, const Device &device, const QString &option,
                 const PpdFilling &filling = {});
// The same with a menu that is made of what the device offers.
void fillWithMenu(PopupButton *popup, Menu menu, const QString &option);
// Enables a control with its label; or disables them, and says why in `hint`, the tool tip
// where there is none.
void setOnDevice(const Device &device, QWidget *control, bool isOnDevice, QLabel *hint = nullptr);
// Shows the item with that value, and `hintText` in `hint`. A value that no item has
// is the job's, and not offered here: the pop-up says so in place of an item, and the
// hint (the tool tip where there is none) that the job keeps it. A pop-up without items
// is empty beside a hint, which says that the device does not offer it.
void showChoice(CFBundleRef bundle, PopupButton *popup, std::int32_t value, QLabel *hint = nullptr,
                const QString &hintText = {});
// Takes the value of the item that is shown. Where none is, `value` is what the pop-up
// cannot show: not the user's choice, and it stays.
void takeChoice(const PopupButton *popup, std::int32_t &value);

// Shows and enables the pane at the tab's position, hides and disables the others.
void UpdateTabControl(TabControl *tabControl, int paneCount, QWidget *const panes[]);

// paramErr for a null view or text (a null QString; an empty one is fine).
OSStatus UpdateSummaryTextView(SummaryView *view, const QString &text);

} // namespace kelvo
