#pragma once

#include <QString>

namespace kelvo {

inline const QString kBookletOrderSetting = QStringLiteral("BookletLayoutOrderMap");

// What a choice of the panel does, as a picture of the bundle ("….gif"); empty where nothing is
// drawn. `setting` is an option of the PPD or kBookletOrderSetting, `choice` its choice or key.
QString advancedPicture(const QString &setting, const QString &choice);

} // namespace kelvo
