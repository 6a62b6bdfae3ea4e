#include "dialing_check.h"

#include "fax_texts.h"

namespace kelvo {

bool isTooLongToDial(const FaxRecipient &recipient, int prefixLength)
{
    return CopyDialingStringFromFaxNumber(recipient.faxNumber()).size() + prefixLength
        > kMaxDialingString;
}

std::vector<FaxRecipient *> FindMaxCharacters(const FaxRecipientList &recipients, int prefixLength)
{
    std::vector<FaxRecipient *> tooLong;
    for (long i = 0; i < recipients.count(); ++i) {
        FaxRecipient *recipient = recipients.recipientAtIndex(i);
        if (isTooLongToDial(*recipient, prefixLength))
            tooLong.push_back(recipient);
    }
    return tooLong;
}

} // namespace kelvo
