#include "recipient_rows.h"

#include "device.h"
#include "dialing_check.h"
#include "fax_texts.h"
#include "input_limits.h"
#include "list_view.h"

#include <QLineEdit>

namespace kelvo {

namespace {

QString cellOf(const FaxRecipient &recipient, int column)
{
    switch (column) {
    case 0:
        return DisplayNameFromRecipient(&recipient);
    case 1:
        return recipient.faxNumber().value_or(QString());
    default:
        return recipient.organization().value_or(QString());
    }
}

} // namespace

void showRecipients(ListView *list, const Device &device, RecipientColumns columns,
                    const RecipientOfRow &recipientOf)
{
    const bool hasAll = columns == RecipientColumns::All;
    std::vector<ListView::Column> shown{
        {faxText(device.bundle, "Recipient Name Column"), hasAll ? 150 : 90},
        {faxText(device.bundle, "Recipient Number Column"), 130}};
    if (hasAll)
        shown.push_back({faxText(device.bundle, "Recipient Organization Column"), 110});
    list->setColumns(shown, [recipientOf](int row, int column) {
        const FaxRecipient *recipient = recipientOf(row);
        return recipient ? cellOf(*recipient, column) : QString();
    });
}

std::vector<FaxRecipient *> selectedOf(const ListView *list,
                                       const std::vector<FaxRecipient *> &recipients)
{
    std::vector<FaxRecipient *> selected;
    for (const int row : list->selectedRows())
        selected.push_back(recipients[static_cast<std::size_t>(row)]);
    return selected;
}

std::vector<FaxRecipient *> allOf(const FaxRecipientList &recipients)
{
    std::vector<FaxRecipient *> all;
    all.reserve(static_cast<std::size_t>(recipients.count()));
    for (long i = 0; i < recipients.count(); ++i)
        all.push_back(recipients.recipientAtIndex(i));
    return all;
}

void limitToPrefix(QLineEdit *field)
{
    InputLimits limits;
    limits.maximumLength = kMaxDialingPrefix;
    limits.allowed = kFaxDialingCharacterSet;
    setInputLimits(field, limits);
}

} // namespace kelvo
