#pragma once

#include "fax_recipient_list.h"
#include "long_date.h"
#include "pde_session.h"

#include <cstdint>

namespace kelvo {

struct Device;
struct PaperOutputSettings;

// The set-up button is enabled for these job types; two of them open nothing.
bool hasJobTypeSetup(std::int32_t jobType);

// The user chose `jobType`. A passcode belongs to the job type that it was entered
// for: another one would lock its job with a code that nobody entered for it, or keep
// it from queues that hold no secrets.
void changeJobType(PaperOutputSettings &settings, std::int32_t jobType);

// A secure print that cannot be printed yet, as it has no passcode.
bool lacksPasscode(const PaperOutputSettings &settings);

// What the Print button looks at.
JobTypeState jobTypeState(const PaperOutputSettings &settings, const Device &device);
// The time of a delayed print until the user chooses one: a day after `now`.
LongDateTime defaultDelayedPrintTime(LongDateTime now);
// At Print: a ticket or preset may be older than its time, and the job waits for the next one.
void settleDelayedPrint(PaperOutputSettings &settings, LongDateTime now);
// Whom the job is faxed to; null where it is no fax, or one to nobody.
const FaxRecipientList *faxRecipients(const PaperOutputSettings &settings);
// The same for the send time of a fax.
void settleFax(PaperOutputSettings &settings, LongDateTime now);

} // namespace kelvo
