#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QValidator>

#include <optional>

class QLineEdit;
class QWidget;

namespace kelvo {

// What may be typed into a field. Lengths are characters (code points).
struct InputLimits
{
    int minimumLength = 0;
    int maximumLength = -1; // -1: no limit
    // None: any character. What no property list can hold (isKept()) never is.
    std::optional<QSet<char32_t>> allowed;
    QHash<char32_t, char32_t> substitutes; // of others, allowed ones that are taken instead
    int maximumBytes = -1;                 // of the text in UTF-8; -1: no limit
    bool ascii() const;                    // only printable ASCII is allowed

    static QSet<char32_t> setOf(const QString &characters);
    static const QSet<char32_t> &decimalDigits();
};

enum class InputProblem { None, TooShort, TooLong, BadCharacter };

// The first thing wrong with `text`, characters before lengths.
[[nodiscard]] InputProblem findProblem(const QString &text, const InputLimits &limits);

// What such a field takes, for a script's author: "it takes 1 to 12 digits". Empty without
// limits.
QString inWords(const InputLimits &limits);

// What of `typed` may stand: characters that are not allowed are left out or have
// a substitute, the rest is cut at the maximum. Used for typing and pasting.
QString withinLimits(const QString &typed, const InputLimits &limits);

// Keeps `field` (QLineEdit, an editable QComboBox or a QPlainTextEdit) within
// the limits while the user types and pastes: what is refused is not inserted,
// and the field says why in a tool tip. Texts set by code are not touched.
void setInputLimits(QWidget *field, const InputLimits &limits);
std::optional<InputLimits> inputLimits(const QWidget *field);

// Replaces the field's text as a user would type it; false when some of it was
// refused (the field then holds what was taken).
bool typeText(QWidget *field, const QString &text);

} // namespace kelvo
