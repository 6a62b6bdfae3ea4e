#include "help_book.h"

#include "string_table.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace kelvo {

HelpBook::HelpBook(const QStringList &uiLanguages)
    : m_languages(languageNames(uiLanguages))
{
}

void HelpBook::addFolder(const QString &folder)
{
    const QString path = QFileInfo(folder).canonicalFilePath();
    if (!path.isEmpty() && !m_folders.contains(path))
        m_folders.append(path);
}

QString HelpBook::findFile(const QString &page) const
{
    for (const QString &language : m_languages) {
        for (const QString &folder : m_folders) {
            const QFileInfo file(folder + u'/' + language + u'/' + page);
            const QString path = file.canonicalFilePath();
            if (path.startsWith(folder + u'/') && file.isFile() && file.isReadable())
                return path;
        }
    }
    return {};
}

QStringList HelpBook::pages() const
{
    QStringList pages;
    for (const QString &language : m_languages) {
        for (const QString &folder : m_folders) {
            QDirIterator files(folder + u'/' + language, {QStringLiteral("*.htm*")}, QDir::Files,
                               QDirIterator::Subdirectories);
            while (files.hasNext())
                pages << pageOf(files.next());
        }
    }
    pages.sort();
    pages.removeDuplicates();
    return pages;
}

QString HelpBook::pageOf(const QString &file) const
{
    return pathInFolder(file).section(u'/', 1);
}

QString HelpBook::languageOf(const QString &file) const
{
    return pathInFolder(file).section(u'/', 0, 0);
}

// What follows the folder: de/shell/advanced.html
QString HelpBook::pathInFolder(const QString &file) const
{
    const QString path = QDir::cleanPath(file);
    for (const QString &folder : m_folders) {
        if (path.startsWith(folder + u'/'))
            return path.mid(folder.size() + 1);
    }
    return {};
}

} // namespace kelvo
