#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

namespace kelvo {

// What a PPD calls its options and choices in another language than its own:
//
//   *cupsLanguages: "de ja"
//   *de.Translation PageSize/Papierformat: ""
//   *de.PageSize A5/DIN A5: ""
//
// libcups reads those of the desktop's language alone, and the program may speak another one.
class PpdTranslation
{
public:
    // `language` as in "de" or "pt_BR"; where the PPD has no "pt_BR", "pt" will do. One that it
    // does not list in cupsLanguages has no texts.
    PpdTranslation(const QByteArray &ppd, const QString &language);

    // Of an option or a group, and of a choice, by keyword; `original` where there is no text.
    QString text(const QByteArray &keyword, const QString &original) const;
    QString text(const QByteArray &option, const QByteArray &choice, const QString &original) const;

private:
    QHash<QByteArray, QString> m_texts; // "PageSize A5", "Translation PageSize"
};

// The PPD with its lines of translations empty: in one of four languages they are most of it,
// and libcups would read them to no purpose. Lines keep their numbers.
QByteArray withoutTranslations(const QByteArray &ppd);

} // namespace kelvo
