#include "recent_recipients.h"

#include "fax_texts.h"
#include "file_store.h"
#include "preferences.h"
#include "terminal.h"

#include <algorithm>

namespace kelvo {

namespace {

const QString recipientsKey = QStringLiteral("Recipients");

// Adds it at the end, unless the same one is there, nothing of it is dialed or it is one
// too many.
void addTo(std::vector<FaxRecipient> &recent, const FaxRecipient &recipient)
{
    const auto isSame = [&recipient](const FaxRecipient &other) {
        return isSameRecipient(recipient, other);
    };
    if (recent.size() < mostRecentRecipients && std::ranges::none_of(recent, isSame)
        && !CopyDialingStringFromFaxNumber(recipient.faxNumber()).isEmpty())
        recent.push_back(recipient);
}

void addStored(std::vector<FaxRecipient> &recent, const Dictionary &file)
{
    for (const QVariant &element : array(file, recipientsKey).value_or(Array())) {
        if (const std::optional<Dictionary> stored = dictionary(element))
            addTo(recent, FaxRecipient(*stored));
    }
}

} // namespace

std::vector<FaxRecipient> recentRecipients()
{
    std::vector<FaxRecipient> recent;
    addStored(recent, CopyUserPreferences(kRecentRecipientsFile).value_or(Dictionary()));
    return recent;
}

void rememberRecipients(const FaxRecipientList &recipients)
{
    ChangeUserPreferences(kRecentRecipientsFile, [&recipients](Dictionary &file) {
        std::vector<FaxRecipient> recent;
        for (long i = 0; i < recipients.count(); ++i)
            addTo(recent, *recipients.recipientAtIndex(i));
        if (recent.empty())
            return false;
        addStored(recent, file);
        Array stored;
        for (const FaxRecipient &recipient : recent)
            stored.append(recipient.toTicket());
        file.insert(recipientsKey, stored);
        return true;
    });
}

bool forgetRecipients()
{
    const Result<QString> path = userPreferencePath(kRecentRecipientsFile);
    const Result<void> removed = path ? removeFile(path.value()) : Result<void>(path.error());
    if (removed || removed.error().code == Error::Code::NotFound)
        return true;
    printLine(stderr, removed.error().text());
    return false;
}

} // namespace kelvo
