#pragma once

#include "bundle.h"
#include "ticket_file.h"

#include <QStringList>

// Which ticket entries are secrets, as the bundle's Info.plist names them: key
// paths that step into dictionaries and arrays with "/"; "*" is every element.
namespace kelvo {

struct SecretKeys
{
    QStringList secretPaths;
    QStringList faxKeys;
};
SecretKeys secretKeysOf(const Bundle *bundle); // empty for null

bool holdsSecret(const TicketFile &ticket, const SecretKeys &keys);
bool isFax(const TicketFile &ticket, const SecretKeys &keys);
// The values under secret paths, for comparing and masking texts that hold them.
QStringList secretValues(const TicketFile &ticket, const SecretKeys &keys);

// Secrets become bullets, for showing; or are taken out, for presets.
TicketFile masked(TicketFile ticket, const SecretKeys &keys);
TicketFile withoutSecrets(TicketFile ticket, const SecretKeys &keys);

inline const QString kMask = QStringLiteral("••••");

} // namespace kelvo
