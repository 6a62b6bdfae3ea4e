#pragma once

#include "recipient_editing.h"
#include "status.h"

namespace kelvo {

// Asks for a name and saves the recipients as a group of the desktop's address book, on a
// thread of its own; they keep the uids that they got. OK when it was saved.
DialogResult RunModalSaveGroupDialog(RecipientEditing &editing, QWidget *parent);

} // namespace kelvo
