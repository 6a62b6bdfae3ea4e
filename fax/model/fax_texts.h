#pragma once

#include "bundle.h"
#include "fax_recipient.h"

#include <QSet>
#include <QString>

// What dialogs, cover sheet and summary make of recipients and senders.
namespace kelvo {

// What a device can dial; its pauses and codes are among them.
inline constexpr char kFaxDialingCharacters[] = "0123456789*#=:!,/S$<>ABCD";
extern const QSet<char32_t> kFaxDialingCharacterSet;

// What of a number is dialed: those characters, in order.
QString CopyDialingStringFromFaxNumber(const FaxString &faxNumber);

// First and last name as far as they are present, an empty one too, with a blank between.
QString DisplayNameFromRecipient(const FaxRecipient *recipient);

// A sender as a cover sheet shows it: a line for each text that has any characters, the last
// two with their labels.
QString CreateLANFaxSenderInformation(const FaxString &name, const FaxString &organization,
                                      const FaxString &emailAddress, const FaxString &phoneLabel,
                                      const FaxString &phoneNumber, const FaxString &faxLabel,
                                      const FaxString &faxNumber);

// The word for where a number came from (PersonNumber::label): "Work", or the user's own.
QString shownFaxLabel(CFBundleRef bundle, const QString &label);

// The text of `key` in the table of the fax dialogs, else "STRING NOT FOUND".
QString faxText(CFBundleRef bundle, const char *key);

} // namespace kelvo
