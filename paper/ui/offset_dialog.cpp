#include "finishing_dialogs.h"

#include "bundle_picture.h"
#include "control.h"
#include "dialog_window.h"
#include "finishing_offset.h"
#include "hint_text.h"
#include "paper_output_settings.h"
#include "picture_view.h"
#include "popups.h"
#include "spin_field.h"
#include "ticket_places.h"
#include "ticket_values.h"

#include <QCheckBox>
#include <QLabel>

namespace kelvo {

namespace {

constexpr ControlID kOffset{kPanelSignature, 8101};
constexpr ControlID kPicture{kPanelSignature, 8102};
constexpr ControlID kSubsets{kPanelSignature, 8103};
constexpr ControlID kPagesPerSubset{kPanelSignature, 8104};
constexpr ControlID kHint{kPanelSignature, 8105};

struct OffsetDialog
{
    Device device;
    OffsetSettings settings;
    std::unique_ptr<ModalDialog> window;
    PopupButton *offset = nullptr;
    PictureView *picture = nullptr;
    QCheckBox *subsets = nullptr;
    SpinField *pagesPerSubset = nullptr;
};

// From the settings to the controls.
void showSettings(const OffsetDialog &dialog)
{
    const OffsetSettings &settings = dialog.settings;
    SetPopupButtonToTicketValue(dialog.offset, settings.offset);
    dialog.subsets->setChecked(settings.hasSubsets);
    dialog.subsets->setEnabled(isSubsetSwitchEnabled(settings));
    dialog.pagesPerSubset->setValue(settings.pagesPerSubset);
    setEnabledWithLabel(dialog.pagesPerSubset, settings.hasSubsets);
    showBundlePicture(dialog.picture, dialog.device.bundle, offsetPicture(settings.offset),
                      dialog.offset->currentText());
}

OSStatus offsetEventHandler(OffsetDialog &dialog, const Event &event)
{
    if (event.kind != EventKind::ControlHit)
        return eventNotHandledErr;
    if (event.control == kOffset)
        dialog.settings = withOffset(dialog.settings, GetPopupButtonTicketValue(dialog.offset));
    else if (event.control == kSubsets)
        dialog.settings = withSubsets(dialog.settings, dialog.subsets->isChecked());
    else if (event.control == kPagesPerSubset)
        dialog.settings.pagesPerSubset = dialog.pagesPerSubset->value();
    else
        return eventNotHandledErr;
    showSettings(dialog);
    return noErr;
}

void tellTicketPlaces(const OffsetDialog &dialog)
{
    const auto entry = [](const char *name) {
        return TicketPlace{kPMPrintSettingsTicket, ticketKey(name)};
    };
    const TicketPlace subsets = entry("FinishingOffsetEnableSubset");
    setTicketPlaces(dialog.offset, {entry("FinishingOffset")});
    setTicketPlaces(dialog.subsets, {subsets});
    setTicketPlaces(dialog.pagesPerSubset, {subsets, entry("FinishingOffsetPagesPerSubset")});
}

} // namespace

OSStatus RunModalOffsetFinishingDialog(const Device &device, PaperOutputSettings *settings,
                                       DialogResult *result, QWidget *parent)
{
    if (!device.bundle || !settings || !result)
        return paramErr;
    OffsetDialog dialog;
    dialog.device = device;
    dialog.settings = offsetOf(settings->finishing);
    dialog.window = createModalDialog(
        device.bundle, QStringLiteral("FinishingDialogs"), QStringLiteral("OffsetDialog"), parent,
        [&dialog](NeededControls &needed) {
            dialog.offset = needed.find<PopupButton>(kOffset);
            dialog.picture = needed.find<PictureView>(kPicture);
            dialog.subsets = needed.find<QCheckBox>(kSubsets);
            dialog.pagesPerSubset = needed.find<SpinField>(kPagesPerSubset);
        });
    if (!dialog.window)
        return kWindowNotMade;
    QWidget *window = dialog.window.get();
    makeHintText(findControl<QLabel>(window, kHint));
    dialog.pagesPerSubset->setMaximum(kMostPagesPerSubset);
    dialog.offset->setMenu(offsetMenu(device, dialog.settings.offset));
    tellTicketPlaces(dialog);
    showSettings(dialog);
    const EventHandlerRef handler = installEventHandler(
        window, [&dialog](const Event &event) { return offsetEventHandler(dialog, event); });

    *result = dialog.window->runModal();
    if (*result == DialogResult::OK)
        storeOffset(settings->finishing, dialog.settings);
    return noErr;
}

} // namespace kelvo
