#include "fax_recipient.h"

#include <iterator>

namespace kelvo {

namespace {

// The texts of a recipient, in the order in which tickets name them.
struct Field
{
    const QString &key;
    const FaxString &(FaxRecipient::*get)() const;
    void (FaxRecipient::*set)(const FaxString &);
};

constexpr Field fields[] = {
    {kFaxRecipientFirstNameProperty, &FaxRecipient::firstName, &FaxRecipient::setFirstName},
    {kFaxRecipientLastNameProperty, &FaxRecipient::lastName, &FaxRecipient::setLastName},
    {kFaxRecipientFaxNumberProperty, &FaxRecipient::faxNumber, &FaxRecipient::setFaxNumber},
    {kFaxRecipientFaxNumberLabelProperty, &FaxRecipient::faxNumberLabel,
     &FaxRecipient::setFaxNumberLabel},
    {kFaxRecipientOrganizationProperty, &FaxRecipient::organization,
     &FaxRecipient::setOrganization},
    {kFaxRecipientPhoneNumberProperty, &FaxRecipient::phoneNumber, &FaxRecipient::setPhoneNumber},
    {kFaxRecipientEmailAddressProperty, &FaxRecipient::emailAddress,
     &FaxRecipient::setEmailAddress},
    {kFaxRecipientMailboxProperty, &FaxRecipient::mailbox, &FaxRecipient::setMailbox},
    {kFaxRecipientUIDProperty, &FaxRecipient::uid, &FaxRecipient::setUID},
};

} // namespace

FaxRecipient::FaxRecipient(FaxString firstName, FaxString lastName, FaxString faxNumber)
    : m_firstName(std::move(firstName))
    , m_lastName(std::move(lastName))
    , m_faxNumber(std::move(faxNumber))
{
}

FaxRecipient::FaxRecipient(const Dictionary &ticket)
{
    fromTicket(&ticket);
}

FaxRecipient::FaxRecipient(const FaxRecipient &other)
{
    *this = other;
}

FaxRecipient &FaxRecipient::operator=(const FaxRecipient &other)
{
    for (const Field &field : fields)
        (this->*field.set)((other.*field.get)());
    return *this;
}

Dictionary FaxRecipient::toTicket() const
{
    Dictionary ticket;
    for (const Field &field : fields) {
        if (const FaxString &text = (this->*field.get)())
            ticket.insert(field.key, *text);
    }
    return ticket;
}

void FaxRecipient::fromTicket(const Dictionary *ticket)
{
    if (!ticket)
        return;
    for (const Field &field : fields)
        (this->*field.set)(string(*ticket, field.key));
}

Result<Person> FaxRecipient::abRecord(AddressBook::Flag cancelled) const
{
    if (!m_uid)
        return Error{Error::Code::NotFound, {}, {}};
    const Result<const AddressBook *> book = addressBook();
    return book ? book.value()->person(*m_uid, cancelled) : book.error();
}

bool FaxRecipient::commitToAddressBook(AddressBook::Flag cancelled)
{
    const Result<const AddressBook *> book = addressBook();
    if (!book)
        return false;
    const Result<QString> uid = book.value()->addPerson(
        {m_firstName, m_faxNumber, m_phoneNumber, m_emailAddress, m_organization, m_mailbox},
        cancelled);
    if (!uid)
        return false;
    m_uid = uid.value();
    return true;
}

bool operator==(const FaxRecipient &a, const FaxRecipient &b)
{
    return std::all_of(std::begin(fields), std::end(fields),
                       [&](const Field &field) { return (a.*field.get)() == (b.*field.get)(); });
}

void FaxRecipientRetain(FaxRecipient *recipient)
{
    recipient->retain();
}

void FaxRecipientRelease(FaxRecipient *recipient)
{
    if (recipient->release() == 0)
        delete recipient;
}

const void *FaxRecipientRetainCallback(const void * /*allocator*/, const void *recipient)
{
    FaxRecipientRetain(static_cast<FaxRecipient *>(const_cast<void *>(recipient)));
    return recipient;
}

void FaxRecipientReleaseCallback(const void * /*allocator*/, const void *recipient)
{
    FaxRecipientRelease(static_cast<FaxRecipient *>(const_cast<void *>(recipient)));
}

bool isSameRecipient(const FaxRecipient &a, const FaxRecipient &b)
{
    // Numbers differ soonest, and long lists are compared one with each other.
    return a.faxNumber() == b.faxNumber() && a.firstName() == b.firstName()
        && a.lastName() == b.lastName();
}

} // namespace kelvo
