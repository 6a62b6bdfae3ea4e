#include "recipient_editing.h"

#include "fax_texts.h"
#include "notice.h"
#include "string_table.h"

#include <QLocale>

namespace kelvo {

namespace {

bool asks(const RecipientEditing &editing, const char *headerKey, const QString &message,
          const char *buttonKey, const char *otherButtonKey, QWidget *parent)
{
    return CFUserNotificationDisplayAlert(
               NoticeLevel::Caution, faxText(editing.device.bundle, headerKey), message,
               {editing.device.text(buttonKey), editing.device.text(otherButtonKey)}, parent)
        == 1;
}

bool mayAddAgain(const RecipientEditing &editing, const FaxRecipient &recipient, QWidget *parent)
{
    const QString message = formatted(
        faxText(editing.device.bundle, "Duplicate Recipient Message"),
        {recipient.faxNumber().value_or(QString()), DisplayNameFromRecipient(&recipient)});
    return asks(editing, "Duplicate Recipient Header", message, "Yes Command", "No Command",
                parent);
}

bool mayRemove(const RecipientEditing &editing, const std::vector<FaxRecipient *> &selected,
               QWidget *parent)
{
    const bool isOne = selected.size() == 1;
    const char *headerKey =
        isOne ? "Remove One Recipient Header" : "Remove Multiple Recipients Header";
    const QString message = isOne
        ? formatted(faxText(editing.device.bundle, "Remove One Recipient Message"),
                    {DisplayNameFromRecipient(selected.front()),
                     selected.front()->faxNumber().value_or(QString())})
        : formatted(faxText(editing.device.bundle, "Remove Multiple Recipients Message"),
                    {QLocale().toString(static_cast<qlonglong>(selected.size()))});
    return asks(editing, headerKey, message, "Remove Command", "Cancel Command", parent);
}

} // namespace

bool AddRecipient(RecipientEditing &editing, FaxRecipient *recipient, QWidget *parent)
{
    if (editing.promptDuplicate && editing.recipients.containsRecipient(recipient)
        && !mayAddAgain(editing, *recipient, parent))
        return false;
    editing.recipients.append(recipient);
    editing.needsDialingCheck = true;
    return true;
}

bool AddRecipient(RecipientEditing &editing, const FaxRecipient &recipient, QWidget *parent)
{
    auto *added = new FaxRecipient(recipient);
    const bool isAdded = AddRecipient(editing, added, parent);
    FaxRecipientRelease(added);
    return isAdded;
}

bool RemoveSelectedRecipients(RecipientEditing &editing,
                              const std::vector<FaxRecipient *> &selected, QWidget *parent)
{
    if (selected.empty() || (editing.promptRemove && !mayRemove(editing, selected, parent)))
        return false;
    for (FaxRecipient *recipient : selected)
        editing.recipients.remove(recipient);
    return true;
}

} // namespace kelvo
