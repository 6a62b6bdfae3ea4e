#include "characters.h"

#include <algorithm>

namespace kelvo {

bool isSeen(char32_t c)
{
    constexpr char32_t nonJoiner = 0x200C, joiner = 0x200D;
    switch (QChar::category(c)) {
    case QChar::Other_Control:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    case QChar::Other_Format:
        return c == nonJoiner || c == joiner;
    default:
        return true;
    }
}

bool isKept(char32_t c)
{
    if (c < 0x20)
        return c == '\t' || c == '\n' || c == '\r';
    return !QChar::isSurrogate(c) && c != 0xFFFE && c != 0xFFFF && c <= QChar::LastValidCodePoint;
}

QString folded(const QString &text)
{
    if (std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; }))
        return text.toLower();
    // Capitals first: there are letters of which two become.
    const QString parts = text.normalized(QString::NormalizationForm_KD).toUpper().toCaseFolded();
    QString plain;
    plain.reserve(parts.size());
    eachCharacter(parts, [&plain](char32_t c) {
        if (QChar::category(c) != QChar::Mark_NonSpacing)
            plain += QStringView(QChar::fromUcs4(c));
    });
    return plain;
}

} // namespace kelvo
