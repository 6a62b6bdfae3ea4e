#pragma once

#include "bundle.h"
#include "secrets.h"
#include "ticket_file.h"

#include <QStringList>

// Which ticket entries are secrets, as the bundle's Info.plist names them: key
// paths that step into dictionaries and arrays with "/"; "*" is every entry or
// element, a number one element (from 0). Both tickets are searched. An empty
// text is no secret; of a dictionary or array under a path, all it holds is one.
namespace kelvo {

struct SecretKeys
{
    QStringList secretPaths;
    QStringList faxKeys; // paths too: something that is not empty there makes a job a fax,
    // where one of these is met as well, path and number, if there are any: recipients stay in
    // a job that is printed after all.
    Dictionary faxValues{};
    // What somebody set for one document: messages, recipients, pages that are named by their
    // numbers. Presets keep it; what was printed with last does not.
    QStringList oneJobPaths{};
};
SecretKeys secretKeysOf(const Bundle *bundle); // empty for null

bool holdsSecret(const TicketFile &ticket, const SecretKeys &keys);
bool isFax(const TicketFile &ticket, const SecretKeys &keys);
// The values under secret paths, for comparing and masking texts that hold them.
QStringList secretValues(const TicketFile &ticket, const SecretKeys &keys);

// Secrets become bullets, as many for a long one as for a short one, for showing;
// or are taken out, with their keys, for presets.
TicketFile masked(TicketFile ticket, const SecretKeys &keys);
TicketFile withoutSecrets(TicketFile ticket, const SecretKeys &keys);
TicketFile withoutOneJob(TicketFile ticket, const SecretKeys &keys);

} // namespace kelvo
