#pragma once

#include "fax_recipient.h"

// What people type of a recipient, and what becomes of it.
namespace kelvo {

// What a field holds after somebody has seen it. One that is not touched stays as it was,
// absent or empty; blanks around a text go, and what is then empty is absent.
FaxString takenText(const FaxString &before, const QString &typed);

enum class NumberState {
    Missing,     // nothing is typed
    NotDialable, // nothing of it is dialed
    Dialable,
    TooLong, // for devices, even with nothing dialed before it
};
NumberState numberState(const QString &typed);

// Puts what was typed into a recipient. A number that is another one now did not come from
// where its label says, which then goes.
struct RecipientInput
{
    QString firstName, lastName, faxNumber, organization, phoneNumber, emailAddress, mailbox;
    friend bool operator==(const RecipientInput &, const RecipientInput &) = default;
};
RecipientInput inputOf(const FaxRecipient &recipient);
void take(const RecipientInput &input, FaxRecipient &recipient);

} // namespace kelvo
