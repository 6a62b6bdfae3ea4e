#pragma once

#include "people.h"
#include "recipient_editing.h"
#include "status.h"

#include <functional>

namespace kelvo {

// Reads an address book, on a thread of the picker's; ends soon after the flag becomes true.
using AddressBookReader = std::function<Result<AddressBookContents>(AddressBook::Flag)>;

// Adds people and groups of the desktop's address book, of vCard files, and those that faxes
// were sent to last, each through AddRecipient(); OK when somebody was added.
DialogResult RunModalAddressBookPicker(RecipientEditing &editing, QWidget *parent);
// The same, of another address book.
DialogResult RunModalAddressBookPicker(RecipientEditing &editing, const AddressBookReader &read,
                                       QWidget *parent);

} // namespace kelvo
