#include "fax_description.h"

#include "cover_sheet.h"
#include "dialing_check.h"
#include "fax_options.h"
#include "fax_texts.h"
#include "mnemonics.h"
#include "setting_maps.h"
#include "string_table.h"
#include "texts.h"
#include "watermark_store.h"

#include <QHash>
#include <QLocale>

#include <algorithm>

namespace kelvo {

namespace {

// Lines of thousands are read by nobody.
constexpr long mostNamed = 20;

// The key of what keeps a number from being dialed after a prefix; null: nothing.
const char *dialingProblemKey(const FaxRecipient &recipient, int prefixLength)
{
    if (CopyDialingStringFromFaxNumber(recipient.faxNumber()).isEmpty())
        return "Undialed in Words";
    return isTooLongToDial(recipient, prefixLength) ? "Too Long in Words" : nullptr;
}

bool canAllBeDialed(const FaxRecipientList &recipients, int prefixLength)
{
    for (long i = 0; i < recipients.count(); ++i) {
        if (dialingProblemKey(*recipients.recipientAtIndex(i), prefixLength))
            return false;
    }
    return true;
}

// "Ann Lee 555-1234"
QString wordsOf(const FaxRecipient &recipient, int prefixLength, const Device &device)
{
    const QString words = QStringList{DisplayNameFromRecipient(&recipient).trimmed(),
                                      recipient.faxNumber().value_or(QString())}
                              .join(u' ')
                              .trimmed();
    if (words.isEmpty())
        return faxText(device.bundle, "Nameless in Words");
    const char *problemKey = dialingProblemKey(recipient, prefixLength);
    return problemKey ? formatted(faxText(device.bundle, problemKey), {words}) : words;
}

QString wordsOf(const FaxRecipientList &recipients, int prefixLength, const Device &device)
{
    QStringList words;
    const long named = std::min(recipients.count(), mostNamed);
    for (long i = 0; i < named; ++i)
        words.append(wordsOf(*recipients.recipientAtIndex(i), prefixLength, device));
    const QString all = separated(words);
    if (named == recipients.count())
        return all;
    return formatted(faxText(device.bundle, "And More Recipients"),
                     {all, QLocale().toString(qlonglong(recipients.count() - named))});
}

QString labelOf(const Device &device, const char *key)
{
    return nameInLabel(faxText(device.bundle, key));
}

QString mapWords(const Device &device, const SettingMap *map, std::int32_t value)
{
    const char *key = keyOfValue(map, value);
    return key ? labelText(device, key) : QString::number(value);
}

QString speedWords(const Device &device, std::int64_t stored)
{
    const int item = sendSpeedItem(stored);
    return item > 0 ? mapWords(device, FaxSendSpeedMap, UIToTicket(FaxSendSpeedMap, item))
                    : QString::number(stored);
}

void describeSending(const Dictionary &options, PanelDescription &panel, std::int32_t control)
{
    const Device &device = panel.job().device;
    const auto add = [&](const char *name, const char *labelKey, const QString &words,
                         bool isDefault) {
        panel.addLabelled(name, labelOf(device, labelKey), words, control, isDefault);
    };
    const FaxControls defaults = SyncToUI({});
    const FaxControls values = SyncToUI(options);
    if (const auto time = integer64(options, kFaxSendTimeProperty))
        add("FaxOptions/SendTime", "Send Time:",
            QLocale().toString(QDateTime(dateOf(*time), timeOf(*time)), QLocale::ShortFormat),
            false);
    add("FaxOptions/ConfirmationSheet",
        "Confirmation Sheet:", mapWords(device, ConfirmationSheetMap, values.confirmation),
        values.confirmation == defaults.confirmation);
    if (const auto speed = integer64(options, kFaxSendSpeedProperty))
        add("FaxOptions/SendSpeed", "Send Speed:", speedWords(device, *speed),
            values.sendSpeed == defaults.sendSpeed);
    add("FaxOptions/Resolution",
        "Fax Resolution:", mapWords(device, FaxResolutionMap, values.resolution),
        values.resolution == defaults.resolution);
    add("FaxOptions/DialingPrefix", "Dialing Prefix in Words",
        values.dialingPrefix.value_or(QString()), false);
}

// With the image, where the store has it.
void describeCoverSheet(const Dictionary &options, const FaxRecipientList &recipients,
                        PanelDescription &panel, std::int32_t control, JobDescription &description)
{
    const Device &device = panel.job().device;
    const CoverSheetContent content =
        coverSheetContent(options, shownNotes(options), recipients, coverSheetWords(device.bundle));
    LeadingPage page{.name = faxText(device.bundle, "Cover Sheet in Words"),
                     .inShort = faxText(device.bundle, "Cover Sheet in Short"),
                     .size = content.size,
                     .content = content.toDictionary()};
    panel.addLabelled("FaxOptions/CoverSheet", page.name,
                      mapWords(device, FaxCoverSizeMap, readCoverSheet(options).size), control);
    if (!content.image.isEmpty()) {
        // Before it is read: a change in between is seen next time.
        description.files.push_back(watermarkStore(kFaxImagesFile));
        const FileStamp &stamp = description.files.back().stamp;
        page.version = qHashMulti(0, stamp.inode, stamp.modified);
        QStringList names;
        loadWatermarkList(kFaxImagesFile, &names);
        const bool isThere = names.contains(content.image);
        if (DescribedSetting *line = panel.addLabelled(
                "FaxOptions/WatermarkName", labelOf(device, "Cover Image in Words"),
                isThere ? content.image
                        : formatted(faxText(device.bundle, "Cover Image Absent in Words"),
                                    {content.image}),
                control))
            line->isLost = !isThere;
    }
    description.leadingPage = std::move(page);
}

} // namespace

void describeFax(const Dictionary &options, const FaxRecipientList &recipients, bool isFax,
                 PanelDescription &panel, std::int32_t control, JobDescription &description)
{
    const Device &device = panel.job().device;
    const int prefixLength =
        static_cast<int>(string(options, kFaxDialingPrefixProperty).value_or(QString()).size());
    const bool isToNobody = isFax && recipients.count() == 0;
    DescribedSetting *named =
        panel.addLabelled("FaxRecipientList", labelOf(device, "Fax Recipients"),
                          isToNobody ? faxText(device.bundle, "No Recipients in Words")
                                     : wordsOf(recipients, prefixLength, device),
                          control);
    if (named)
        named->isLost = isFax && (isToNobody || !canAllBeDialed(recipients, prefixLength));
    panel.leaveUnspoken("FaxOptions");
    if (isFax) {
        describeSending(options, panel, control);
        if (boolean(options, kFaxPrintCoverSheetProperty).value_or(false))
            describeCoverSheet(options, recipients, panel, control, description);
    }
    // Also where the job is none: a secret is told of wherever it is.
    const bool hasCard = !string(options, kFaxCreditCardProperty).value_or(QString()).isEmpty();
    if (DescribedSetting *line =
            panel.add("FaxOptions/CreditCard", "Credit Card in Words",
                      hasCard ? device.text("Passcode Is Set") : QString(), control))
        line->isSecret = true;
}

} // namespace kelvo
