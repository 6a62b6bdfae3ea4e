#include "cover_sheet.h"

#include "fax_options.h"
#include "fax_texts.h"

namespace kelvo {

namespace {

// What is stored for a value of CoverSheetRecipientMap; and the other way round, since it
// only exchanges two numbers.
constexpr std::int32_t hidden = 1, all = 2, custom = 3;

std::int32_t exchanged(std::int64_t value)
{
    switch (value) {
    case 1:
        return 2;
    case 2:
        return 1;
    case custom:
        return custom;
    default:
        return exchanged(hidden);
    }
}

constexpr std::int32_t letter = 1;
constexpr std::int32_t a4 = 4; // the menu's; any number but 1 is stored for it
const QSizeF letterPage(612, 792), a4Page(595, 842);

bool isLetter(const Dictionary &options)
{
    return integer64(options, kFaxCoverSizeProperty).value_or(letter) == letter;
}

struct SenderField
{
    const QString &key;
    QString FaxSender::*text;
};

constexpr SenderField senderFields[] = {
    {kFaxCoverSenderNameProperty, &FaxSender::name},
    {kFaxCoverSenderOrganizationProperty, &FaxSender::organization},
    {kFaxCoverSenderEmailAddressProperty, &FaxSender::emailAddress},
    {kFaxCoverSenderPhoneNumberProperty, &FaxSender::phoneNumber},
    {kFaxCoverSenderFaxNumberProperty, &FaxSender::faxNumber},
};

FaxSender senderIn(const Dictionary &options)
{
    FaxSender sender;
    for (const SenderField &field : senderFields)
        sender.*field.text = string(options, field.key).value_or(QString());
    return sender;
}

QString numberIn(const Person &card, PersonNumber::Kind kind)
{
    const PersonNumber *found = nullptr;
    for (const PersonNumber &number : card.numbers) {
        if (number.kind != kind || number.label == QLatin1String("home"))
            continue;
        if (number.label == QLatin1String("work"))
            return number.number;
        if (!found)
            found = &number;
    }
    return found ? found->number : QString();
}

QString namesOf(const FaxRecipientList &recipients)
{
    QStringList names;
    names.reserve(recipients.count());
    for (long i = 0; i < recipients.count(); ++i)
        names.append(DisplayNameFromRecipient(recipients.recipientAtIndex(i)));
    return names.join(QStringLiteral(", "));
}

QString imageIn(const Dictionary &options)
{
    return boolean(options, kFaxCoverShowWatermarkProperty).value_or(false)
        ? string(options, kFaxCoverWatermarkNameProperty).value_or(QString())
        : QString();
}

} // namespace

FaxSender takenFromCard(FaxSender sender, const Person &card)
{
    const auto take = [](QString &text, const QString &taken) {
        if (!taken.isEmpty())
            text = taken;
    };
    take(sender.name, card.fullName);
    take(sender.organization, card.organization);
    take(sender.emailAddress, card.emailAddresses.value(0));
    take(sender.phoneNumber, numberIn(card, PersonNumber::Kind::Phone));
    take(sender.faxNumber, numberIn(card, PersonNumber::Kind::Fax));
    return sender;
}

CoverSheetSettings readCoverSheet(const Dictionary &options)
{
    CoverSheetSettings settings;
    settings.showSender = boolean(options, kFaxCoverShowSenderProperty).value_or(false);
    settings.sender = senderIn(options);
    settings.recipients =
        exchanged(integer64(options, kFaxCoverShowRecipientsProperty).value_or(hidden));
    settings.customText = string(options, kFaxCoverCustomRecipientTextProperty).value_or(QString());
    settings.image = imageIn(options);
    settings.size = isLetter(options) ? letter : a4;
    return settings;
}

void writeCoverSheet(const CoverSheetSettings &settings, Dictionary &options,
                     const QString &toLabel)
{
    options.insert(kFaxCoverShowSenderProperty, settings.showSender);
    for (const SenderField &field : senderFields) {
        if (settings.showSender)
            options.insert(field.key, settings.sender.*field.text);
        else
            options.remove(field.key);
    }
    const std::int32_t recipients = exchanged(settings.recipients);
    options.insert(kFaxCoverShowRecipientsProperty, qint64(recipients));
    if (recipients == hidden)
        options.remove(kFaxCoverLocalizedToLabel);
    else
        options.insert(kFaxCoverLocalizedToLabel, toLabel);
    if (recipients == custom)
        options.insert(kFaxCoverCustomRecipientTextProperty, settings.customText);
    options.insert(kFaxCoverShowWatermarkProperty, !settings.image.isEmpty());
    if (settings.image.isEmpty())
        options.remove(kFaxCoverWatermarkNameProperty);
    else
        options.insert(kFaxCoverWatermarkNameProperty, settings.image);
    options.insert(kFaxCoverSizeProperty, qint64(settings.size));
}

CoverSheetWords coverSheetWords(CFBundleRef bundle)
{
    return {faxText(bundle, "From Label"), faxText(bundle, "To Label"),
            faxText(bundle, "Notes Label"), faxText(bundle, "Phone Label"),
            faxText(bundle, "Fax Label")};
}

CoverSheetContent coverSheetContent(const Dictionary &options, const QString &notes,
                                    const FaxRecipientList &recipients,
                                    const CoverSheetWords &words)
{
    CoverSheetContent content;
    content.size = isLetter(options) ? letterPage : a4Page;
    const CoverSheetSettings settings = readCoverSheet(options);
    if (settings.showSender) {
        const FaxSender &sender = settings.sender;
        content.senderLabel = words.from;
        content.senderText = CreateLANFaxSenderInformation(
            sender.name, sender.organization, sender.emailAddress, words.phone, sender.phoneNumber,
            words.fax, sender.faxNumber);
    }
    const std::int32_t shown = exchanged(settings.recipients);
    if (shown != hidden) {
        content.recipientsLabel = words.to;
        content.recipientsText = shown == all ? namesOf(recipients) : settings.customText;
    }
    content.notesText = notes;
    if (!notes.isEmpty())
        content.notesLabel = words.notes;
    content.image = settings.image;
    return content;
}

QString shownNotes(const Dictionary &options)
{
    return options.contains(kFaxCoverLocalizedNotesLabel)
        ? string(options, kFaxCoverSheetNotesProperty).value_or(QString())
        : QString();
}

Dictionary CoverSheetContent::toDictionary() const
{
    return {{QStringLiteral("Width"), size.width()},
            {QStringLiteral("Height"), size.height()},
            {QStringLiteral("SenderLabel"), senderLabel},
            {QStringLiteral("Sender"), senderText},
            {QStringLiteral("RecipientsLabel"), recipientsLabel},
            {QStringLiteral("Recipients"), recipientsText},
            {QStringLiteral("NotesLabel"), notesLabel},
            {QStringLiteral("Notes"), notesText},
            {QStringLiteral("Image"), image}};
}

CoverSheetContent CoverSheetContent::fromDictionary(const Dictionary &dictionary)
{
    const auto text = [&dictionary](const char *entry) {
        return string(dictionary, QString::fromLatin1(entry)).value_or(QString());
    };
    const auto length = [&dictionary](const char *entry) {
        return real(dictionary, QString::fromLatin1(entry)).value_or(0);
    };
    return {QSizeF(length("Width"), length("Height")),
            text("SenderLabel"),
            text("Sender"),
            text("RecipientsLabel"),
            text("Recipients"),
            text("NotesLabel"),
            text("Notes"),
            text("Image")};
}

} // namespace kelvo
