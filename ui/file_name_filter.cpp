#include "file_name_filter.h"

#include <QStringList>

namespace kelvo {

QString fileNameFilter(QString words, std::initializer_list<const char *> endings)
{
    QStringList patterns;
    for (const char *ending : endings) {
        const QString pattern = QStringLiteral("*.") + QLatin1String(ending);
        patterns << pattern << pattern.toUpper();
    }
    if (patterns.isEmpty())
        patterns << QStringLiteral("*");
    words.remove(u'(').remove(u')');
    return QStringLiteral("%1 (%2)").arg(words, patterns.join(u' '));
}

} // namespace kelvo
