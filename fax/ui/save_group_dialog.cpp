#include "save_group_dialog.h"

#include "dialog_window.h"
#include "fax_texts.h"
#include "hint_text.h"
#include "newest_task.h"
#include "notice.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <optional>

namespace kelvo {

namespace {

constexpr ControlID kName{kPanelSignature, 1702};
constexpr ControlID kHint{kPanelSignature, 1703};

struct SaveGroupDialog
{
    RecipientEditing &editing;
    // What the thread works on: counts of references are for one thread.
    std::shared_ptr<FaxRecipientList> copy;
    std::unique_ptr<ModalDialog> window;
    QLineEdit *name = nullptr;
    QLabel *hint = nullptr;
    bool isSaved = false;
    std::optional<NewestTask> saving;
};

QString text(const SaveGroupDialog &dialog, const char *key)
{
    return faxText(dialog.editing.device.bundle, key);
}

void showSaving(const SaveGroupDialog &dialog, bool isSaving)
{
    dialog.name->setEnabled(!isSaving);
    setAwaited(dialog.hint, isSaving);
    dialog.hint->setText(isSaving ? text(dialog, "Saving Group") : QString());
}

void tell(const SaveGroupDialog &dialog, NoticeLevel level, const char *headerKey,
          const QString &message)
{
    CFUserNotificationDisplayNotice(level, text(dialog, headerKey), message, {},
                                    dialog.window.get());
    dialog.name->setFocus();
}

// An address book that is there says nothing of why it took no group.
QString reasonOf(const Result<const AddressBook *> &book)
{
    if (!book)
        return book.error().detail;
    const Result<void> found = book.value()->find();
    return found ? QString() : found.error().detail;
}

void save(SaveGroupDialog &dialog)
{
    const QString name = dialog.name->text().trimmed();
    const bool isStarted = dialog.saving->start(
        [&dialog, copy = dialog.copy, name](const std::atomic_bool &isUnwanted) {
            const bool isSaved = copy->saveAsABGroupWithName(name, &isUnwanted);
            const QString reason = isSaved ? QString() : reasonOf(addressBook());
            return [&dialog, isSaved, reason] {
                showSaving(dialog, false);
                dialog.isSaved = isSaved;
                if (isSaved)
                    dialog.window->accept();
                else
                    tell(dialog, NoticeLevel::Caution, "Group Not Saved Header",
                         (text(dialog, "Group Not Saved Message") + u'\n' + reason).trimmed());
            };
        });
    showSaving(dialog, isStarted);
}

// OK: true when the group is saved, and begins with it before.
bool mayClose(SaveGroupDialog &dialog)
{
    if (dialog.isSaved)
        return true;
    if (dialog.saving->isBusy() || dialog.editing.recipients.count() == 0)
        return false;
    if (dialog.name->text().trimmed().isEmpty())
        tell(dialog, NoticeLevel::Note, "Required Field Header",
             text(dialog, "Group Name Required Message"));
    else
        save(dialog);
    return false;
}

} // namespace

DialogResult RunModalSaveGroupDialog(RecipientEditing &editing, QWidget *parent)
{
    SaveGroupDialog dialog{editing, std::make_shared<FaxRecipientList>(editing.recipients)};
    dialog.window =
        createModalDialog(editing.device.bundle, QStringLiteral("LANFAX"),
                          QStringLiteral("SaveGroup"), parent, [&dialog](NeededControls &needed) {
                              dialog.name = needed.find<QLineEdit>(kName);
                              dialog.hint = needed.find<QLabel>(kHint);
                          });
    if (!dialog.window)
        return DialogResult::Cancel;
    makeHintText(dialog.hint);
    dialog.saving.emplace();
    dialog.window->setAcceptRule([&dialog] { return mayClose(dialog); });
    const DialogResult result = dialog.window->runModal();
    dialog.saving.reset(); // waits for the thread: the list is nobody else's then
    // Also of those who were added before something failed: the next time nobody is added twice.
    for (long i = 0; i < editing.recipients.count(); ++i)
        editing.recipients.recipientAtIndex(i)->setUID(dialog.copy->recipientAtIndex(i)->uid());
    return result;
}

} // namespace kelvo
