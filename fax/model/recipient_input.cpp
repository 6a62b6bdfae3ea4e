#include "recipient_input.h"

#include "dialing_check.h"
#include "fax_texts.h"

namespace kelvo {

namespace {

struct Field
{
    QString RecipientInput::*typed;
    const FaxString &(FaxRecipient::*get)() const;
    void (FaxRecipient::*set)(const FaxString &);
};

constexpr Field fields[] = {
    {&RecipientInput::firstName, &FaxRecipient::firstName, &FaxRecipient::setFirstName},
    {&RecipientInput::lastName, &FaxRecipient::lastName, &FaxRecipient::setLastName},
    {&RecipientInput::faxNumber, &FaxRecipient::faxNumber, &FaxRecipient::setFaxNumber},
    {&RecipientInput::organization, &FaxRecipient::organization, &FaxRecipient::setOrganization},
    {&RecipientInput::phoneNumber, &FaxRecipient::phoneNumber, &FaxRecipient::setPhoneNumber},
    {&RecipientInput::emailAddress, &FaxRecipient::emailAddress, &FaxRecipient::setEmailAddress},
    {&RecipientInput::mailbox, &FaxRecipient::mailbox, &FaxRecipient::setMailbox},
};

} // namespace

FaxString takenText(const FaxString &before, const QString &typed)
{
    if (typed == before.value_or(QString()))
        return before;
    const QString text = typed.trimmed();
    return text.isEmpty() ? FaxString() : FaxString(text);
}

NumberState numberState(const QString &typed)
{
    if (typed.trimmed().isEmpty())
        return NumberState::Missing;
    const qsizetype length = CopyDialingStringFromFaxNumber(typed).size();
    if (length == 0)
        return NumberState::NotDialable;
    return length > kMaxDialingString ? NumberState::TooLong : NumberState::Dialable;
}

RecipientInput inputOf(const FaxRecipient &recipient)
{
    RecipientInput input;
    for (const Field &field : fields)
        input.*field.typed = (recipient.*field.get)().value_or(QString());
    return input;
}

void take(const RecipientInput &input, FaxRecipient &recipient)
{
    const FaxString numberBefore = recipient.faxNumber();
    for (const Field &field : fields)
        (recipient.*field.set)(takenText((recipient.*field.get)(), input.*field.typed));
    if (recipient.faxNumber() != numberBefore)
        recipient.setFaxNumberLabel({});
}

} // namespace kelvo
