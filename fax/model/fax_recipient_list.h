#pragma once

#include "fax_recipient.h"

#include <vector>

namespace kelvo {

// Recipients in the order in which they are shown and sent to. The list has a reference to
// each; others may hold the same ones, and the same one may stand in it twice.
class FaxRecipientList
{
public:
    FaxRecipientList() = default;
    explicit FaxRecipientList(const Array &ticket);
    FaxRecipientList(const FaxRecipientList &other); // of recipients of its own
    FaxRecipientList &operator=(const FaxRecipientList &other);
    FaxRecipientList(FaxRecipientList &&other) noexcept;
    FaxRecipientList &operator=(FaxRecipientList &&other) noexcept;
    ~FaxRecipientList();

    long count() const { return static_cast<long>(m_recipients.size()); }
    // Borrowed; null where there is none.
    FaxRecipient *recipientAtIndex(long index) const;

    void removeAtIndex(long index);
    void removeAll();
    // Adds a reference; an index outside the list, or null, does nothing.
    void insertAtIndex(FaxRecipient *recipient, long index);
    void append(FaxRecipient *recipient);
    // The entries that are this very object; of two neighbours the second stays.
    void remove(const FaxRecipient *recipient);
    bool containsRecipient(const FaxRecipient *recipient) const; // isSameRecipient()

    // A dictionary each. An element that is none gives a recipient with all absent.
    Array toTicket() const;
    void fromTicket(const Array *ticket); // null: empties the list

    // A group of that name, with those recipients whom the address book has or takes; they
    // keep their uids. False where the group could not be made or saved. Blocks.
    bool saveAsABGroupWithName(const QString &name, AddressBook::Flag cancelled = nullptr);

    // The same texts in the same order.
    friend bool operator==(const FaxRecipientList &a, const FaxRecipientList &b);

private:
    std::vector<FaxRecipient *> m_recipients;
};

} // namespace kelvo
