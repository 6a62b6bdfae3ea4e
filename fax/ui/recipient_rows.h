#pragma once

#include "fax_recipient_list.h"

#include <vector>

class QLineEdit;

namespace kelvo {

class ListView;
struct Device;

// How lists of recipients look: name, number, organization. `recipients` is borrowed and may
// change; reload the list then.
void showRecipients(ListView *list, const Device &device,
                    const std::vector<FaxRecipient *> &recipients);

// Those of the selected rows.
std::vector<FaxRecipient *> selectedOf(const ListView *list,
                                       const std::vector<FaxRecipient *> &recipients);

// All of a list, borrowed.
std::vector<FaxRecipient *> allOf(const FaxRecipientList &recipients);

// A field for what is dialed before each number.
void limitToPrefix(QLineEdit *field);

} // namespace kelvo
