#include "dialing_check.h"

#include "fax_texts.h"

namespace kelvo {

bool isTooLongToDial(const FaxRecipient &recipient, int prefixLength, int creditCardLength)
{
    return CopyDialingStringFromFaxNumber(recipient.faxNumber()).size() + prefixLength
        + creditCardLength
        > kMaxDialingString;
}

std::vector<FaxRecipient *> FindMaxCharacters(const FaxRecipientList &recipients, int prefixLength,
                                              int creditCardLength)
{
    std::vector<FaxRecipient *> tooLong;
    for (long i = 0; i < recipients.count(); ++i) {
        FaxRecipient *recipient = recipients.recipientAtIndex(i);
        if (isTooLongToDial(*recipient, prefixLength, creditCardLength))
            tooLong.push_back(recipient);
    }
    return tooLong;
}

} // namespace kelvo
