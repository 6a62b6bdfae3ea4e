#pragma once

#include "setting_map.h"

#include <QChar>
#include <QSet>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

// The rules of a combo box with validation and history; its widget side is
// k_combo_box.h.
namespace kelvo {

inline const QString kInputHistoryFile = QStringLiteral("com.kelvo.print.inputhistory.plist");

enum KComboBoxKind : std::int32_t { kComboBoxNumeric = 1, kComboBoxText = 2 };

struct KComboBoxOptions
{
    std::int32_t kind = kComboBoxText;
    CFBundleRef bundle = nullptr;          // for the map's texts
    const SettingMap *map = nullptr;       // fixed items; may be null
    QString historyKey;                    // empty: no history
    int historyLimit = 0;                  // most items kept; 0 keeps all
    int minimumLength = 0;                 // of the typed text
    int maximumLength = -1;                // computed for the numeric kind; -1: none
    std::optional<QSet<char32_t>> allowed; // text kind; none: any character
    std::int32_t minimumValue = 0;         // numeric kind
    std::int32_t maximumValue = 0;         // numeric kind
};

// Digits of the maximum value, or 9 when that is below 1.
int maximumLengthForNumbers(std::int32_t maximumValue);

// The integer that `text` says in the user's locale, grouped or not; the largest
// one for more digits than 64 bits hold, none for what is no integer.
std::optional<std::int64_t> numberTyped(const QString &text);
// What a numeric field shows once it is left: a number below the minimum becomes
// the minimum, one above the maximum the maximum, in the user's locale. What is
// no number stays as it is.
QString withinRange(const QString &text, const KComboBoxOptions &options);

// Whether a stored item is offered now.
bool isValidHistoryItem(const QString &item, const KComboBoxOptions &options);

// The stored strings under `key`, most recent first; what is no string is left out.
QStringList readHistory(const QString &key);

// Adds `text` to the stored history, merged with the file as it is under the
// lock; a text that stands there stays where it is. False when the file could
// not be written.
bool saveHistory(const QString &key, const QString &text, int limit);

} // namespace kelvo
