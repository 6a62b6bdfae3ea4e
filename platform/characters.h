#pragma once

#include <QChar>
#include <QString>
#include <QStringView>

// What strangers' texts are made of. A lone surrogate is a character here: it
// stands in texts and is none of Unicode's.
namespace kelvo {

// Calls `take` with each character of `text` in turn.
template <typename Take>
void eachCharacter(QStringView text, Take take)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            take(QChar::surrogateToUcs4(text[i], text[i + 1]));
            ++i;
        } else {
            take(char32_t(text[i].unicode()));
        }
    }
}

// Whether it shows, and as itself: no control character, no line end, nothing that
// turns the direction of text or is not seen. Seen are the joiners U+200C and
// U+200D too, which Arabic, Indic and emoji texts are spelled with.
bool isSeen(char32_t c);

// Whether a property list, and so a ticket and every file of ours, can hold it: it
// is a Char of XML 1.0.
bool isKept(char32_t c);

// What capitals, accents and forms of the same letter have in common, for searches.
QString folded(const QString &text);

} // namespace kelvo
