#pragma once

#include "recipient_editing.h"
#include "status.h"

namespace kelvo {

// Adds people and groups of the desktop's address book, of vCard files, and those that faxes
// were sent to last, each through AddRecipient(); OK when somebody was added.
DialogResult RunModalAddressBookPicker(RecipientEditing &editing, QWidget *parent);

} // namespace kelvo
