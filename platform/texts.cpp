#include "texts.h"

#include "string_table.h"

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
};

Texts &texts()
{
    static auto &texts = *new Texts;
    return texts;
}

} // namespace

void loadTexts(const QString &folder, const QStringList &languages)
{
    texts() = {.source = {folder, languages}};
}

const TextSource &textSource()
{
    return texts().source;
}

void installTexts()
{
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

QString listed(const QStringList &parts)
{
    if (parts.size() < 2)
        return parts.join(QString());
    return translate("Words", "%1 and %2")
        .arg(parts.mid(0, parts.size() - 1).join(QStringLiteral(", ")), parts.last());
}

} // namespace kelvo
