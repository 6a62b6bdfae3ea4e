#pragma once

#include "recipient_editing.h"
#include "status.h"

namespace kelvo {

// Adds a recipient through AddRecipient(); OK when one was added.
DialogResult RunModalAddRecipientDialog(RecipientEditing &editing, QWidget *parent);

// Edits `recipient`, which is one of the list's, in place; Cancel changes nothing.
DialogResult RunModalEditRecipientDialog(RecipientEditing &editing, FaxRecipient *recipient,
                                         QWidget *parent);

} // namespace kelvo
