#include "mnemonics.h"

namespace kelvo {

QString withoutMnemonic(const QString &title)
{
    QString said;
    for (qsizetype i = 0; i < title.size(); ++i) {
        if (title[i] != u'&') {
            said += title[i];
        } else if (title.mid(i + 1, 1) == u"&") {
            said += title[++i];
        } else if (said.endsWith(u'(') && title.mid(i + 2, 1) == u")") {
            said.chop(1);
            while (said.endsWith(u' '))
                said.chop(1);
            i += 2;
        }
    }
    return said;
}

QString nameInLabel(const QString &label)
{
    QString name = withoutMnemonic(label).trimmed();
    while (name.endsWith(u':') || name.endsWith(u'\uFF1A'))
        name.chop(1);
    return name.trimmed();
}

} // namespace kelvo
