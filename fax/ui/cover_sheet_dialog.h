#pragma once

#include "device.h"
#include "fax_recipient_list.h"
#include "status.h"
#include "values.h"

class QWidget;

namespace kelvo {

// Edits the cover sheet in the options of a fax, beside a preview of it with these recipients
// and notes. OK writes what cover_sheet.h names; Cancel nothing.
DialogResult RunModalCoverSheetDialog(const Device &device, Dictionary *options,
                                      const FaxRecipientList &recipients, const QString &notes,
                                      QWidget *parent);

} // namespace kelvo
