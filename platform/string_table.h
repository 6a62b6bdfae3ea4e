#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

class QTranslator;

// Localized texts: Qt Linguist tables, English too, one context a table, the
// key as source text. Keys are fixed and may hold blanks, colons and quotes.
namespace kelvo {

// The names that tables and pages of `uiLanguages` (the preferred one first) go by, in turn:
// "de-AT" is looked for as de_AT and as de. Up to the first kind of English, and "en" last.
QStringList languageNames(const QStringList &uiLanguages);

class StringTables
{
public:
    StringTables();
    ~StringTables();
    StringTables(const StringTables &) = delete;
    StringTables &operator=(const StringTables &) = delete;

    // Loads `folder`/<language>.qm for each of languageNames(); a language that is not there
    // is skipped.
    void load(const QString &folder, const QStringList &uiLanguages);

    // That of the first table, as its file says ("de"); empty where there is none.
    QString language() const;

    // The text of `key` in `table`; none when no loaded language has it.
    std::optional<QString> find(const QString &table, const QString &key) const;
    // The same for what stands in the code, with the comment that tells it from others, if
    // any. With a `count`, the form that the language has for it; %n is still in there.
    std::optional<QString> find(const char *table, const char *key, const char *comment = nullptr,
                                int count = -1) const;

    // The application object's tr() looks here, too, until these tables go.
    void install() const;

private:
    // Best language first.
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

// The languages that have a table in `folder`, in the order of the alphabet.
QStringList languagesIn(const QString &folder);

// `format` with the place holders %1 to %9 replaced by `arguments` at once:
// what users typed is never taken for a place holder itself.
QString formatted(const QString &format, const QStringList &arguments);

} // namespace kelvo
