#pragma once

#include "delivery.h"

namespace kelvo {

// The attributes of a job for a printer whose PPD was made of what it says over IPP: each that
// `wanted` (the ticket's choices, with the paper) has a choice for, as the printer called it. What
// the queue has a default for is said in any case, and so is the color: of a queue without a PPD,
// cupsd takes the printer for one that has none.
std::vector<JobOption> ippJobOptions(const PPDDictionary &wanted, const PpdFile &ppd,
                                     const QMap<QString, QString> &queueDefaults);

} // namespace kelvo
