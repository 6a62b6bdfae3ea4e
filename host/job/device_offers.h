#pragma once

#include "ppd_file.h"

#include <QString>

// Whether a device has what a job asks for.
namespace kelvo {

// The option has the choice, or it is a custom page size within the PPD's limits.
// Of equipment a job can only ask for what the printer has: a finisher that a ticket
// names would silence the conflicts that the printer then meets.
bool offers(const PpdFile &ppd, const QString &keyword, const QString &choice);
// The choice asks for something that this device cannot do. "None" and "False" of
// an option that it does not have at all ask for nothing. Without a PPD a queue is
// told the paper, and no other choice.
bool lacks(const PpdFile *ppd, const QString &keyword, const QString &choice);

} // namespace kelvo
