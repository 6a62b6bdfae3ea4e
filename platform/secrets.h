#pragma once

#include <QString>

namespace kelvo {

// What stands in a secret's place wherever one would be shown: as long for a long
// one as for a short one.
inline const QString kMask = QStringLiteral("••••");

} // namespace kelvo
