#pragma once

#include <QString>
#include <QStringList>

namespace kelvo {

// `text` with every secret in it replaced by bullets, longer secrets first.
QString maskedText(QString text, QStringList secrets);

} // namespace kelvo
