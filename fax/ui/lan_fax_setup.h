#pragma once

#include "device.h"
#include "fax_recipient_list.h"
#include "status.h"
#include "values.h"

class QWidget;

namespace kelvo {

// Edits the options of a fax (fax_options.h) and the list of those who get it. After OK both
// are emptied and filled anew; after Cancel, and where a pointer is null or the window cannot
// be made, which the user has been told, they are as they were.
DialogResult RunModalLANFaxSetup(const Device &device, Dictionary *options,
                                 FaxRecipientList *recipients, QWidget *parent = nullptr);

} // namespace kelvo
