#pragma once

#include "fax_recipient_list.h"

#include <functional>
#include <vector>

class QLineEdit;

namespace kelvo {

class ListView;
struct Device;

// The recipient of a row, from 0; null where there is none any more. Asked while painting, also
// after recipients have gone and before the list is reloaded.
using RecipientOfRow = std::function<const FaxRecipient *(int row)>;

// How lists of recipients look: name, number, organization; or with room for long numbers.
enum class RecipientColumns { All, Numbers };
void showRecipients(ListView *list, const Device &device, RecipientColumns columns,
                    const RecipientOfRow &recipientOf);

// Those of the selected rows.
std::vector<FaxRecipient *> selectedOf(const ListView *list,
                                       const std::vector<FaxRecipient *> &recipients);

// All of a list, borrowed.
std::vector<FaxRecipient *> allOf(const FaxRecipientList &recipients);

// A field for what is dialed before each number.
void limitToPrefix(QLineEdit *field);

} // namespace kelvo
