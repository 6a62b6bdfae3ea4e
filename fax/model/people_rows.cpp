#include "people_rows.h"

#include "fax_texts.h"

#include <algorithm>

namespace kelvo {

namespace {

FaxString present(const QString &text)
{
    return text.isEmpty() ? FaxString() : FaxString(text);
}

// The preferred phone number is the first one.
FaxString phoneNumberOf(const Person &person)
{
    for (const PersonNumber &number : person.numbers) {
        if (number.kind == PersonNumber::Kind::Phone)
            return present(number.number);
    }
    return {};
}

bool isFaxNumber(const PersonNumber &number)
{
    return number.kind == PersonNumber::Kind::Fax
        && !CopyDialingStringFromFaxNumber(number.number).isEmpty();
}

PeopleRow rowOf(const PeopleGroup &group)
{
    PeopleRow row{.isGroup = true, .name = group.name};
    for (const Person &member : group.members) {
        const auto number = std::ranges::find_if(member.numbers, isFaxNumber);
        if (number == member.numbers.end())
            row.withoutNumber.append(member.fullName);
        else
            row.recipients.push_back(recipientFrom(member, *number));
    }
    return row;
}

// For the search, which knows people.
Person personOf(const FaxRecipient &recipient)
{
    Person person;
    person.fullName = DisplayNameFromRecipient(&recipient);
    person.organization = recipient.organization().value_or(QString());
    if (recipient.emailAddress())
        person.emailAddresses.append(*recipient.emailAddress());
    person.numbers.push_back({.kind = PersonNumber::Kind::Fax,
                              .label = {},
                              .number = recipient.faxNumber().value_or(QString())});
    return person;
}

void appendPart(QString &key, const FaxString &text)
{
    // Lengths keep two texts apart, and -1 an absent one from an empty one.
    key += QString::number(text ? text->size() : -1) + u':' + text.value_or(QString());
}

QString keyOf(const FaxRecipient &recipient)
{
    QString key;
    appendPart(key, recipient.firstName());
    appendPart(key, recipient.lastName());
    appendPart(key, recipient.faxNumber());
    return key;
}

} // namespace

FaxRecipient recipientFrom(const Person &person, const PersonNumber &number)
{
    FaxRecipient recipient(present(person.firstName), present(person.lastName),
                           present(number.number));
    if (!recipient.firstName() && !recipient.lastName())
        recipient.setFirstName(present(person.fullName));
    recipient.setFaxNumberLabel(present(number.label));
    recipient.setOrganization(present(person.organization));
    recipient.setPhoneNumber(phoneNumberOf(person));
    recipient.setEmailAddress(present(person.emailAddresses.value(0)));
    recipient.setMailbox(present(person.mailbox));
    recipient.setUID(present(person.uid));
    return recipient;
}

PeopleToPick::PeopleToPick(const AddressBookContents &contents)
    : m_search(contents)
{
    std::ranges::transform(contents.groups, std::back_inserter(m_rows), rowOf);
    for (const Person &person : contents.people) {
        m_firstRows.push_back(static_cast<int>(m_rows.size()));
        for (const PersonNumber &number : person.numbers) {
            if (isFaxNumber(number))
                m_rows.push_back({.name = person.fullName,
                                  .organization = person.organization,
                                  .recipients = {recipientFrom(person, number)}});
        }
    }
    m_firstRows.push_back(static_cast<int>(m_rows.size()));
}

PeopleToPick::PeopleToPick(const std::vector<FaxRecipient> &recipients)
{
    AddressBookContents contents;
    for (const FaxRecipient &recipient : recipients) {
        const Person person = personOf(recipient);
        m_firstRows.push_back(static_cast<int>(m_rows.size()));
        m_rows.push_back({.name = person.fullName,
                          .organization = person.organization,
                          .recipients = {recipient}});
        contents.people.push_back(person);
    }
    m_firstRows.push_back(static_cast<int>(m_rows.size()));
    m_search = PersonSearch(contents);
}

PeopleToPick::Found PeopleToPick::find(const QString &typed) const
{
    const PersonSearch::Hits hits = m_search.find(typed);
    Found found{.rows = hits.groups}; // a group's row has its index
    for (const int person : hits.people) {
        const auto index = static_cast<std::size_t>(person);
        for (int row = m_firstRows[index]; row < m_firstRows[index + 1]; ++row)
            found.rows.push_back(row);
        if (m_firstRows[index] == m_firstRows[index + 1])
            ++found.withoutNumber;
    }
    return found;
}

RecipientSet::RecipientSet(const FaxRecipientList &recipients)
{
    for (long i = 0; i < recipients.count(); ++i)
        add(*recipients.recipientAtIndex(i));
}

bool RecipientSet::contains(const FaxRecipient &recipient) const
{
    return m_keys.contains(keyOf(recipient));
}

bool RecipientSet::containsAll(const PeopleRow &row) const
{
    return !row.recipients.empty()
        && std::ranges::all_of(
            row.recipients, [this](const FaxRecipient &recipient) { return contains(recipient); });
}

bool RecipientSet::add(const FaxRecipient &recipient)
{
    const qsizetype before = m_keys.size();
    m_keys.insert(keyOf(recipient));
    return m_keys.size() > before;
}

PeopleToAdd peopleToAdd(const std::vector<const PeopleRow *> &rows, const RecipientSet &inList,
                        bool isAsked)
{
    PeopleToAdd adding;
    const bool isOne = rows.size() == 1 && !rows.front()->isGroup;
    RecipientSet taken = inList;
    for (const PeopleRow *row : rows) {
        adding.withoutNumber += row->withoutNumber;
        for (const FaxRecipient &recipient : row->recipients) {
            if (taken.add(recipient) || isOne || !isAsked)
                adding.recipients.push_back(recipient);
            else
                ++adding.alreadyThere;
        }
    }
    return adding;
}

} // namespace kelvo
