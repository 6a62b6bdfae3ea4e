#include "booklet_dialog.h"

#include "booklet_settings.h"
#include "bundle_picture.h"
#include "dialog_window.h"
#include "hint_text.h"
#include "localized_controls.h"
#include "picture_view.h"
#include "popups.h"
#include "radio_group.h"
#include "spin_field.h"
#include "string_table.h"
#include "ticket_places.h"
#include "ticket_values.h"

#include <QCheckBox>
#include <QLabel>
#include <QLocale>

namespace kelvo {

namespace {

constexpr ControlID control(std::int32_t number)
{
    return {kPanelSignature, number};
}

constexpr ControlID kOutlines = control(1605);
constexpr ControlID kNewSize = control(1607);
constexpr ControlID kPicture = control(1608);
constexpr ControlID kGutter = control(1613);
constexpr ControlID kGutterRange = control(1614);
constexpr ControlID kCreep = control(1617);
constexpr ControlID kCreepRange = control(1618);
constexpr ControlID kFold = control(1619); // with the buttons 1600 to 1602
constexpr ControlID kMode = control(1620); // with the buttons 1603 and 1604
constexpr ControlID kGutterHint = control(1621);
constexpr ControlID kCreepHint = control(1622);

// In the order of the buttons.
constexpr std::int32_t folds[] = {kFoldNone, kFoldBi, kFoldBiAndStaple};
constexpr std::int32_t modes[] = {kBookletOff, kBookletOn};

template <std::size_t N>
int positionOf(const std::int32_t (&values)[N], std::int32_t value)
{
    const auto found = std::ranges::find(values, value);
    return found == std::end(values) ? 1 : int(found - std::begin(values)) + 1;
}

struct BookletDialog
{
    Device device;
    _BookletCreationParams params;
    std::unique_ptr<ModalDialog> window;
    RadioGroup *fold = nullptr; // only where booklets are folded
    RadioGroup *mode = nullptr;
    QCheckBox *outlines = nullptr;
    PopupButton *newSize = nullptr;
    SpinField *gutter = nullptr;
    SpinField *creep = nullptr;
    PictureView *picture = nullptr;
};

void showParams(const BookletDialog &dialog)
{
    const _BookletCreationParams &params = dialog.params;
    const bool isOn = params.booklet == kBookletOn;
    if (dialog.fold)
        dialog.fold->setValue(positionOf(folds, params.fold));
    dialog.mode->setValue(positionOf(modes, params.booklet));
    dialog.outlines->setChecked(params.pageBorders == kPageBordersDrawn);
    dialog.outlines->setEnabled(isOn);
    showChoice(dialog.device.bundle, dialog.newSize, params.newSize);
    setEnabledWithLabel(dialog.newSize, isOn);
    dialog.gutter->setValue(params.gutter);
    setEnabledWithLabel(dialog.gutter, isOn);
    dialog.creep->setValue(params.creep);
    setEnabledWithLabel(dialog.creep, isOn);
    showBundlePicture(dialog.picture, dialog.device.bundle, bookletPicture(params));
}

// All but what nobody has picked.
void takeParams(BookletDialog &dialog)
{
    _BookletCreationParams &params = dialog.params;
    if (dialog.fold && dialog.fold->value() > 0
        && dialog.fold->value() != positionOf(folds, params.fold))
        params.fold = folds[dialog.fold->value() - 1];
    params.booklet = modes[std::max(1, dialog.mode->value()) - 1];
    params.pageBorders = dialog.outlines->isChecked() ? kPageBordersDrawn : kPageBordersNone;
    takeChoice(dialog.newSize, params.newSize);
    params.gutter = dialog.gutter->value();
    params.creep = dialog.creep->value();
}

OSStatus bookletEventHandler(BookletDialog &dialog, const Event &event)
{
    if (event.kind != EventKind::ControlHit || event.control.signature != kPanelSignature)
        return eventNotHandledErr;
    // What was typed and not left yet would be shown as it was before.
    commitTypedValues(dialog.window.get());
    takeParams(dialog);
    showParams(dialog);
    return noErr;
}

void tellTicketPlaces(const BookletDialog &dialog)
{
    const auto entry = [](const char *name) {
        return TicketPlace{kPMPrintSettingsTicket, ticketKey(name)};
    };
    const TicketPlace layout = entry("BookletLayout");
    if (dialog.fold)
        setTicketPlaces(dialog.fold, {{kPPDChoices, QStringLiteral("KVFold")}});
    setTicketPlaces(dialog.mode, {layout});
    setTicketPlaces(dialog.outlines, {layout, entry("BookletDrawOutlines")});
    setTicketPlaces(dialog.newSize, {layout, entry("BookletForceNewSize")});
    setTicketPlaces(dialog.gutter, {layout, entry("Gutter")});
    setTicketPlaces(dialog.creep, {layout, entry("Creep")});
}

void sayRanges(const BookletDialog &dialog)
{
    QWidget *window = dialog.window.get();
    const auto say = [&](ControlID label, const char *key, const QString &least,
                         const QString &most) {
        if (auto *range = findControl<QLabel>(window, label)) {
            range->setText(formatted(dialog.device.text(key), {least, most}));
            makeHintText(range);
        }
    };
    const QLocale locale;
    say(kGutterRange, "Gutter Range Label", locale.toString(0), locale.toString(kMostGutter));
    say(kCreepRange, "Creep Range Label", locale.toString(0.0, 'f', 1),
        locale.toString(kMostCreep / 10.0, 'f', 1));
    makeHintText(findControl<QLabel>(window, kGutterHint));
    makeHintText(findControl<QLabel>(window, kCreepHint));
}

OSStatus run(const Device &device, _BookletCreationParams *params, const char *titleKey,
             QWidget *parent)
{
    if (!device.bundle || !params)
        return paramErr;
    BookletDialog dialog;
    dialog.device = device;
    dialog.params = *params;
    const bool asksFold = offersBookletFold(device);
    dialog.window = createModalDialog(device.bundle, QStringLiteral("BookletCreation"),
                                      asksFold ? QStringLiteral("BookletFinishingOptions")
                                               : QStringLiteral("BookletOptions"),
                                      parent, [&](NeededControls &needed) {
                                          if (asksFold)
                                              dialog.fold = needed.find<RadioGroup>(kFold);
                                          dialog.mode = needed.find<RadioGroup>(kMode);
                                          dialog.outlines = needed.find<QCheckBox>(kOutlines);
                                          dialog.newSize = needed.find<PopupButton>(kNewSize);
                                          dialog.gutter = needed.find<SpinField>(kGutter);
                                          dialog.creep = needed.find<SpinField>(kCreep);
                                          dialog.picture = needed.find<PictureView>(kPicture);
                                      });
    if (!dialog.window)
        return kWindowNotMade;
    dialog.window->setWindowTitle(device.text(titleKey));
    dialog.newSize->setMenu(newSizeMenu(device));
    dialog.gutter->setMaximum(kMostGutter);
    dialog.creep->setMaximum(kMostCreep);
    sayRanges(dialog);
    tellTicketPlaces(dialog);
    showParams(dialog);
    const EventHandlerRef handler =
        installEventHandler(dialog.window.get(), [&dialog](const Event &event) {
            return bookletEventHandler(dialog, event);
        });
    if (dialog.window->runModal() != DialogResult::OK)
        return kBookletCancelled;
    takeParams(dialog);
    *params = dialog.params;
    return noErr;
}

} // namespace

OSStatus RunModalBookletOptionsDialog(const Device &device, _BookletCreationParams *params,
                                      QWidget *parent)
{
    return run(device, params, "Booklet Options Title", parent);
}

OSStatus RunModalBookletCreationDialog(const Device &device, _BookletCreationParams *params,
                                       QWidget *parent)
{
    return run(device, params, "Booklet Creation", parent);
}

} // namespace kelvo
