#pragma once

#include <QMap>
#include <QString>

namespace kelvo {

// `string` with its entities replaced: the five of XML, numeric references and
// those of `extraEntities` (name → text; the five win). An unknown name, a
// number that is no character, and a "&" without ";" stay as they stand.
QString XMLCreateStringByUnescapingEntities(const QString &string,
                                            const QMap<QString, QString> &extraEntities = {});

} // namespace kelvo
