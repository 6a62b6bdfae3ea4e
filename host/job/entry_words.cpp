#include "entry_words.h"

#include "values.h"

#include <algorithm>

namespace kelvo {

namespace {

// Invalid where there is none.
QVariant valueAt(const Ticket &ticket, const QString &path)
{
    QStringList steps = path.split(u'/');
    const auto entry = ticket.entries.find(steps.takeFirst());
    if (entry == ticket.entries.end())
        return {};
    QVariant value = entry->second.value;
    for (const QString &step : steps)
        value = dictionary(value).value_or(Dictionary()).value(step);
    return value;
}

QString rangeWords(const QVariant &range, const EntryWords &words)
{
    const Dictionary in = dictionary(range).value_or(Dictionary());
    const auto first = integer64(in, words.firstPage);
    const auto last = integer64(in, words.lastPage);
    if (!first || !last)
        return QStringLiteral("?");
    const QString begin = QString::number(*first);
    if (*last < *first)
        return begin + QStringLiteral(" (no page)");
    return first == last ? begin : begin + u'–' + QString::number(*last);
}

QString arrayWords(const Array &elements, const EntryWords &words)
{
    if (words.firstPage.isEmpty())
        return QString::number(elements.size());
    constexpr qsizetype mostListed = 8;
    QStringList ranges;
    for (const QVariant &element : elements.first(std::min(elements.size(), mostListed)))
        ranges << rangeWords(element, words);
    const QString listed = ranges.join(QStringLiteral(", "));
    const qsizetype left = elements.size() - ranges.size();
    return left == 0 ? listed : QStringLiteral("%1 and %2 more").arg(listed).arg(left);
}

// Empty where nothing is to be said.
QString wordsFor(const QVariant &value, const EntryWords &words)
{
    if (const auto number = integer64(value))
        return words.values.value(*number);
    const auto elements = array(value);
    return elements && !elements->isEmpty() ? arrayWords(*elements, words) : QString();
}

} // namespace

QString plainText(const Bundle &bundle, const QString &key)
{
    return bundle.findString(key, QStringLiteral("Localizable")).value_or(key).remove(u'&');
}

std::vector<EntryWords> entryWordsOf(const Bundle *bundle)
{
    std::vector<EntryWords> words;
    if (!bundle)
        return words;
    const Array rows = array(bundle->info(), QStringLiteral("KelvoEntryWords")).value_or(Array());
    for (const QVariant &each : rows) {
        const Dictionary row = dictionary(each).value_or(Dictionary());
        const auto path = string(row, QStringLiteral("Entry"));
        const auto label = string(row, QStringLiteral("Label"));
        if (!path || !label)
            continue;
        EntryWords entry{.path = *path, .label = plainText(*bundle, *label)};
        entry.firstPage = string(row, QStringLiteral("FirstPage")).value_or(QString());
        entry.lastPage = string(row, QStringLiteral("LastPage")).value_or(QString());
        const Dictionary values = dictionary(row, QStringLiteral("Values")).value_or(Dictionary());
        for (auto value = values.cbegin(); value != values.cend(); ++value) {
            bool isNumber = false;
            const qlonglong number = value.key().toLongLong(&isNumber);
            if (const auto key = string(value.value()); isNumber && key)
                entry.values.insert(number, plainText(*bundle, *key));
        }
        words.push_back(std::move(entry));
    }
    return words;
}

QStringList entriesInWords(const Ticket &printSettings, const std::vector<EntryWords> &words)
{
    QStringList lines;
    for (const EntryWords &entry : words) {
        const QString text = wordsFor(valueAt(printSettings, entry.path), entry);
        if (!text.isEmpty())
            lines << entry.label + u' ' + text;
    }
    return lines;
}

} // namespace kelvo
