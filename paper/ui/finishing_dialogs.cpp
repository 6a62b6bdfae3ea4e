#include "finishing_dialogs.h"

#include "bundle_picture.h"
#include "control.h"
#include "dialog_window.h"
#include "finishing_choices.h"
#include "help_window.h"
#include "hint_text.h"
#include "localized_controls.h"
#include "paper_output_settings.h"
#include "picture_view.h"
#include "popups.h"
#include "ticket_places.h"

#include <QLabel>

#include <algorithm>

namespace kelvo {

namespace {

constexpr ControlID kChoiceLabel{kPanelSignature, 8000};
constexpr ControlID kChoice{kPanelSignature, 8001};
constexpr ControlID kPicture{kPanelSignature, 8002};
constexpr ControlID kChoiceHint{kPanelSignature, 8003};
constexpr ControlID kLimits{kPanelSignature, 8004};
constexpr ControlID kNote{kPanelSignature, 8005};

// What tells the dialogs of one window apart.
struct DialogRow
{
    FinishingDialogKind kind;
    const char *titleKey;
    const char *labelKey;
    const char *limitsKey;
    const char *helpPage;
};

// clang-format off
constexpr DialogRow kDialogRows[] = {
    {FinishingDialogKind::SingleStaple, "1 Staple Title", "Staples:", "Staple Limits",
     "paper_output/finishing/db_1_staple_d.htm"},
    {FinishingDialogKind::DualStaple, "2 Staples Title", "Staples:", "Staple Limits",
     "paper_output/finishing/db_2_staples_d.htm"},
    {FinishingDialogKind::HolePunch, "Hole Punch Title", "Holes:", "Hole Punch Limits",
     "paper_output/finishing/db_2_3_or_4_hole_punch_d.htm"},
    {FinishingDialogKind::Fold, "Fold Title", "Fold:", "Fold Limits",
     "paper_output/finishing/db_folding.htm"},
    {FinishingDialogKind::AdvancedFold, "Advanced Fold Title", "Fold:", "Fold Limits",
     "paper_output/finishing/db_folding_db.htm"},
    {FinishingDialogKind::ZFold, "Z Fold Title", "Fold:", "Fold Limits",
     "paper_output/finishing/db_folding_db.htm"},
    {FinishingDialogKind::Bind, "Bind Title", "Bind:", "Bind Limits",
     "paper_output/finishing/db_bind_d.htm"},
};
// clang-format on

const DialogRow &rowOf(FinishingDialogKind kind)
{
    return *std::ranges::find(kDialogRows, kind, &DialogRow::kind);
}

struct ChoiceDialog
{
    Device device;
    FinishingDialogKind kind = FinishingDialogKind::SingleStaple;
    const PaperOutputSettings *settings = nullptr; // as it was before OK
    std::vector<FinishingChoice> choices;
    std::size_t chosen = 0;
    std::unique_ptr<ModalDialog> window; // null when it could not be made
    PopupButton *choice = nullptr;
    PictureView *picture = nullptr;
    QLabel *hint = nullptr;
};

// From the choice to the controls.
void showChoice(const ChoiceDialog &dialog)
{
    const FinishingChoice &chosen = dialog.choices[dialog.chosen];
    dialog.choice->setValue(static_cast<int>(dialog.chosen) + 1);
    dialog.hint->setText(dialog.device.text(chosen.hintKey));
    showBundlePicture(dialog.picture, dialog.device.bundle,
                      finishingChoicePicture(dialog.kind, *dialog.settings, chosen),
                      dialog.device.text(chosen.key));
}

OSStatus choiceEventHandler(ChoiceDialog &dialog, const Event &event)
{
    if (event.kind == EventKind::Command && event.command == kCommandHelp)
        return showHelp(QString::fromLatin1(rowOf(dialog.kind).helpPage), dialog.window.get());
    if (event.kind != EventKind::ControlHit || event.control != kChoice)
        return eventNotHandledErr;
    dialog.chosen = static_cast<std::size_t>(dialog.choice->value() - 1);
    showChoice(dialog);
    return noErr;
}

void fillChoices(const ChoiceDialog &dialog)
{
    Menu menu;
    for (const FinishingChoice &choice : dialog.choices) {
        MenuItem item;
        item.text = dialog.device.text(choice.key);
        item.key = QString::fromLatin1(choice.key);
        item.reference = choice.value;
        menu.items.push_back(std::move(item));
    }
    dialog.choice->setMenu(std::move(menu));
    setTicketPlaces(dialog.choice, {finishingPlace(dialog.kind)});
}

// The sentence changes with the choice, the window's size must not.
void reserveHeight(const ChoiceDialog &dialog)
{
    int height = 0;
    for (const FinishingChoice &choice : dialog.choices) {
        dialog.hint->setText(dialog.device.text(choice.hintKey));
        height = std::max(height, dialog.hint->heightForWidth(dialog.hint->minimumWidth()));
    }
    dialog.hint->setMinimumHeight(height);
}

void showTexts(const ChoiceDialog &dialog)
{
    const DialogRow &row = rowOf(dialog.kind);
    QWidget *window = dialog.window.get();
    const QString label = QString::fromLatin1(row.labelKey);
    SetLocalizedWindowTitle(dialog.device.bundle, QString::fromLatin1(row.titleKey), window);
    SetLocalizedStaticText(dialog.device.bundle, label, findControl<QLabel>(window, kChoiceLabel));
    dialog.choice->setAccessibleName(dialog.device.text(row.titleKey));
    if (auto *limits = findControl<QLabel>(window, kLimits)) {
        // Not every device can do what its menu names.
        const bool hasChoice = dialog.choices.size() > 1;
        limits->setText(dialog.device.text(hasChoice ? row.limitsKey : "Not on This Device"));
        makeHintText(limits);
    }
    if (auto *note = findControl<QLabel>(window, kNote)) {
        note->setText(finishingNote(dialog.kind, dialog.choices, *dialog.settings, dialog.device));
        note->setVisible(!note->text().isEmpty());
    }
}

// The window of any choice of finishing, as `kind` fills it.
ChoiceDialog CreateFinishingDialog(const Device &device, FinishingDialogKind kind,
                                   const PaperOutputSettings &settings, QWidget *parent)
{
    ChoiceDialog dialog;
    dialog.device = device;
    dialog.kind = kind;
    dialog.settings = &settings;
    dialog.choices = finishingChoices(kind, device);
    dialog.chosen = initialChoice(kind, dialog.choices, settings.finishing);
    auto window =
        createModalDialog(device.bundle, QStringLiteral("FinishingDialogs"),
                          QStringLiteral("ChoiceDialog"), parent, {kChoice, kPicture, kChoiceHint});
    if (!window)
        return dialog;
    dialog.choice = findControl<PopupButton>(window.get(), kChoice);
    dialog.picture = findControl<PictureView>(window.get(), kPicture);
    dialog.hint = findControl<QLabel>(window.get(), kChoiceHint);
    dialog.window = std::move(window);
    fillChoices(dialog);
    setEnabledWithLabel(dialog.choice, dialog.choices.size() > 1);
    showTexts(dialog);
    reserveHeight(dialog);
    showChoice(dialog);
    return dialog;
}

} // namespace

OSStatus RunModalFinishingDialog(const Device &device, FinishingDialogKind kind,
                                 PaperOutputSettings *settings, DialogResult *result,
                                 QWidget *parent)
{
    if (!device.bundle || !settings || !result)
        return paramErr;
    ChoiceDialog dialog = CreateFinishingDialog(device, kind, *settings, parent);
    if (!dialog.window)
        return kWindowNotMade;
    const EventHandlerRef handler =
        installEventHandler(dialog.window.get(), [&dialog](const Event &event) {
            return choiceEventHandler(dialog, event);
        });
    *result = dialog.window->runModal();
    if (*result == DialogResult::OK)
        applyFinishingChoice(*settings, dialog.choices[dialog.chosen]);
    return noErr;
}

} // namespace kelvo
