#include "fax_description.h"

#include "fax_options.h"
#include "fax_texts.h"

namespace kelvo {

namespace {

// Lines of thousands are read by nobody.
constexpr long mostNamed = 20;

// "Ann Lee 555-1234"
QString wordsOf(const FaxRecipient &recipient)
{
    return QStringList{DisplayNameFromRecipient(&recipient).trimmed(),
                       recipient.faxNumber().value_or(QString())}
        .join(u' ')
        .trimmed();
}

QString wordsOf(const FaxRecipientList &recipients)
{
    QStringList words;
    for (long i = 0; i < std::min(recipients.count(), mostNamed); ++i)
        words.append(wordsOf(*recipients.recipientAtIndex(i)));
    return words.join(QStringLiteral(", "));
}

} // namespace

void describeFax(const Dictionary &options, const FaxRecipientList &recipients, bool /*isFax*/,
                 PanelDescription &panel, std::int32_t control)
{
    panel.add("FaxRecipientList", "Fax Recipients in Words", wordsOf(recipients), control);
    panel.leaveUnspoken("FaxOptions");
    const Device &device = panel.job().device;
    const bool hasCard = !string(options, kFaxCreditCardProperty).value_or(QString()).isEmpty();
    if (DescribedSetting *line =
            panel.add("FaxOptions/CreditCard", "Credit Card in Words",
                      hasCard ? device.text("Passcode Is Set") : QString(), control))
        line->isSecret = true;
}

} // namespace kelvo
