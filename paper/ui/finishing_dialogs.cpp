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
#include "ticket_values.h"

#include <QLabel>

#include <algorithm>
#include <iterator>

namespace kelvo {

namespace {

constexpr ControlID kChoiceLabel{kPanelSignature, 8000};
constexpr ControlID kChoice{kPanelSignature, 8001};
constexpr ControlID kPicture{kPanelSignature, 8002};
constexpr ControlID kChoiceHint{kPanelSignature, 8003};
constexpr ControlID kLimits{kPanelSignature, 8004};
constexpr ControlID kNote{kPanelSignature, 8005};

// What tells the dialogs of one window apart. All texts are keys.
struct DialogRow
{
    FinishingDialogKind kind;
    OSType menuCommand;
    const char *menuText;
    const char *title;
    const char *label;
    const char *limits;
    const char *helpPage;
};

// In the order of the menu.
// clang-format off
constexpr DialogRow kDialogRows[] = {
    {FinishingDialogKind::SingleStaple, kCommandSingleStapleDialog, "1 Staple...", "1 Staple Title", "Staples:", "Staple Limits",
     "paper_output/finishing/db_1_staple_d.htm"},
    {FinishingDialogKind::DualStaple, kCommandDualStapleDialog, "2 Staples...", "2 Staples Title", "Staples:", "Staple Limits",
     "paper_output/finishing/db_2_staples_d.htm"},
    {FinishingDialogKind::HolePunch, kCommandHolePunchDialog, "Hole Punch...", "Hole Punch Title", "Holes:", "Hole Punch Limits",
     "paper_output/finishing/db_2_3_or_4_hole_punch_d.htm"},
    {FinishingDialogKind::Fold, kCommandFoldDialog, "Fold...", "Fold Title", "Fold:", "Fold Limits",
     "paper_output/finishing/db_folding.htm"},
    {FinishingDialogKind::AdvancedFold, kCommandAdvancedFoldDialog, "Advanced Fold...", "Advanced Fold Title", "Fold:", "Fold Limits",
     "paper_output/finishing/db_folding_db.htm"},
    {FinishingDialogKind::ZFold, kCommandZFoldDialog, "Z Fold...", "Z Fold Title", "Fold:", "Fold Limits",
     "paper_output/finishing/db_folding_db.htm"},
    {FinishingDialogKind::Bind, kCommandBindDialog, "Bind...", "Bind Title", "Bind:", "Bind Limits",
     "paper_output/finishing/db_bind_d.htm"},
};
// clang-format on

const DialogRow &rowOf(FinishingDialogKind kind)
{
    return *std::ranges::find(kDialogRows, kind, &DialogRow::kind);
}

QString textOf(CFBundleRef bundle, const char *key)
{
    return localizedText(bundle, QString::fromLatin1(key));
}

struct ChoiceDialog
{
    CFBundleRef bundle = nullptr;
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
    dialog.hint->setText(textOf(dialog.bundle, chosen.hintKey));
    showBundlePicture(dialog.picture, dialog.bundle,
                      finishingChoicePicture(dialog.kind, *dialog.settings, chosen),
                      textOf(dialog.bundle, chosen.key));
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

TicketPlace placeOf(FinishingDialogKind kind)
{
    switch (kind) {
    case FinishingDialogKind::SingleStaple:
    case FinishingDialogKind::DualStaple:
        return {kPPDChoices, QStringLiteral("StapleLocation")};
    case FinishingDialogKind::HolePunch:
        return {kPPDChoices, QStringLiteral("KVPunch")};
    case FinishingDialogKind::Fold:
    case FinishingDialogKind::AdvancedFold:
    case FinishingDialogKind::ZFold:
        return {kPPDChoices, QStringLiteral("KVFold")};
    case FinishingDialogKind::Bind:
        return {kPMPrintSettingsTicket, ticketKey("FinishingBindValue")};
    }
    Q_UNREACHABLE();
}

void fillChoices(const ChoiceDialog &dialog)
{
    Menu menu;
    for (const FinishingChoice &choice : dialog.choices) {
        MenuItem item;
        item.text = textOf(dialog.bundle, choice.key);
        item.key = QString::fromLatin1(choice.key);
        item.reference = choice.value;
        menu.items.push_back(std::move(item));
    }
    dialog.choice->setMenu(std::move(menu));
    setTicketPlaces(dialog.choice, {placeOf(dialog.kind)});
}

// The sentence changes with the choice, the window's size must not.
void reserveHeight(const ChoiceDialog &dialog)
{
    int height = 0;
    for (const FinishingChoice &choice : dialog.choices) {
        dialog.hint->setText(textOf(dialog.bundle, choice.hintKey));
        height = std::max(height, dialog.hint->heightForWidth(dialog.hint->minimumWidth()));
    }
    dialog.hint->setMinimumHeight(height);
}

// What OK does beyond the choice.
QString noteFor(const ChoiceDialog &dialog)
{
    QStringList sentences;
    const Finishing &finishing = dialog.settings->finishing;
    if (const char *replaced = replacedFinishing(dialog.kind, dialog.choices, finishing))
        sentences +=
            textOf(dialog.bundle, "Finishing Replaced").arg(textOf(dialog.bundle, replaced));
    if (endsBooklet(dialog.kind, *dialog.settings))
        sentences += textOf(dialog.bundle, "Finishing Ends Booklet");
    return sentences.join(u' ');
}

void showTexts(const ChoiceDialog &dialog)
{
    const DialogRow &row = rowOf(dialog.kind);
    QWidget *window = dialog.window.get();
    const QString label = QString::fromLatin1(row.label);
    SetLocalizedWindowTitle(dialog.bundle, QString::fromLatin1(row.title), window);
    SetLocalizedStaticText(dialog.bundle, label, findControl<QLabel>(window, kChoiceLabel));
    dialog.choice->setAccessibleName(textOf(dialog.bundle, row.title));
    if (auto *limits = findControl<QLabel>(window, kLimits)) {
        // Not every device can do what its menu names.
        const bool hasChoice = dialog.choices.size() > 1;
        limits->setText(textOf(dialog.bundle, hasChoice ? row.limits : "Not on This Device"));
        makeHintText(limits);
    }
    if (auto *note = findControl<QLabel>(window, kNote)) {
        note->setText(noteFor(dialog));
        note->setVisible(!note->text().isEmpty());
    }
}

// The window of any choice of finishing, as `kind` fills it.
ChoiceDialog CreateFinishingDialog(CFBundleRef bundle, FinishingDialogKind kind,
                                   const PaperOutputSettings &settings, QWidget *parent)
{
    ChoiceDialog dialog;
    dialog.bundle = bundle;
    dialog.kind = kind;
    dialog.settings = &settings;
    dialog.choices = finishingChoices(kind, currentDevice());
    dialog.chosen = initialChoice(kind, dialog.choices, settings.finishing);
    auto window =
        createModalDialog(bundle, QStringLiteral("FinishingDialogs"),
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

OSStatus runChoiceDialog(CFBundleRef bundle, FinishingDialogKind kind,
                         PaperOutputSettings *settings, DialogResult *result, QWidget *parent)
{
    if (!bundle || !settings || !result)
        return paramErr;
    ChoiceDialog dialog = CreateFinishingDialog(bundle, kind, *settings, parent);
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

void appendItem(Menu &menu, const Device &device, const char *key, OSType command)
{
    MenuItem item;
    item.text = device.text(key);
    item.key = QString::fromLatin1(key);
    item.command = command;
    menu.items.push_back(std::move(item));
}

} // namespace

void PopulateMoreFinishingMenu(Menu &menu, const Device &device)
{
    for (const DialogRow &row : kDialogRows) {
        if (finishingChoices(row.kind, device).size() > 1)
            appendItem(menu, device, row.menuText, row.menuCommand);
    }
    appendItem(menu, device, "Offset...", kCommandOffsetDialog);
    appendItem(menu, device, "Custom Finishing...", kCommandCustomFinishingDialog);
}

void MarkMoreFinishingMenu(Menu &menu, const PaperOutputSettings &settings, const Device &device)
{
    const Finishing &finishing = settings.finishing;
    for (MenuItem &item : menu.items) {
        const auto row = std::ranges::find(kDialogRows, item.command, &DialogRow::menuCommand);
        if (row != std::end(kDialogRows)) {
            const auto choices = finishingChoices(row->kind, device);
            item.checked = findSetChoice(row->kind, choices, finishing).value_or(0) != 0;
        } else if (item.command == kCommandOffsetDialog) {
            item.checked = finishing.offset >= kOffsetSets;
        } else if (item.command == kCommandCustomFinishingDialog) {
            item.checked = !finishing.custom.isEmpty();
        }
    }
}

OSStatus RunModal1StapleFinishingDialog(CFBundleRef bundle, PaperOutputSettings *settings,
                                        DialogResult *result, QWidget *parent)
{
    return runChoiceDialog(bundle, FinishingDialogKind::SingleStaple, settings, result, parent);
}

OSStatus RunModal2StaplesFinishingDialog(CFBundleRef bundle, PaperOutputSettings *settings,
                                         DialogResult *result, QWidget *parent)
{
    return runChoiceDialog(bundle, FinishingDialogKind::DualStaple, settings, result, parent);
}

OSStatus RunModalHolePunchFinishingDialog(CFBundleRef bundle, PaperOutputSettings *settings,
                                          DialogResult *result, QWidget *parent)
{
    return runChoiceDialog(bundle, FinishingDialogKind::HolePunch, settings, result, parent);
}

OSStatus RunModalFoldFinishingDialog(CFBundleRef bundle, PaperOutputSettings *settings,
                                     DialogResult *result, QWidget *parent)
{
    return runChoiceDialog(bundle, FinishingDialogKind::Fold, settings, result, parent);
}

OSStatus RunModalAdvancedFoldFinishingDialog(CFBundleRef bundle, PaperOutputSettings *settings,
                                             DialogResult *result, QWidget *parent)
{
    return runChoiceDialog(bundle, FinishingDialogKind::AdvancedFold, settings, result, parent);
}

OSStatus RunModalZFoldFinishingDialog(CFBundleRef bundle, PaperOutputSettings *settings,
                                      DialogResult *result, QWidget *parent)
{
    return runChoiceDialog(bundle, FinishingDialogKind::ZFold, settings, result, parent);
}

OSStatus RunModalBindFinishingDialog(CFBundleRef bundle, PaperOutputSettings *settings,
                                     DialogResult *result, QWidget *parent)
{
    return runChoiceDialog(bundle, FinishingDialogKind::Bind, settings, result, parent);
}

} // namespace kelvo
