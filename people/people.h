#pragma once

#include "folders.h"
#include "result.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <optional>
#include <vector>

// People that the user knows: in the desktop's address book, and in files of others. The
// address book (evolution-data-server) is asked by a library of its own, which is opened with
// the first question.
namespace kelvo {

struct PersonNumber
{
    enum class Kind { Fax, Phone };
    Kind kind = Kind::Phone;
    QString label;  // "work", "home", "other", or the user's own word
    QString number; // as it stands there
    friend bool operator==(const PersonNumber &, const PersonNumber &) = default;
};

// Texts are as they stand in the address book or file; what is not there is empty.
struct Person
{
    QString uid;      // in the address book; empty: not out of it
    QString fullName; // as it is shown
    QString firstName, lastName, organization;
    QStringList emailAddresses;        // the preferred one first
    std::vector<PersonNumber> numbers; // of each kind the preferred one first
    QString mailbox;                   // of the device, that faxes are delivered to
    friend bool operator==(const Person &, const Person &) = default;
};

struct PeopleGroup
{
    QString uid, name;
    std::vector<Person> members; // those that the address book has
    friend bool operator==(const PeopleGroup &, const PeopleGroup &) = default;
};

struct AddressBookContents
{
    std::vector<Person> people; // by name, in the user's order of letters
    std::vector<PeopleGroup> groups;
    QStringList unread; // books that do not answer while others do: "NAME: why"
};

// What is written of a new person; what is absent is not.
struct NewPerson
{
    std::optional<QString> firstName, faxNumber, phoneNumber, emailAddress, organization, mailbox;
};

// The user's address book: the one that new people go to, and for reading all that are
// enabled. Calls block, for ever where a service hangs, so a window asks on another thread; a
// call ends with Cancelled soon after `cancelled` becomes true. NotFound where no address book
// answers; each Error says what and what to do. All calls can come on any thread.
class AddressBook
{
public:
    using Flag = const std::atomic_bool *; // null: never

    // Whether one would answer. Starts nothing, waits at most a second.
    virtual Result<void> find(Flag cancelled = nullptr) const = 0;

    virtual Result<AddressBookContents> read(Flag cancelled = nullptr) const = 0;
    // NotFound where nobody has that uid.
    virtual Result<Person> person(const QString &uid, Flag cancelled = nullptr) const = 0;
    // The user's own card; none where the user has made none.
    virtual Result<std::optional<Person>> ownCard(Flag cancelled = nullptr) const = 0;

    // The new one's uid. Never looks for one that is there.
    virtual Result<QString> addPerson(const NewPerson &person, Flag cancelled = nullptr) const = 0;
    // A group without members; its uid.
    virtual Result<QString> addGroup(const QString &name, Flag cancelled = nullptr) const = 0;
    // Replaces the members; people who are not there are left out.
    virtual Result<void> setMembers(const QString &groupUid, const QStringList &personUids,
                                    Flag cancelled = nullptr) const = 0;

protected:
    ~AddressBook() = default; // lives in its library
};

// That of the library in `folder`, opened when it is not yet and never closed; any thread.
// NotFound (it is a package of its own), NotReadable (something that it needs is missing) or
// Damaged (of another version) say the file and what to do; the next call looks again.
Result<const AddressBook *> addressBook(const QString &folder = libraryFolder());

// The attribute of a card that has the mailbox; "com.kelvo.mailbox" as cards spell names.
inline constexpr char kMailboxAttribute[] = "X-COM-KELVO-MAILBOX";

} // namespace kelvo
