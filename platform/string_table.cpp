#include "string_table.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTranslator>

namespace kelvo {

QStringList languageNames(const QStringList &uiLanguages)
{
    QStringList names;
    for (QString language : uiLanguages) {
        names << language.replace(u'-', u'_');
        // Of the desktop's language QLocale does not say by itself that it is a kind of another.
        const QString kind = language.section(u'_', 0, 0);
        // English has what British English has not; whoever prefers it has no use for the rest.
        if (kind == QLatin1String("en"))
            break;
        names << kind;
    }
    names << QStringLiteral("en");
    names.removeDuplicates();
    names.removeIf([](const QString &name) { return name.contains(u'/'); }); // never a path
    return names;
}

StringTables::StringTables() = default;
StringTables::~StringTables() = default;

void StringTables::load(const QString &folder, const QStringList &uiLanguages)
{
    const QStringList names = languageNames(uiLanguages);
    for (const QString &name : names) {
        const QString path = folder + u'/' + name + QStringLiteral(".qm");
        // QTranslator would look for shorter names by itself, out of turn.
        if (!QFileInfo(path).isFile())
            continue;
        auto translator = std::make_unique<QTranslator>();
        if (translator->load(path))
            m_translators.push_back(std::move(translator));
    }
}

QString StringTables::language() const
{
    return m_translators.empty() ? QString() : m_translators.front()->language();
}

std::optional<QString> StringTables::find(const QString &table, const QString &key) const
{
    return find(table.toUtf8().constData(), key.toUtf8().constData());
}

std::optional<QString> StringTables::find(const char *table, const char *key, const char *comment,
                                          int count) const
{
    for (const auto &translator : m_translators) {
        QString text = translator->translate(table, key, comment, count);
        if (!text.isNull())
            return text;
    }
    return std::nullopt;
}

void StringTables::install() const
{
    // The one that is installed last is asked first.
    for (auto each = m_translators.rbegin(); each != m_translators.rend(); ++each)
        QCoreApplication::installTranslator(each->get());
}

QStringList languagesIn(const QString &folder)
{
    const QString ending = QStringLiteral(".qm");
    QStringList languages =
        folder.isEmpty() ? QStringList() : QDir(folder).entryList({u'*' + ending}, QDir::Files);
    for (QString &language : languages)
        language.chop(ending.size());
    return languages;
}

QString formatted(const QString &format, const QStringList &arguments)
{
    QString text;
    text.reserve(format.size());
    for (qsizetype i = 0; i < format.size(); ++i) {
        if (format[i] == u'%' && i + 1 < format.size()) {
            const int place = format[i + 1].unicode() - u'1';
            if (place >= 0 && place < 9 && place < arguments.size()) {
                text += arguments[place];
                ++i;
                continue;
            }
        }
        text += format[i];
    }
    return text;
}

} // namespace kelvo
