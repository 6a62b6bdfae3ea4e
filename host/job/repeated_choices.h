#pragma once

#include "job_description.h"

#include <QMap>
#include <QStringList>

// A PPD choice that the panels also keep in entries of their own. Panels read the
// entry first, so whoever sets such a choice from outside (an option of the command
// line, the way out of a conflict) takes the entries away, or the choice would not last.
namespace kelvo {

using RepeatedChoices = QMap<QString, QStringList>; // option → keys of the print settings
RepeatedChoices repeatedChoicesIn(const JobDescription &description);

// Removes the entries that repeat one of `choices`, whatever they say.
void dropRepeats(Ticket &printSettings, const PPDDictionary &choices,
                 const RepeatedChoices &repeated);

} // namespace kelvo
