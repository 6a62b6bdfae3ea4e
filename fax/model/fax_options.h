#pragma once

#include "long_date.h"
#include "values.h"

#include <QString>

#include <cstdint>
#include <optional>

// The options of a fax, "com.kelvo.print.FaxOptions":
//
//   ConfirmationSheet    boolean; absent: true
//   SendSpeed            integer: an item of the menu, see sendSpeedItem(); absent: 4
//   Resolution           integer, a value of FaxResolutionMap; absent: 2
//   SendTime             integer: wall-clock seconds (long_date.h); absent: now
//   DialingPrefix        string; only while it is dialed
//   CreditCard           string; not offered: whoever writes the options removes it
//   CoverSheet           boolean
//   CoverSheetNotes      string; stays when the notes are emptied
//   LocalizedNotesLabel  string; only with notes
//   PromptDuplicate      boolean: ask before somebody is added twice; absent: true
//   PromptRemove         boolean: ask before recipients are removed; absent: true
//
// and those of the cover sheet (cover_sheet.h).
namespace kelvo {

inline const QString kFaxPrintConfirmationSheetProperty = QStringLiteral("ConfirmationSheet");
inline const QString kFaxSendSpeedProperty = QStringLiteral("SendSpeed");
inline const QString kFaxResolutionProperty = QStringLiteral("Resolution");
inline const QString kFaxSendTimeProperty = QStringLiteral("SendTime");
inline const QString kFaxDialingPrefixProperty = QStringLiteral("DialingPrefix");
inline const QString kFaxCreditCardProperty = QStringLiteral("CreditCard");
inline const QString kFaxPrintCoverSheetProperty = QStringLiteral("CoverSheet");
inline const QString kFaxCoverSheetNotesProperty = QStringLiteral("CoverSheetNotes");
inline const QString kFaxCoverLocalizedNotesLabel = QStringLiteral("LocalizedNotesLabel");
inline const QString kFaxPromptDuplicateProperty = QStringLiteral("PromptDuplicate");
inline const QString kFaxPromptRemoveProperty = QStringLiteral("PromptRemove");

// What the set-up's controls show; items count from 1.
struct FaxControls
{
    int confirmation = 1;                 // an item of ConfirmationSheetMap
    int sendSpeed = 1;                    // of FaxSendSpeedMap; 0: none, and what is stored stays
    std::int32_t resolution = 2;          // a value of FaxResolutionMap
    std::optional<LongDateTime> sendTime; // none: now
    std::optional<QString> dialingPrefix; // none: the box is not checked
    bool hasCoverSheet = false;
    QString notes;
    bool promptDuplicate = true, promptRemove = true;
    friend bool operator==(const FaxControls &, const FaxControls &) = default;
};

FaxControls SyncToUI(const Dictionary &options);
// A moment that has passed is the next one of its time. The notes' label is stored beside them.
void SyncFromUI(const FaxControls &controls, Dictionary &options, LongDateTime now,
                const QString &notesLabel);

// The item of the speed menu for a stored number: the row that has it as its value, else the
// item that stored it; 0: neither.
int sendSpeedItem(std::int64_t stored);

// When a stored moment has passed: the same clock today, or tomorrow.
void settleSendTime(Dictionary &options, LongDateTime now);

} // namespace kelvo
