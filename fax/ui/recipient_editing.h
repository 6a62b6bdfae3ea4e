#pragma once

#include "device.h"
#include "fax_recipient_list.h"

#include <vector>

class QWidget;

namespace kelvo {

// A list of recipients that dialogs change together, and what the user wants to be asked. Who
// opens a dialog shows the list anew after it.
struct RecipientEditing
{
    Device device;
    FaxRecipientList recipients;
    bool promptDuplicate = true, promptRemove = true;
    bool needsDialingCheck = true; // something changed that counts in what is dialed
};

// Adds one, asking first where the same one is in the list already and the user wants to be
// asked; true when it was added. The list takes a reference.
bool AddRecipient(RecipientEditing &editing, FaxRecipient *recipient, QWidget *parent);
// Makes one of `recipient`, of which the list then has the only reference.
bool AddRecipient(RecipientEditing &editing, const FaxRecipient &recipient, QWidget *parent);

// Removes these, asking first where the user wants to be asked; true when they went.
bool RemoveSelectedRecipients(RecipientEditing &editing,
                              const std::vector<FaxRecipient *> &selected, QWidget *parent);

} // namespace kelvo
