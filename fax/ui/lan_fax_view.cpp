#include "lan_fax_view.h"

#include "dialing_check.h"
#include "embed_control.h"
#include "fax_texts.h"
#include "hint_text.h"
#include "list_view.h"
#include "needed_controls.h"
#include "paper_view.h"
#include "popups.h"
#include "recipient_rows.h"
#include "setting_maps.h"
#include "string_table.h"
#include "tab_control.h"
#include "time_field.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

namespace kelvo {

namespace {

constexpr OSType kCommandConfirmation = fourCharCode("LFcs");
constexpr OSType kCommandSpeed = fourCharCode("LFss");
constexpr OSType kCommandResolution = fourCharCode("LFrs");

constexpr int withoutCover = 1, withCover = 2; // items of CoverSheetMap

void fillMenu(const Device &device, PopupButton *popup, const SettingMap *map, OSType command)
{
    PopulatePopupButtonFromMap(device, popup, map, kJobContextJob, command);
}

// None: it is sent now.
std::optional<LongDateTime> momentIn(const LanFaxControls &controls, const FaxControls &shown,
                                     LongDateTime now)
{
    if (!controls.sendAt->isChecked())
        return {};
    const QTime time = controls.sendTime->value();
    const bool isAsShown = shown.sendTime && timeOf(*shown.sendTime) == time;
    return isAsShown && *shown.sendTime >= now ? *shown.sendTime : nextMomentAt(time, now);
}

QString sendTimeText(const Device &device, LongDateTime moment, LongDateTime now)
{
    const QDate day = dateOf(moment);
    const QString time = QLocale().toString(timeOf(moment), QLocale::ShortFormat);
    if (day == dateOf(now))
        return formatted(faxText(device.bundle, "Sent Today"), {time});
    if (day == dateOf(now).addDays(1))
        return formatted(faxText(device.bundle, "Sent Tomorrow"), {time});
    return formatted(faxText(device.bundle, "Sent Later"),
                     {QLocale().toString(day, QLocale::ShortFormat), time});
}

} // namespace

void LanFaxControls::find(NeededControls &needed)
{
    const auto control = [&needed]<typename T>(T *&found, std::int32_t number) {
        found = needed.find<T>(ControlID{kPanelSignature, number});
    };
    control(tabs, 1101);
    control(panes[0], 1109);
    control(panes[1], 1112);
    control(panes[2], 1113);
    control(recipients, 1102);
    control(add, 1103);
    control(addFromAddressBook, 1104);
    control(edit, 1105);
    control(remove, 1106);
    control(saveGroup, 1107);
    control(removeAll, 1108);
    control(recipientsHint, 1110);
    control(addressBookHint, 1111);
    control(confirmation, 1202);
    control(sendSpeed, 1204);
    control(resolution, 1206);
    control(sendNow, 1208);
    control(sendTime, 1209);
    control(prefixOn, 1211);
    control(prefix, 1212);
    control(sendAt, 1225);
    control(sendTimeHint, 1226);
    control(prefixHint, 1227);
    control(coverSheet, 1303);
    control(coverSheetSetup, 1304);
    control(notesLabel, 1305);
    control(notes, 1306);
    control(preview, 1307);
    control(previewHint, 1308);
}

void prepareLanFaxControls(const LanFaxControls &controls, const Device &device)
{
    for (QWidget *pane : controls.panes)
        keepPlaceWhenHidden(pane);
    UpdateTabControl(controls.tabs, static_cast<int>(controls.panes.size()), controls.panes.data());
    fillMenu(device, controls.confirmation, ConfirmationSheetMap, kCommandConfirmation);
    fillMenu(device, controls.sendSpeed, FaxSendSpeedMap, kCommandSpeed);
    fillMenu(device, controls.resolution, FaxResolutionMap, kCommandResolution);
    fillMenu(device, controls.coverSheet, CoverSheetMap, kNoCommand);
    limitToPrefix(controls.prefix);
    controls.prefixHint->setText(formatted(faxText(device.bundle, "Dialing Prefix Hint"),
                                           {QLocale().toString(kMaxDialingPrefix)}));
    for (QLabel *hint : {controls.recipientsHint, controls.addressBookHint, controls.sendTimeHint,
                         controls.prefixHint, controls.previewHint})
        makeHintText(hint);
    // Half a typed time changes nothing but the sentence beside it.
    controls.sendTime->setKeyboardTracking(true);
}

void showFaxControls(const LanFaxControls &controls, const Device &device,
                     const FaxControls &values)
{
    controls.confirmation->setValue(values.confirmation);
    showChoice(device.bundle, controls.sendSpeed,
               values.sendSpeed > 0 ? UIToTicket(FaxSendSpeedMap, values.sendSpeed) : 0);
    showChoice(device.bundle, controls.resolution, values.resolution);
    (values.sendTime ? controls.sendAt : controls.sendNow)->setChecked(true);
    controls.sendTime->setValue(values.sendTime ? timeOf(*values.sendTime) : QTime(0, 0));
    controls.prefixOn->setChecked(values.dialingPrefix.has_value());
    controls.prefix->setText(values.dialingPrefix.value_or(QString()));
    controls.coverSheet->setValue(values.hasCoverSheet ? withCover : withoutCover);
    controls.notes->setPlainText(values.notes);
}

void takeFaxControls(const LanFaxControls &controls, FaxControls &values, LongDateTime now)
{
    values.confirmation = controls.confirmation->value();
    values.sendSpeed = controls.sendSpeed->value();
    takeChoice(controls.resolution, values.resolution);
    values.sendTime = momentIn(controls, values, now);
    values.dialingPrefix.reset();
    if (controls.prefixOn->isChecked())
        values.dialingPrefix = controls.prefix->text();
    values.hasCoverSheet = hasCoverSheet(controls);
    values.notes = controls.notes->toPlainText();
}

void enableFaxControls(const LanFaxControls &controls, const Device &device,
                       const FaxControls &values, LongDateTime now)
{
    controls.sendTime->setEnabled(controls.sendAt->isChecked());
    const std::optional<LongDateTime> moment = momentIn(controls, values, now);
    const QString text = moment ? sendTimeText(device, *moment, now) : QString();
    controls.sendTimeHint->setText(text);
    controls.sendTime->setAccessibleDescription(text);
    controls.prefix->setEnabled(controls.prefixOn->isChecked());
    const bool hasCover = hasCoverSheet(controls);
    controls.coverSheetSetup->setEnabled(hasCover);
    setEnabledWithLabel(controls.notes, hasCover);
}

void enableRecipientButtons(const LanFaxControls &controls, bool hasAddressBook)
{
    const std::size_t selected = controls.recipients->selectedRows().size();
    const bool isEmpty = controls.recipients->rowCount() == 0;
    controls.edit->setEnabled(selected == 1);
    controls.remove->setEnabled(selected > 0);
    controls.saveGroup->setEnabled(!isEmpty && hasAddressBook);
    controls.removeAll->setEnabled(!isEmpty);
}

bool hasCoverSheet(const LanFaxControls &controls)
{
    return controls.coverSheet->value() == withCover;
}

} // namespace kelvo
