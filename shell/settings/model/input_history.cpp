#include "input_history.h"

#include "preferences.h"
#include "ticket_values.h"

#include <QLocale>

#include <algorithm>
#include <limits>

namespace kelvo {

namespace {

// The digits of a number without a usable maximum.
constexpr int kDigitsWithoutMaximum = 9;

QStringList stringsIn(const Dictionary &histories, const QString &key)
{
    QStringList history;
    for (const QVariant &entry : array(histories, key).value_or(Array())) {
        if (const std::optional<QString> text = string(entry))
            history.append(*text);
    }
    return history;
}

bool isValidNumber(const QString &item, const KComboBoxOptions &options)
{
    const std::optional<std::int64_t> value = numberTyped(item);
    return value && *value >= options.minimumValue && *value <= options.maximumValue;
}

bool isValidText(const QString &item, const KComboBoxOptions &options)
{
    const QList<uint> characters = item.toUcs4();
    if (characters.size() < options.minimumLength
        || (options.maximumLength >= 0 && characters.size() > options.maximumLength))
        return false;
    return !options.allowed
        || std::all_of(characters.begin(), characters.end(),
                       [&options](uint c) { return options.allowed->contains(c); });
}

} // namespace

int maximumLengthForNumbers(std::int32_t maximumValue)
{
    return maximumValue < 1 ? kDigitsWithoutMaximum : CountDigits(maximumValue);
}

std::optional<std::int64_t> numberTyped(const QString &text)
{
    // Latin digits work in every locale.
    for (const QLocale &locale : {QLocale(), QLocale::c()}) {
        bool ok = false;
        const qint64 value = locale.toLongLong(text, &ok);
        if (ok)
            return value;
    }
    const bool tooLong = !text.isEmpty()
        && std::all_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
    return tooLong ? std::optional(std::numeric_limits<std::int64_t>::max()) : std::nullopt;
}

QString withinRange(const QString &text, const KComboBoxOptions &options)
{
    const std::optional<std::int64_t> value = numberTyped(text);
    if (value && *value < options.minimumValue)
        return QLocale().toString(options.minimumValue);
    if (value && *value > options.maximumValue)
        return QLocale().toString(options.maximumValue);
    return text;
}

bool isValidHistoryItem(const QString &item, const KComboBoxOptions &options)
{
    switch (options.kind) {
    case kComboBoxNumeric:
        return isValidNumber(item, options);
    case kComboBoxText:
        return isValidText(item, options);
    default:
        return true;
    }
}

QStringList readHistory(const QString &key)
{
    return stringsIn(CopyUserPreferences(kInputHistoryFile).value_or(Dictionary()), key);
}

bool saveHistory(const QString &key, const QString &text, int limit)
{
    return ChangeUserPreferences(kInputHistoryFile, [&](Dictionary &histories) {
        const QStringList history = stringsIn(histories, key);
        if (history.contains(text)) // another dialog saved it since
            return false;
        // What is no text stays: another version of this program may read it.
        Array changed = array(histories.value(key)).value_or(Array());
        changed.prepend(text);
        if (limit > 0 && changed.size() > limit)
            changed.resize(limit);
        histories.insert(key, changed);
        return true;
    });
}

} // namespace kelvo
