#pragma once

#include "people.h"
#include "values.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace kelvo {

// The keys of a recipient in tickets.
inline const QString kFaxRecipientFirstNameProperty = QStringLiteral("FirstName");
inline const QString kFaxRecipientLastNameProperty = QStringLiteral("LastName");
inline const QString kFaxRecipientFaxNumberProperty = QStringLiteral("FaxNumber");
inline const QString kFaxRecipientFaxNumberLabelProperty = QStringLiteral("FaxNumberLabel");
inline const QString kFaxRecipientOrganizationProperty = QStringLiteral("Organization");
inline const QString kFaxRecipientPhoneNumberProperty = QStringLiteral("PhoneNumber");
inline const QString kFaxRecipientEmailAddressProperty = QStringLiteral("EmailAddress");
inline const QString kFaxRecipientMailboxProperty = QStringLiteral("Mailbox");
inline const QString kFaxRecipientUIDProperty = QStringLiteral("UID");

using FaxString = std::optional<QString>; // absent and empty are two states

// One whom a fax is sent to. Counted: whoever holds one has a reference, and gives it back by
// FaxRecipientRelease(). Counts are plain numbers: all of one recipient is on one thread.
class FaxRecipient
{
public:
    FaxRecipient() = default; // all absent; one reference, the maker's
    FaxRecipient(FaxString firstName, FaxString lastName, FaxString faxNumber);
    explicit FaxRecipient(const Dictionary &ticket);
    FaxRecipient(const FaxRecipient &other);            // one reference, whatever the other has
    FaxRecipient &operator=(const FaxRecipient &other); // all but the references
    ~FaxRecipient() = default;

    const FaxString &firstName() const { return m_firstName; }
    const FaxString &lastName() const { return m_lastName; }
    const FaxString &faxNumber() const { return m_faxNumber; }           // as it was typed
    const FaxString &faxNumberLabel() const { return m_faxNumberLabel; } // PersonNumber::label
    const FaxString &organization() const { return m_organization; }
    const FaxString &phoneNumber() const { return m_phoneNumber; }
    const FaxString &emailAddress() const { return m_emailAddress; }
    const FaxString &mailbox() const { return m_mailbox; } // of the device
    const FaxString &uid() const { return m_uid; }         // in the address book, once known

    void setFirstName(const FaxString &text) { m_firstName = text; }
    void setLastName(const FaxString &text) { m_lastName = text; }
    void setFaxNumber(const FaxString &text) { m_faxNumber = text; }
    void setFaxNumberLabel(const FaxString &text) { m_faxNumberLabel = text; }
    void setOrganization(const FaxString &text) { m_organization = text; }
    void setPhoneNumber(const FaxString &text) { m_phoneNumber = text; }
    void setEmailAddress(const FaxString &text) { m_emailAddress = text; }
    void setMailbox(const FaxString &text) { m_mailbox = text; }
    void setUID(const FaxString &text) { m_uid = text; }

    // The new count. release() destroys nothing.
    std::uint32_t retain() { return ++m_references; }
    std::uint32_t release() { return --m_references; }
    std::uint32_t references() const { return m_references; }

    // Keys of what is present. A key that is missing, or holds no string, makes its field
    // absent; null changes nothing.
    Dictionary toTicket() const;
    void fromTicket(const Dictionary *ticket);

    // The person of the uid; NotFound without one. Blocks.
    Result<Person> abRecord(AddressBook::Flag cancelled = nullptr) const;
    // Adds a person, with the first name alone, whether there is one already or not, and takes
    // its uid. False, and nothing is changed, where the address book does not take it. Blocks.
    bool commitToAddressBook(AddressBook::Flag cancelled = nullptr);

    // All nine texts, not the references.
    friend bool operator==(const FaxRecipient &a, const FaxRecipient &b);

private:
    FaxString m_firstName, m_lastName, m_faxNumber, m_faxNumberLabel, m_organization, m_phoneNumber,
        m_emailAddress, m_mailbox, m_uid;
    std::uint32_t m_references = 1;
};

void FaxRecipientRetain(FaxRecipient *recipient);
void FaxRecipientRelease(FaxRecipient *recipient); // the last one destroys it

// Of sequences that hold references; the allocator is not used.
const void *FaxRecipientRetainCallback(const void *allocator, const void *recipient);
void FaxRecipientReleaseCallback(const void *allocator, const void *recipient);

struct FaxRecipientArrayCallbacks
{
    const void *(*retain)(const void *allocator, const void *recipient);
    void (*release)(const void *allocator, const void *recipient);
};
inline constexpr FaxRecipientArrayCallbacks kFaxRecipientCFArrayCallbacks{
    FaxRecipientRetainCallback, FaxRecipientReleaseCallback};

// First name, last name and number agree to the letter: both absent, or both there and equal.
bool isSameRecipient(const FaxRecipient &a, const FaxRecipient &b);

} // namespace kelvo
