#pragma once

#include "bundle.h"
#include "fax_recipient_list.h"
#include "people.h"
#include "values.h"

#include <QSizeF>
#include <QString>

#include <cstdint>

// The cover sheet of a fax, in the fax options:
//
//   ShowSender           boolean
//   SenderName, SenderOrganization, SenderEmailAddress, SenderPhoneNumber, SenderFaxNumber
//                        strings; only while the sender is shown
//   ShowRecipients       integer: 1 hides them, 2 shows all, 3 shows the text; absent: 1
//   CustomRecipientText  string
//   LocalizedToLabel     string; only while there is something to show
//   ShowWatermark        boolean: there is an image
//   WatermarkName        string: its name in kFaxImagesFile; only while there is one
//   Size                 integer: 1 US Letter; any other A4; absent: 1
namespace kelvo {

inline const QString kFaxCoverShowSenderProperty = QStringLiteral("ShowSender");
inline const QString kFaxCoverSenderNameProperty = QStringLiteral("SenderName");
inline const QString kFaxCoverSenderOrganizationProperty = QStringLiteral("SenderOrganization");
inline const QString kFaxCoverSenderEmailAddressProperty = QStringLiteral("SenderEmailAddress");
inline const QString kFaxCoverSenderPhoneNumberProperty = QStringLiteral("SenderPhoneNumber");
inline const QString kFaxCoverSenderFaxNumberProperty = QStringLiteral("SenderFaxNumber");
inline const QString kFaxCoverShowRecipientsProperty = QStringLiteral("ShowRecipients");
inline const QString kFaxCoverCustomRecipientTextProperty = QStringLiteral("CustomRecipientText");
inline const QString kFaxCoverLocalizedToLabel = QStringLiteral("LocalizedToLabel");
inline const QString kFaxCoverShowWatermarkProperty = QStringLiteral("ShowWatermark");
inline const QString kFaxCoverWatermarkNameProperty = QStringLiteral("WatermarkName");
inline const QString kFaxCoverSizeProperty = QStringLiteral("Size");

struct FaxSender
{
    QString name, organization, emailAddress, phoneNumber, faxNumber;
    friend bool operator==(const FaxSender &, const FaxSender &) = default;
};
// `sender` with what the card has: its first e-mail address, and the first numbers of work, or
// of where it does not say home. What it lacks stays.
FaxSender takenFromCard(FaxSender sender, const Person &card);

// What the cover sheet's dialog edits.
struct CoverSheetSettings
{
    bool showSender = false;
    FaxSender sender;
    std::int32_t recipients = 2; // a value of CoverSheetRecipientMap
    QString customText;
    QString image;         // its name; empty: none
    std::int32_t size = 1; // a value of FaxCoverSizeMap
    friend bool operator==(const CoverSheetSettings &, const CoverSheetSettings &) = default;
};

CoverSheetSettings readCoverSheet(const Dictionary &options);
// `toLabel` is stored beside what is shown of the recipients.
void writeCoverSheet(const CoverSheetSettings &settings, Dictionary &options,
                     const QString &toLabel);

// All that is on the sheet. A block without text is not drawn, and its label neither.
struct CoverSheetContent
{
    QSizeF size; // points
    QString senderLabel, senderText, recipientsLabel, recipientsText, notesLabel, notesText;
    QString image; // its name; empty: none
    friend bool operator==(const CoverSheetContent &, const CoverSheetContent &) = default;

    // For who carries it without reading it (LeadingPage of job_description.h).
    Dictionary toDictionary() const;
    static CoverSheetContent fromDictionary(const Dictionary &dictionary);
};

// The words around the texts, from the table of the fax dialogs.
struct CoverSheetWords
{
    QString from, to, notes, phone, fax;
};
CoverSheetWords coverSheetWords(CFBundleRef bundle);

CoverSheetContent coverSheetContent(const Dictionary &options, const QString &notes,
                                    const FaxRecipientList &recipients,
                                    const CoverSheetWords &words);
// Those of the options. Notes without their label were emptied, and only kept.
QString shownNotes(const Dictionary &options);

} // namespace kelvo
