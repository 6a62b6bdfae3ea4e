#include "fax_recipient_list.h"

#include <algorithm>
#include <utility>

namespace kelvo {

FaxRecipientList::FaxRecipientList(const Array &ticket)
{
    fromTicket(&ticket);
}

FaxRecipientList::FaxRecipientList(const FaxRecipientList &other)
{
    m_recipients.reserve(other.m_recipients.size());
    for (const FaxRecipient *recipient : other.m_recipients)
        m_recipients.push_back(new FaxRecipient(*recipient));
}

FaxRecipientList &FaxRecipientList::operator=(const FaxRecipientList &other)
{
    FaxRecipientList copy(other);
    m_recipients.swap(copy.m_recipients);
    return *this;
}

FaxRecipientList::FaxRecipientList(FaxRecipientList &&other) noexcept
    : m_recipients(std::exchange(other.m_recipients, {}))
{
}

FaxRecipientList &FaxRecipientList::operator=(FaxRecipientList &&other) noexcept
{
    m_recipients.swap(other.m_recipients);
    return *this;
}

FaxRecipientList::~FaxRecipientList()
{
    removeAll();
}

FaxRecipient *FaxRecipientList::recipientAtIndex(long index) const
{
    return index >= 0 && index < count() ? m_recipients[static_cast<std::size_t>(index)] : nullptr;
}

void FaxRecipientList::removeAtIndex(long index)
{
    FaxRecipient *recipient = recipientAtIndex(index);
    if (!recipient)
        return;
    m_recipients.erase(m_recipients.begin() + index);
    kFaxRecipientCFArrayCallbacks.release(nullptr, recipient);
}

void FaxRecipientList::removeAll()
{
    for (const FaxRecipient *recipient : std::exchange(m_recipients, {}))
        kFaxRecipientCFArrayCallbacks.release(nullptr, recipient);
}

void FaxRecipientList::insertAtIndex(FaxRecipient *recipient, long index)
{
    if (!recipient || index < 0 || index > count())
        return;
    m_recipients.insert(m_recipients.begin() + index, recipient);
    kFaxRecipientCFArrayCallbacks.retain(nullptr, recipient);
}

void FaxRecipientList::append(FaxRecipient *recipient)
{
    insertAtIndex(recipient, count());
}

void FaxRecipientList::remove(const FaxRecipient *recipient)
{
    // The index moves on after a removal, too: the entry that comes into the place is not
    // looked at.
    for (long i = 0; i < count(); ++i) {
        if (recipientAtIndex(i) == recipient)
            removeAtIndex(i);
    }
}

bool FaxRecipientList::containsRecipient(const FaxRecipient *recipient) const
{
    return recipient && std::ranges::any_of(m_recipients, [recipient](const FaxRecipient *other) {
               return isSameRecipient(*recipient, *other);
           });
}

Array FaxRecipientList::toTicket() const
{
    Array ticket;
    ticket.reserve(count());
    for (const FaxRecipient *recipient : m_recipients)
        ticket.append(recipient->toTicket());
    return ticket;
}

void FaxRecipientList::fromTicket(const Array *ticket)
{
    removeAll();
    if (!ticket)
        return;
    m_recipients.reserve(static_cast<std::size_t>(ticket->size()));
    for (const QVariant &element : *ticket)
        m_recipients.push_back(new FaxRecipient(dictionary(element).value_or(Dictionary())));
}

bool FaxRecipientList::saveAsABGroupWithName(const QString &name, AddressBook::Flag cancelled)
{
    const Result<const AddressBook *> book = addressBook();
    const Result<QString> group =
        book ? book.value()->addGroup(name, cancelled) : Result<QString>(book.error());
    if (!group)
        return false;
    QStringList members;
    for (FaxRecipient *recipient : m_recipients) {
        // One whom the address book does not take is no member; the others are.
        if (recipient->uid() || recipient->commitToAddressBook(cancelled))
            members.append(*recipient->uid());
    }
    return bool(book.value()->setMembers(group.value(), members, cancelled));
}

bool operator==(const FaxRecipientList &a, const FaxRecipientList &b)
{
    return std::ranges::equal(
        a.m_recipients, b.m_recipients,
        [](const FaxRecipient *one, const FaxRecipient *other) { return *one == *other; });
}

} // namespace kelvo
