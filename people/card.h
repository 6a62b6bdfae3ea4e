#pragma once

#include "people.h"

#include <QString>
#include <QStringList>

#include <vector>

// What a card says of a person, whoever has read the card: a file's reader, or the address
// book, whose people are cards too.
namespace kelvo {

// One property of a card. Its texts are decoded, and as strangers wrote them.
struct CardProperty
{
    QString group;        // "item1": what belongs together; mostly empty
    QString name;         // in capitals: "TEL"
    QStringList types;    // in capitals: "WORK", "FAX"
    int preference = 101; // 1, the first, to 100; more: none
    QStringList values;   // between semicolons

    void addType(const QString &word);       // as the card spells it; "pref" is a preference
    void setPreference(const QString &text); // a number from 1 to 100; else nothing
};

// A text as it is shown and kept: on one line, without what no property list can hold and
// without control characters.
QString shownText(const QString &text);

// Of N, FN, ORG, EMAIL, TEL with X-ABLABEL, and the mailbox; the rest is nothing to us. A name
// that is missing is made of what there is, an organization or an e-mail address last. Without
// a uid.
Person personOf(const std::vector<CardProperty> &card);

} // namespace kelvo
