#pragma once

#include <QByteArray>
#include <QString>

namespace kelvo {

// What stands in a secret's place wherever one would be shown: as long for a long
// one as for a short one.
inline const QString kMask = QStringLiteral("••••");

// This process holds a secret from now on: neither it nor its children leave core
// files, and no other process of the user reads its memory. Not from the start: the
// desktop's services tell applications apart by files in /proc that are closed then.
void protectSecrets();

// Overwrites what held a secret, before its memory is given back. Other copies of it stay.
void overwrite(QByteArray &bytes);
void overwrite(QString &text);

} // namespace kelvo
