#include "max_characters_dialog.h"

#include "dialing_check.h"
#include "dialog_window.h"
#include "fax_texts.h"
#include "hint_text.h"
#include "list_view.h"
#include "recipient_dialogs.h"
#include "recipient_rows.h"
#include "string_table.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>

namespace kelvo {

namespace {

constexpr OSType kCommandPrefix = fourCharCode("LFdp");
constexpr OSType kCommandEdit = fourCharCode("LFed");
constexpr OSType kCommandRemove = fourCharCode("LFrm");
constexpr OSType kCommandRemoveAll = fourCharCode("LFra");

constexpr ControlID control(std::int32_t number)
{
    return {kPanelSignature, number};
}

struct MaxCharactersDialog
{
    RecipientEditing &editing;
    int prefixLength; // that the check began with
    std::vector<FaxRecipient *> tooLong;
    std::unique_ptr<ModalDialog> window;
    ListView *list = nullptr;
    QLabel *text = nullptr;
    QLabel *hint = nullptr;
    QPushButton *edit = nullptr, *remove = nullptr, *removeAll = nullptr;
    QCheckBox *prefixOn = nullptr;
    QLineEdit *prefix = nullptr;
};

void enableButtons(const MaxCharactersDialog &dialog)
{
    const std::size_t selected = dialog.list->selectedRows().size();
    dialog.edit->setEnabled(selected == 1);
    dialog.remove->setEnabled(selected > 0);
    dialog.removeAll->setEnabled(!dialog.tooLong.empty());
}

void count(MaxCharactersDialog &dialog)
{
    dialog.tooLong = FindMaxCharacters(dialog.editing.recipients, dialog.prefixLength);
    dialog.list->reload(static_cast<int>(dialog.tooLong.size()));
    if (!dialog.tooLong.empty())
        dialog.list->selectRows({0});
    dialog.hint->setText(dialog.tooLong.empty()
                             ? faxText(dialog.editing.device.bundle, "Nothing Too Long")
                             : QString());
    enableButtons(dialog);
}

OSStatus handleCommand(MaxCharactersDialog &dialog, OSType command)
{
    const std::vector<FaxRecipient *> selected = selectedOf(dialog.list, dialog.tooLong);
    switch (command) {
    case kCommandPrefix:
        dialog.prefix->setEnabled(dialog.prefixOn->isChecked());
        if (dialog.prefix->isEnabled())
            dialog.prefix->setFocus();
        return noErr;
    case kCommandEdit:
        if (!selected.empty())
            RunModalEditRecipientDialog(dialog.editing, selected.front(), dialog.window.get());
        break;
    case kCommandRemove:
        RemoveSelectedRecipients(dialog.editing, selected, dialog.window.get());
        break;
    case kCommandRemoveAll:
        RemoveSelectedRecipients(dialog.editing, std::vector(dialog.tooLong), dialog.window.get());
        break;
    default:
        return eventNotHandledErr;
    }
    count(dialog);
    return noErr;
}

OSStatus handleEvent(MaxCharactersDialog &dialog, const Event &event)
{
    switch (event.kind) {
    case EventKind::Command:
        return handleCommand(dialog, event.command);
    case EventKind::ListSelection:
        enableButtons(dialog);
        return noErr;
    case EventKind::ListActivated:
        return event.row < 0 ? noErr : handleCommand(dialog, kCommandEdit);
    default:
        return eventNotHandledErr;
    }
}

bool makeWindow(MaxCharactersDialog &dialog, QWidget *parent)
{
    dialog.window = createModalDialog(
        dialog.editing.device.bundle, QStringLiteral("LANFAX"), QStringLiteral("MaxCharacters"),
        parent, [&dialog](NeededControls &needed) {
            dialog.text = needed.find<QLabel>(control(1801));
            dialog.list = needed.find<ListView>(control(1802));
            dialog.edit = needed.find<QPushButton>(control(1803));
            dialog.remove = needed.find<QPushButton>(control(1804));
            dialog.removeAll = needed.find<QPushButton>(control(1805));
            dialog.hint = needed.find<QLabel>(control(1806));
            dialog.prefixOn = needed.find<QCheckBox>(control(1211));
            dialog.prefix = needed.find<QLineEdit>(control(1212));
        });
    return dialog.window != nullptr;
}

} // namespace

bool ValidateMaxCharacters(RecipientEditing &editing, std::optional<QString> &prefix,
                           QWidget *parent)
{
    const int prefixLength = static_cast<int>(prefix.value_or(QString()).size());
    MaxCharactersDialog dialog{editing, prefixLength,
                               FindMaxCharacters(editing.recipients, prefixLength)};
    if (dialog.tooLong.empty())
        return true;
    if (!makeWindow(dialog, parent))
        return false;
    const Device &device = editing.device;
    dialog.text->setText(formatted(faxText(device.bundle, "Max Characters Message"),
                                   {QLocale().toString(kMaxDialingString)}));
    makeHintText(dialog.hint);
    showRecipients(dialog.list, device, RecipientColumns::Numbers,
                   [&dialog](int row) { return dialog.tooLong[static_cast<std::size_t>(row)]; });
    limitToPrefix(dialog.prefix);
    dialog.prefixOn->setChecked(prefix.has_value());
    dialog.prefix->setEnabled(prefix.has_value());
    dialog.prefix->setText(prefix.value_or(QString()));
    count(dialog);
    const EventHandlerRef handler = installEventHandler(
        dialog.window.get(), [&dialog](const Event &event) { return handleEvent(dialog, event); });
    if (dialog.window->runModal() == DialogResult::OK) {
        prefix.reset();
        if (dialog.prefixOn->isChecked())
            prefix = dialog.prefix->text();
    }
    return dialog.tooLong.empty();
}

} // namespace kelvo
