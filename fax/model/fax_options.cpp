#include "fax_options.h"

#include "setting_maps.h"

namespace kelvo {

namespace {

constexpr std::int64_t defaultSendSpeed = 4; // "G3-Auto"
constexpr std::int32_t defaultResolution = 2;

LongDateTime settled(LongDateTime moment, LongDateTime now)
{
    return moment < now ? nextMomentAt(timeOf(moment), now) : moment;
}

void storeNotes(Dictionary &options, const FaxControls &controls, const QString &label)
{
    if (controls.notes.isEmpty()) {
        // The notes themselves stay for the next time.
        options.remove(kFaxCoverLocalizedNotesLabel);
        return;
    }
    options.insert(kFaxCoverSheetNotesProperty, controls.notes);
    options.insert(kFaxCoverLocalizedNotesLabel, label);
}

} // namespace

int sendSpeedItem(std::int64_t stored)
{
    int item = 0;
    while (FaxSendSpeedMap[item].localizedKey) {
        if (FaxSendSpeedMap[item++].ticketValue == stored)
            return item;
    }
    return stored >= 1 && stored <= item ? static_cast<int>(stored) : 0;
}

FaxControls SyncToUI(const Dictionary &options)
{
    FaxControls controls;
    controls.confirmation =
        boolean(options, kFaxPrintConfirmationSheetProperty).value_or(true) ? 1 : 2;
    controls.sendSpeed =
        sendSpeedItem(integer64(options, kFaxSendSpeedProperty).value_or(defaultSendSpeed));
    controls.resolution = integer32(options, kFaxResolutionProperty).value_or(defaultResolution);
    controls.sendTime = integer64(options, kFaxSendTimeProperty);
    controls.dialingPrefix = string(options, kFaxDialingPrefixProperty);
    if (controls.dialingPrefix && controls.dialingPrefix->isEmpty())
        controls.dialingPrefix.reset();
    controls.hasCoverSheet = boolean(options, kFaxPrintCoverSheetProperty).value_or(false);
    if (controls.hasCoverSheet)
        controls.notes = string(options, kFaxCoverSheetNotesProperty).value_or(QString());
    controls.promptDuplicate = boolean(options, kFaxPromptDuplicateProperty).value_or(true);
    controls.promptRemove = boolean(options, kFaxPromptRemoveProperty).value_or(true);
    return controls;
}

void SyncFromUI(const FaxControls &controls, Dictionary &options, LongDateTime now,
                const QString &notesLabel)
{
    options.insert(kFaxPrintConfirmationSheetProperty, controls.confirmation == 1);
    // The item's number, and not the row's value.
    if (controls.sendSpeed > 0)
        options.insert(kFaxSendSpeedProperty, qint64(controls.sendSpeed));
    options.insert(kFaxResolutionProperty, qint64(controls.resolution));
    if (controls.sendTime)
        options.insert(kFaxSendTimeProperty, qint64(settled(*controls.sendTime, now)));
    else
        options.remove(kFaxSendTimeProperty);
    if (controls.dialingPrefix)
        options.insert(kFaxDialingPrefixProperty, *controls.dialingPrefix);
    else
        options.remove(kFaxDialingPrefixProperty);
    options.remove(kFaxCreditCardProperty);
    options.insert(kFaxPrintCoverSheetProperty, controls.hasCoverSheet);
    if (controls.hasCoverSheet)
        storeNotes(options, controls, notesLabel);
    options.insert(kFaxPromptDuplicateProperty, controls.promptDuplicate);
    options.insert(kFaxPromptRemoveProperty, controls.promptRemove);
}

void settleSendTime(Dictionary &options, LongDateTime now)
{
    const auto time = integer64(options, kFaxSendTimeProperty);
    if (time)
        options.insert(kFaxSendTimeProperty, qint64(settled(*time, now)));
}

} // namespace kelvo
