#include "entry_words.h"

#include "values.h"

#include <optional>

namespace kelvo {

namespace {

// Labels and items stand on controls too, with mnemonics.
QString plainText(const Bundle &bundle, const QString &key)
{
    return bundle.findString(key, QStringLiteral("Localizable")).value_or(key).remove(u'&');
}

std::optional<std::int64_t> numberAt(const Ticket &ticket, const QString &path)
{
    QStringList steps = path.split(u'/');
    const auto entry = ticket.entries.find(steps.takeFirst());
    if (entry == ticket.entries.end())
        return std::nullopt;
    QVariant value = entry->second.value;
    for (const QString &step : steps)
        value = dictionary(value).value_or(Dictionary()).value(step);
    return integer64(value);
}

} // namespace

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
        const auto values = dictionary(row, QStringLiteral("Values"));
        if (!path || !label || !values)
            continue;
        EntryWords entry{*path, plainText(*bundle, *label), {}};
        for (auto value = values->cbegin(); value != values->cend(); ++value) {
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
        const auto number = numberAt(printSettings, entry.path);
        const auto value = number ? entry.values.constFind(*number) : entry.values.constEnd();
        if (value != entry.values.constEnd())
            lines << entry.label + u' ' + *value;
    }
    return lines;
}

} // namespace kelvo
