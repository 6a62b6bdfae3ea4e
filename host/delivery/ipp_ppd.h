#pragma once

#include "ipp_description.h"

#include <QByteArray>

namespace kelvo {

// A PPD of a printer that has none, from what it says over IPP: its papers, also of any size, and
// an option for each attribute that has more than one value; "finishings" becomes an option for
// each kind. Choices have the names that cupsd gives them in such a PPD, so that settings go along
// between queues of either kind, and their codes are what the printer is told (ipp_options.h). It
// has no words: PpdFile has those of the standards. Null for an empty description, or one without
// paper.
QByteArray ppdFrom(const IppDescription &description);

} // namespace kelvo
