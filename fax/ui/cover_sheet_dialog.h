#pragma once

#include "device.h"
#include "fax_recipient_list.h"
#include "people.h"
#include "status.h"
#include "values.h"

#include <functional>
#include <optional>

class QWidget;

namespace kelvo {

// Who reads the user's own card, as AddressBook::ownCard() does; on a thread of the dialog's.
using OwnCardReader = std::function<Result<std::optional<Person>>(AddressBook::Flag cancelled)>;
Result<std::optional<Person>> readOwnCard(AddressBook::Flag cancelled); // out of addressBook()

// Edits the cover sheet in the options of a fax, beside a preview of it with these recipients
// and notes. OK writes what cover_sheet.h names; Cancel nothing.
DialogResult RunModalCoverSheetDialog(const Device &device, Dictionary *options,
                                      const FaxRecipientList &recipients, const QString &notes,
                                      QWidget *parent, const OwnCardReader &ownCard = readOwnCard);

} // namespace kelvo
