#include "texts.h"

#include "string_table.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <memory>

namespace kelvo {

namespace {

std::unique_ptr<StringTables> tablesFor(const QString &folder, const QStringList &languages)
{
    auto tables = std::make_unique<StringTables>();
    if (!folder.isEmpty())
        tables->load(folder, languages);
    tables->load(QStringLiteral(":/kelvo/strings"), {});
    return tables;
}

// Threads read them, so they change only in loadTexts(); and never destroyed, for a thread
// may outlive every static object.
struct Texts
{
    TextSource source;
    std::unique_ptr<StringTables> tables = tablesFor(source.folder, source.languages);
    QTranslator ofQt;
};

Texts &texts()
{
    static auto &texts = *new Texts;
    return texts;
}

} // namespace

void loadTexts(const QString &folder, const QStringList &languages)
{
    texts().source = {folder, languages};
    texts().tables = tablesFor(folder, languages);
}

const TextSource &textSource()
{
    return texts().source;
}

QString textLanguage()
{
    return texts().tables->language();
}

QLocale withDigitsOfTexts(const QLocale &locale)
{
    const auto countsAlike = [](const QLocale &each) {
        return each.zeroDigit() == QLatin1String("0") && each.decimalPoint() == QLatin1String(".");
    };
    if (locale.zeroDigit() == QLatin1String("0")
        || locale.language() != QLocale(textLanguage()).language())
        return locale;
    const QList<QLocale> places =
        QLocale::matchingLocales(locale.language(), locale.script(), QLocale::AnyTerritory);
    const auto found = std::find_if(places.cbegin(), places.cend(), countsAlike);
    return found == places.cend() ? locale : *found;
}

void installTexts()
{
    // The one that is installed last is asked first.
    if (texts().ofQt.load(QStringLiteral("qtbase_") + textLanguage(),
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&texts().ofQt);
    texts().tables->install();
}

QString translate(const char *context, const char *english, const char *comment, qint64 count)
{
    // A language's form depends on the last digits, which a number that is cut keeps.
    constexpr qint64 period = 1'000'000;
    const int number = static_cast<int>(count < period ? count : period + count % period);
    QString text = texts()
                       .tables->find(context, english, comment, number)
                       .value_or(QString::fromUtf8(english));
    if (count >= 0)
        text.replace(QLatin1String("%n"), QString::number(count));
    return text;
}

QString joined(const QStringList &clauses)
{
    QString sentence;
    for (const QString &clause : clauses) {
        if (sentence.isEmpty())
            sentence = clause;
        else if (!clause.isEmpty())
            sentence =
                translate("Words", "%1; %2", "clauses of one sentence").arg(sentence, clause);
    }
    return sentence;
}

QString separated(const QStringList &parts)
{
    QString series = parts.value(0);
    for (const QString &part : parts.mid(1))
        series = translate("Words", "%1, %2", "members of a series").arg(series, part);
    return series;
}

QString listed(const QStringList &parts)
{
    if (parts.size() < 2)
        return parts.join(QString());
    return translate("Words", "%1 and %2")
        .arg(separated(parts.mid(0, parts.size() - 1)), parts.last());
}

} // namespace kelvo
