#pragma once

#include <QString>
#include <QStringList>

// The pages of help: what there is, and in which language it is read.
namespace kelvo {

// Folders of help. Each has a folder of pages for every language that it is written in:
// the page "shell/advanced.html" is the file de/shell/advanced.html, and its links lead to
// other pages, whichever language these are in.
class HelpBook
{
public:
    // `uiLanguages` as the user prefers them, "de-AT" or "de_AT"; English comes last.
    explicit HelpBook(const QStringList &uiLanguages);

    // Folders are asked in the order in which they are added. One that does not exist or
    // was added before is left out.
    void addFolder(const QString &folder);
    const QStringList &folders() const { return m_folders; }

    // The file of `page` in the first language that has it; empty when there is none. Only
    // what lies inside the folders is found, links followed.
    QString findFile(const QString &page) const;

    // All pages, as findFile() takes them, in the order of the alphabet.
    QStringList pages() const;

    // The page that `file` is or would be, in whatever language; empty outside the folders.
    QString pageOf(const QString &file) const;

    // The language of `file`, by the name of its folder; empty outside the folders.
    QString languageOf(const QString &file) const;

private:
    QString pathInFolder(const QString &file) const;

    QStringList m_languages; // names of folders, the preferred one first
    QStringList m_folders;   // canonical paths
};

} // namespace kelvo
