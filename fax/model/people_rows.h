#pragma once

#include "fax_recipient_list.h"
#include "people.h"
#include "person_search.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

// Whom a picker shows and what it adds: people and groups as recipients of a fax.
namespace kelvo {

// A person at one of the fax numbers. Without first and last name the first name is the name
// that is shown; what the person does not have is absent.
FaxRecipient recipientFrom(const Person &person, const PersonNumber &number);

// One row: a group, or a person at one fax number.
struct PeopleRow
{
    bool isGroup = false;
    QString name, organization; // as they are shown
    // Whom it adds: one, or the members of a group, each at the first fax number.
    std::vector<FaxRecipient> recipients;
    QStringList withoutNumber; // names of members who have no fax number
};

// What can be picked from. Made on any thread; afterwards it only answers.
class PeopleToPick
{
public:
    PeopleToPick() = default;
    // Groups before people, both in their order.
    explicit PeopleToPick(const AddressBookContents &contents);
    // In their order, each as it was.
    explicit PeopleToPick(const std::vector<FaxRecipient> &recipients);

    struct Found
    {
        std::vector<int> rows;
        int withoutNumber = 0; // people who would be there, and have no fax number
    };
    Found find(const QString &typed) const; // all for blanks

    const PeopleRow &row(int index) const { return m_rows[static_cast<std::size_t>(index)]; }
    bool isEmpty() const { return m_rows.empty() && m_firstRows.size() < 2; }

private:
    std::vector<PeopleRow> m_rows; // of the groups, one each, and then of the people
    std::vector<int> m_firstRows;  // of each person, and where the last one's end
    PersonSearch m_search;
};

// Tells whether the same recipient (isSameRecipient()) is in a list, without going through it.
class RecipientSet
{
public:
    RecipientSet() = default;
    explicit RecipientSet(const FaxRecipientList &recipients);
    bool contains(const FaxRecipient &recipient) const;
    // All whom the row adds; false for a row that adds nobody.
    bool containsAll(const PeopleRow &row) const;
    // False where it was there already.
    bool add(const FaxRecipient &recipient);

private:
    QSet<QString> m_keys;
};

// What adding these rows comes to.
struct PeopleToAdd
{
    std::vector<FaxRecipient> recipients; // in the rows' order
    int alreadyThere = 0;                 // left out
    QStringList withoutNumber;            // members of groups, left out
    friend bool operator==(const PeopleToAdd &, const PeopleToAdd &) = default;
};
// One row of one person is added even where the list has the same one, since adding asks then.
// Of more, those who are there already are left out where it would ask (`isAsked`): nobody
// answers a hundred questions.
PeopleToAdd peopleToAdd(const std::vector<const PeopleRow *> &rows, const RecipientSet &inList,
                        bool isAsked);

} // namespace kelvo
