#include "several_documents.h"

#include "texts.h"

namespace kelvo {

QString titleOfAll(const QStringList &titles)
{
    const qint64 others = titles.size() - 1;
    return translate("Document", "%1 and %n more", "what the first document is called", others)
        .arg(titles.value(0));
}

QString titleOfOne(const QString &asked, const QString &title)
{
    return translate("Document", "%1 – %2", "the title asked for, and the file’s name")
        .arg(asked, title);
}

QString folderOfOne(const QString &folder, int number, const QString &title)
{
    constexpr qsizetype longest = 60; // letters; names end at 255 bytes, of which one takes up to 4
    QString name = title.left(longest);
    if (name.size() == longest && name.back().isHighSurrogate())
        name.chop(1);
    name.replace(u'/', u'_');
    return QStringLiteral("%1/%2-%3").arg(folder).arg(number).arg(name);
}

} // namespace kelvo
