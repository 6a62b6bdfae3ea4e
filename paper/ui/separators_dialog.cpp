#include "separators_dialog.h"

#include "bundle_picture.h"
#include "control.h"
#include "dialog_window.h"
#include "hint_text.h"
#include "picture_view.h"
#include "popups.h"
#include "separator_picture.h"
#include "ticket_places.h"

#include <QLabel>
#include <QPushButton>

namespace kelvo {

namespace {

constexpr ControlID kOption{kPanelSignature, 8301};
constexpr ControlID kSource{kPanelSignature, 8302};
constexpr ControlID kColor{kPanelSignature, 8303};
constexpr ControlID kPicture{kPanelSignature, 8304};
constexpr ControlID kOptionHint{kPanelSignature, 8305};
constexpr ControlID kColorHint{kPanelSignature, 8306};
constexpr ControlID kRevert{kPanelSignature, 8307};

constexpr OSType kCommandOption = fourCharCode("SepO");

struct SeparatorsDialog
{
    Device device;
    std::unique_ptr<ModalDialog> window;
    PopupButton *option = nullptr;
    PopupButton *source = nullptr;
    PopupButton *color = nullptr;
    PictureView *picture = nullptr;
    std::int32_t before = kSeparatorsNone; // what the job has

    // What the pop-up cannot show stays; "none" where the printer has no separators.
    std::int32_t separators() const
    {
        std::int32_t separators = option->count() == 0 ? kSeparatorsNone : before;
        takeChoice(option, separators);
        return separators;
    }
};

// What the option decides.
void showOption(const SeparatorsDialog &dialog)
{
    const std::int32_t separators = dialog.separators();
    const bool hasSeparators = separators != kSeparatorsNone;
    for (PopupButton *popup : {dialog.option, dialog.source}) {
        if (popup->value() > 0) // what the job had, and is not offered here, is said no more
            showChoice(dialog.device.bundle, popup, popup->chosenReference());
    }
    setEnabledWithLabel(dialog.source, hasSeparators && dialog.source->count() > 0);
    setEnabledWithLabel(dialog.color, hasSeparators && dialog.color->count() > 0);
    if (auto *hint = findControl<QLabel>(dialog.window.get(), kColorHint))
        hint->setEnabled(hasSeparators);
    showBundlePicture(dialog.picture, dialog.device.bundle,
                      separatorPicture(separators, dialog.color->chosenReference()),
                      dialog.option->currentText());
}

OSStatus separatorsEventHandler(const SeparatorsDialog &dialog, const Event &event)
{
    if (event.kind == EventKind::ControlHit
        && (event.control == kColor || event.control == kSource)) {
        showOption(dialog);
        return noErr;
    }
    if (event.kind != EventKind::Command)
        return eventNotHandledErr;
    switch (event.command) {
    case kCommandRevert:
        dialog.option->setValue(1);
        dialog.source->setValue(1);
        [[fallthrough]];
    case kCommandOption:
        showOption(dialog);
        return noErr;
    default:
        return eventNotHandledErr;
    }
}

void showMissingSeparators(const SeparatorsDialog &dialog)
{
    QWidget *window = dialog.window.get();
    setEnabledWithLabel(dialog.option, false);
    if (auto *hint = findControl<QLabel>(window, kOptionHint))
        hint->setText(dialog.device.text("No Separators on This Device"));
    if (auto *revert = findControl<QPushButton>(window, kRevert))
        revert->setEnabled(false);
}

void fillPopups(const SeparatorsDialog &dialog)
{
    const Device &device = dialog.device;
    if (!device.hasOption(kSeparatorsOption)) {
        showMissingSeparators(dialog);
        return;
    }
    fillWithMenu(dialog.option, separatorsMenu(device, kCommandOption), kSeparatorsOption);
    fillFromPpd(dialog.source, device, QStringLiteral("KVSlipSheetSource"));
    fillFromPpd(dialog.color, device, QStringLiteral("MediaColor"));
    setTicketPlaces(dialog.color, {}); // the picture's alone
    SetPopupButtonToTicketValue(dialog.color, kStockColorWhite);
}

} // namespace

OSStatus RunModalSeparatorsDialog(const Device &device, std::int32_t *separators,
                                  Stock *separatorStock, DialogResult *result, QWidget *parent)
{
    if (!device.bundle || !separators || !separatorStock || !result)
        return paramErr;
    SeparatorsDialog dialog;
    dialog.device = device;
    dialog.window =
        createModalDialog(device.bundle, QStringLiteral("Separators"), QStringLiteral("Separators"),
                          parent, [&dialog](NeededControls &needed) {
                              dialog.option = needed.find<PopupButton>(kOption);
                              dialog.source = needed.find<PopupButton>(kSource);
                              dialog.color = needed.find<PopupButton>(kColor);
                              dialog.picture = needed.find<PictureView>(kPicture);
                          });
    if (!dialog.window)
        return kWindowNotMade;
    QWidget *window = dialog.window.get();
    makeHintText(findControl<QLabel>(window, kOptionHint));
    makeHintText(findControl<QLabel>(window, kColorHint));
    fillPopups(dialog);
    dialog.before = *separators;
    showChoice(device.bundle, dialog.option, *separators);
    if (separatorStock->source() != kUnset) // else the first is ready to be taken
        showChoice(device.bundle, dialog.source, separatorStock->source());
    showOption(dialog);
    const EventHandlerRef handler = installEventHandler(
        window, [&dialog](const Event &event) { return separatorsEventHandler(dialog, event); });

    *result = dialog.window->runModal();
    if (*result != DialogResult::OK)
        return noErr;
    *separators = dialog.separators();
    if (*separators != kSeparatorsNone && dialog.source->value() > 0)
        separatorStock->setSource(dialog.source->chosenReference());
    return noErr;
}

} // namespace kelvo
