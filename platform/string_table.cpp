#include "string_table.h"

#include <QFileInfo>
#include <QTranslator>

namespace kelvo {

StringTables::StringTables() = default;
StringTables::~StringTables() = default;

void StringTables::load(const QString &folder, const QStringList &uiLanguages)
{
    QStringList names;
    for (QString language : uiLanguages)
        names << language.replace(u'-', u'_');
    names << QStringLiteral("en");
    names.removeDuplicates();
    for (const QString &name : std::as_const(names)) {
        const QString path = folder + u'/' + name + QStringLiteral(".qm");
        // QTranslator would look for shorter names by itself, out of turn.
        if (name.contains(u'/') || !QFileInfo(path).isFile())
            continue;
        auto translator = std::make_unique<QTranslator>();
        if (translator->load(path))
            m_translators.push_back(std::move(translator));
    }
}

std::optional<QString> StringTables::find(const QString &table, const QString &key) const
{
    const QByteArray context = table.toUtf8();
    const QByteArray source = key.toUtf8();
    for (const auto &translator : m_translators) {
        QString text = translator->translate(context.constData(), source.constData());
        if (!text.isNull())
            return text;
    }
    return std::nullopt;
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
