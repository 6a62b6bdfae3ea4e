#pragma once

#include <QString>
#include <QStringList>

class QLocale;

// The words of the program and its libraries in the user's language. The English text
// stands where it is said and is the key to the tables of the other languages; what is
// said of a number has its forms in a table for English, too.
//
// QObjects may as well call tr(): it finds the same tables, once they are installed.
namespace kelvo {

// Takes `folder`/LANGUAGE.qm of each of `languages`, as StringTables::load() does; no
// folder: none. English is built in. Call it before other threads run and before
// installTexts(); until then all is English.
void loadTexts(const QString &folder, const QStringList &languages);

// What loadTexts() took, for another process that is to speak the same language.
struct TextSource
{
    QString folder;
    QStringList languages;
};
const TextSource &textSource();

// The language of the texts, as QLocale knows it: that of the first table, "en_US" where
// there is none. How texts run across the screen follows it, not the desktop's locale.
QString textLanguage();

// `locale` for what stands beside the texts. They count in 0 to 9, and fields and times must
// not show other digits, as they would in the Arabic of Egypt: it is then the locale of a place
// that writes the same language with these. Other locales, of other languages too, stay.
QLocale withDigitsOfTexts(const QLocale &locale);

// Gives the tables to the application object's tr(), and behind them Qt's own of that
// language (its file chooser's, its context menus'), where they are installed.
void installTexts();

// As QCoreApplication::translate(), so that lupdate finds the texts, but without an
// application object. `context` is an area of the program ("Job"): the same English may
// need other words elsewhere. With a `count`, the form of "%n page(s)" for it, and the
// count for %n. Place holders are for one QString::arg(), which replaces all at once.
QString translate(const char *context, const char *english, const char *comment = nullptr,
                  qint64 count = -1);

// "A; B; C": what is said of one thing, each a clause that stands for itself, such as a
// problem and what helps. Empty ones are left out.
QString joined(const QStringList &clauses);

// "a, b, c", with the language's own comma
QString separated(const QStringList &parts);

// "a", "a and b", "a, b and c"
QString listed(const QStringList &parts);

} // namespace kelvo
