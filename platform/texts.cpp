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

// Threads read it, so it changes only in loadTexts(); and never destroyed, for a thread may
// outlive every static object.
std::unique_ptr<StringTables> &tables()
{
    static auto &tables = *new std::unique_ptr<StringTables>(tablesFor({}, {}));
    return tables;
}

} // namespace

void loadTexts(const QString &folder, const QStringList &languages)
{
    tables() = tablesFor(folder, languages);
}

void installTexts()
{
    tables()->install();
}

QString translate(const char *context, const char *english, const char *comment, qint64 count)
{
    // A language's form depends on the last digits, which a number that is cut keeps.
    constexpr qint64 period = 1'000'000;
    const int number = static_cast<int>(count < period ? count : period + count % period);
    QString text =
        tables()->find(context, english, comment, number).value_or(QString::fromUtf8(english));
    if (count >= 0)
        text.replace(QLatin1String("%n"), QString::number(count));
    return text;
}

QString listed(const QStringList &parts)
{
    if (parts.size() < 2)
        return parts.join(QString());
    return translate("Words", "%1 and %2")
        .arg(parts.mid(0, parts.size() - 1).join(QStringLiteral(", ")), parts.last());
}

} // namespace kelvo
