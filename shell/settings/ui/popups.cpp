#include "popups.h"

#include "control.h"
#include "input_history.h"
#include "offered_choices.h"
#include "preferences.h"
#include "summary_view.h"
#include "tab_control.h"
#include "ticket_places.h"
#include "ticket_values.h"
#include "tool_tip.h"

#include <QLabel>

#include <algorithm>
#include <limits>

namespace kelvo {

namespace {

// The stored texts put into `menu` after item `insertAfter`, each at its place in
// the array; how many there were.
int insertHistory(Menu &menu, const QString &historyKey, int insertAfter, OSType command)
{
    const Dictionary histories = CopyUserPreferences(kInputHistoryFile).value_or(Dictionary());
    const Array history = array(histories, historyKey).value_or(Array());
    int inserted = 0;
    for (int i = 0; i < history.size(); ++i) {
        const std::optional<QString> text = string(history[i]);
        if (!text)
            continue;
        MenuItem item;
        item.text = *text;
        item.command = command;
        const auto after = std::clamp<std::ptrdiff_t>(
            std::ptrdiff_t(insertAfter) + i, 0, static_cast<std::ptrdiff_t>(menu.items.size()));
        menu.items.insert(menu.items.begin() + after, std::move(item));
        ++inserted;
    }
    return inserted;
}

} // namespace

std::int16_t PopulatePopupButtonFromMap(const Device &device, PopupButton *popup,
                                        const SettingMap *map, JobContext jobContext,
                                        OSType commandOverride)
{
    if (!popup)
        return 0;
    Menu menu;
    const std::int16_t count = PopulateMenuFromMap(device, menu, map, jobContext, commandOverride);
    popup->setMenu(std::move(menu));
    popup->setMaximum(count);
    return count;
}

std::int16_t PopulatePopupButtonFromMap(CFBundleRef bundle, PopupButton *popup,
                                        const SettingMap *map, JobContext jobContext,
                                        OSType commandOverride)
{
    return PopulatePopupButtonFromMap(currentDevice(bundle), popup, map, jobContext,
                                      commandOverride);
}

std::int16_t PopulatePopupButtonFromMapAndHistory(CFBundleRef bundle, PopupButton *popup,
                                                  const SettingMap *map, JobContext jobContext,
                                                  const QString &historyKey, int insertAfter,
                                                  OSType historyCommand, OSType commandOverride)
{
    int count = PopulatePopupButtonFromMap(bundle, popup, map, jobContext, commandOverride);
    if (!popup || historyKey.isEmpty())
        return static_cast<std::int16_t>(count);
    Menu menu = popup->menu();
    count += insertHistory(menu, historyKey, insertAfter, historyCommand);
    count = std::min<int>(count, std::numeric_limits<std::int16_t>::max());
    popup->setMenu(std::move(menu));
    popup->setMaximum(count);
    return static_cast<std::int16_t>(count);
}

bool SetPopupButtonToTicketValue(PopupButton *popup, std::int32_t value)
{
    return popup && popup->setValueByReference(value);
}

std::int32_t GetPopupButtonTicketValue(const PopupButton *popup)
{
    return popup ? popup->chosenReference() : kUnset;
}

int PPDPopulatePopupWithChoices(PopupButton *popup, PpdFile *ppd, const QString &keyword,
                                bool honourConstraints)
{
    if (!popup)
        return 0;
    Menu menu = popup->menu();
    const int count = PPDPopulateMenuWithChoices(menu, ppd, keyword, kNoCommand, honourConstraints);
    popup->setMenu(std::move(menu)); // the maximum too
    return count;
}

void fillFromPpd(PopupButton *popup, const Device &device, const QString &option,
                 const PpdFilling &filling)
{
    Menu menu;
    if (filling.isExpected || device.hasOption(option))
        PopulateMenuWithOfferedChoices(menu, device.ppd, option, filling.command,
                                       filling.readByName);
    fillWithMenu(popup, std::move(menu), option);
}

void fillWithMenu(PopupButton *popup, Menu menu, const QString &option)
{
    if (!popup)
        return;
    setEnabledWithLabel(popup, !menu.items.empty());
    popup->setMenu(std::move(menu));
    setTicketPlaces(popup, {{kPPDChoices, option}});
}

void setOnDevice(const Device &device, QWidget *control, bool isOnDevice, QLabel *hint)
{
    if (!control)
        return;
    setEnabledWithLabel(control, isOnDevice);
    if (isOnDevice)
        return;
    const QString why = device.text("Not on This Device");
    if (hint) {
        hint->setText(why);
        control->setAccessibleDescription(why);
    } else {
        setPlainToolTip(control, why);
    }
}

void showChoice(CFBundleRef bundle, PopupButton *popup, std::int32_t value, QLabel *hint,
                const QString &hintText)
{
    if (!popup)
        return;
    const bool hasChoices = popup->count() > 0;
    // Of a pop-up without choices the hint says all.
    popup->setPlaceholderText(hasChoices || !hint
                                  ? localizedText(bundle, QStringLiteral("Not Offered Here"))
                                  : QString());
    QString text = hintText;
    if (!SetPopupButtonToTicketValue(popup, value)) {
        popup->setValue(0);
        text = localizedText(bundle,
                             hasChoices ? QStringLiteral("Choice Not Offered")
                                        : QStringLiteral("Not on This Device"));
    }
    if (hint) {
        hint->setText(text);
        popup->setAccessibleDescription(text);
    } else {
        setPlainToolTip(popup, text);
    }
}

void takeChoice(const PopupButton *popup, std::int32_t &value)
{
    if (popup && popup->value() > 0)
        value = popup->chosenReference();
}

void UpdateTabControl(TabControl *tabControl, int paneCount, QWidget *const panes[])
{
    if (!tabControl || !panes)
        return;
    const int shown = tabControl->value() - 1;
    // Hidden first: two panes at once would ask the window for room for both.
    for (int i = 0; i < paneCount; ++i) {
        if (i != shown && panes[i]) {
            panes[i]->hide();
            panes[i]->setEnabled(false);
        }
    }
    if (shown >= 0 && shown < paneCount && panes[shown]) {
        panes[shown]->setEnabled(true);
        panes[shown]->show();
    }
    tabControl->update();
}

OSStatus UpdateSummaryTextView(SummaryView *view, const QString &text)
{
    if (!view || text.isNull())
        return paramErr;
    view->setSummary(text);
    return noErr;
}

} // namespace kelvo
