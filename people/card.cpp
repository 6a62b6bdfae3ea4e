#include "card.h"

#include "characters.h"

#include <QHash>
#include <QUrl>

#include <algorithm>

namespace kelvo {

namespace {

// All of a value that has no parts: a semicolon in it is one.
QString textOf(const CardProperty &property)
{
    return shownText(property.values.join(u';'));
}

QString partOf(const CardProperty &property, int part)
{
    return shownText(property.values.value(part));
}

// "tel:+1-555-0100;ext=2" as people write it.
QString numberOf(const CardProperty &property)
{
    const QString text = textOf(property);
    if (!text.startsWith(QLatin1String("tel:"), Qt::CaseInsensitive))
        return text;
    const QStringList parts = text.sliced(4).split(u';');
    QString number = QUrl::fromPercentEncoding(parts.first().toUtf8());
    for (const QString &part : parts.sliced(1)) {
        if (part.startsWith(QLatin1String("ext="), Qt::CaseInsensitive))
            number += QLatin1String(" x") + QUrl::fromPercentEncoding(part.sliced(4).toUtf8());
    }
    return shownText(number);
}

// The users' own words, by group in small letters. Words of the program that wrote the card
// stand in "_$!<HomeFAX>!$_".
using Labels = QHash<QString, QString>;

Labels ownLabels(const std::vector<CardProperty> &card)
{
    Labels labels;
    for (const CardProperty &property : card) {
        if (property.name != QLatin1String("X-ABLABEL") || property.group.isEmpty())
            continue;
        QString label = textOf(property);
        if (label.startsWith(QLatin1String("_$!<")) && label.endsWith(QLatin1String(">!$_")))
            label = label.sliced(4).chopped(4);
        labels.insert(property.group.toLower(), label);
    }
    return labels;
}

QString labelOf(const QStringList &types, const QString &own)
{
    // "Work Fax" is no more than "work".
    QString word = own.toLower();
    word.remove(QLatin1String("telefax")).remove(QLatin1String("fax"));
    word = word.simplified();
    for (const QLatin1String known :
         {QLatin1String("work"), QLatin1String("home"), QLatin1String("other")}) {
        if (word == known)
            return word;
    }
    if (!word.isEmpty())
        return own;
    if (types.contains(QLatin1String("WORK")))
        return QStringLiteral("work");
    return types.contains(QLatin1String("HOME")) ? QStringLiteral("home") : QStringLiteral("other");
}

// Nobody answers at one of these, and no fax either.
bool isNoTelephone(const QStringList &types)
{
    return types.contains(QLatin1String("PAGER")) || types.contains(QLatin1String("MODEM"))
        || types.contains(QLatin1String("BBS"));
}

void takeNumber(Person &person, const Labels &labels, const CardProperty &property)
{
    const QString number = numberOf(property);
    const QString own = labels.value(property.group.toLower());
    const bool isFax = property.types.contains(QLatin1String("FAX"))
        || own.contains(QLatin1String("fax"), Qt::CaseInsensitive);
    if (number.isEmpty() || (!isFax && isNoTelephone(property.types)))
        return;
    person.numbers.push_back({isFax ? PersonNumber::Kind::Fax : PersonNumber::Kind::Phone,
                              labelOf(property.types, own), number});
}

} // namespace

void CardProperty::addType(const QString &word)
{
    const QString type = word.trimmed().toUpper();
    if (type == QLatin1String("PREF"))
        preference = 1;
    else
        types << type;
}

void CardProperty::setPreference(const QString &text)
{
    if (const int number = text.toInt(); number >= 1 && number <= 100)
        preference = number;
}

QString shownText(const QString &text)
{
    QString shown;
    shown.reserve(text.size());
    eachCharacter(text, [&shown](char32_t c) {
        if (c == U'\n' || c == U'\r' || c == U'\t')
            shown += u' ';
        else if (isKept(c) && QChar::category(c) != QChar::Other_Control)
            shown += QStringView(QChar::fromUcs4(c));
    });
    return shown.trimmed();
}

Person personOf(const std::vector<CardProperty> &card)
{
    std::vector<const CardProperty *> properties;
    properties.reserve(card.size());
    for (const CardProperty &property : card)
        properties.push_back(&property);
    std::ranges::stable_sort(properties, {}, &CardProperty::preference);

    const Labels labels = ownLabels(card);
    Person person;
    for (const CardProperty *property : properties) {
        const QString &name = property->name;
        // Of several, such as one in another script, the preferred one.
        if (name == QLatin1String("N") && person.firstName.isEmpty() && person.lastName.isEmpty()) {
            person.lastName = partOf(*property, 0);
            person.firstName = partOf(*property, 1);
        } else if (name == QLatin1String("FN") && person.fullName.isEmpty()) {
            person.fullName = textOf(*property);
        } else if (name == QLatin1String("ORG") && person.organization.isEmpty()) {
            person.organization = partOf(*property, 0);
        } else if (name == QLatin1String(kMailboxAttribute)) {
            person.mailbox = textOf(*property);
        } else if (name == QLatin1String("TEL")) {
            takeNumber(person, labels, *property);
        } else if (name == QLatin1String("EMAIL")) {
            if (const QString address = textOf(*property); !address.isEmpty())
                person.emailAddresses << address;
        }
    }
    if (person.firstName.isEmpty() && person.lastName.isEmpty())
        person.firstName = person.fullName;
    if (person.fullName.isEmpty())
        person.fullName = (person.firstName + u' ' + person.lastName).trimmed();
    for (const QString &other : {person.organization, person.emailAddresses.value(0)}) {
        if (person.fullName.isEmpty())
            person.fullName = other;
    }
    return person;
}

} // namespace kelvo
