#pragma once

#include "finishing.h"
#include "ticket_file.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

// What the dialogs of stapling, punching, folding and binding offer, and what
// their OK does.
namespace kelvo {

enum class FinishingDialogKind {
    SingleStaple,
    DualStaple,
    HolePunch,
    Fold,         // C and Z
    AdvancedFold, // every fold
    ZFold,        // whole and half sheets
    Bind,
};

// One line of a dialog's pop-up.
struct FinishingChoice
{
    const char *key;     // its text, the finishing menu's own
    const char *hintKey; // the sentence that says what comes out
    OSType command;      // of the finishing menu; kNoCommand for binding
    std::int32_t value;  // what that command carries, or finishing.bind
};

// In the order of the pop-up, "none" first. Whatever the device has not
// installed, or its PPD has no choice for, is left out, so that "none" alone says
// that there is nothing to choose. Binding has no choices in a PPD.
std::vector<FinishingChoice> finishingChoices(FinishingDialogKind kind, const Device &device);

// The line of what is set; none where this dialog does not offer it.
std::optional<std::size_t> findSetChoice(FinishingDialogKind kind,
                                         const std::vector<FinishingChoice> &choices,
                                         const Finishing &finishing);

// The line that the dialog begins with: the one that is set, else "none". The two
// staple dialogs are called for what they offer, and begin with that where no staple
// of theirs is set. `choices` has at least "none".
std::size_t initialChoice(FinishingDialogKind kind, const std::vector<FinishingChoice> &choices,
                          const Finishing &finishing);

// The key of what is set though this dialog does not offer it, such as two
// staples where only one can be chosen; OK replaces it. Null when there is none.
const char *replacedFinishing(FinishingDialogKind kind, const std::vector<FinishingChoice> &choices,
                              const Finishing &finishing);

// OK will end booklet mode: staples and holes do, folding and binding do not.
bool endsBooklet(FinishingDialogKind kind, const PaperOutputSettings &settings);

// What OK does beyond the choice, in sentences; empty where that is nothing.
QString finishingNote(FinishingDialogKind kind, const std::vector<FinishingChoice> &choices,
                      const PaperOutputSettings &settings, const Device &device);
// Where the ticket has it.
TicketPlace finishingPlace(FinishingDialogKind kind);

// What OK does: the choice's command of the finishing menu with the choice's
// value. A booklet that is folded and stapled has no command of its own: it is the
// bi-fold's with another value, and finishing options 24 for as long as it is set.
void applyFinishingChoice(PaperOutputSettings &settings, const FinishingChoice &choice);

// What would come out, as the bundle names the picture; empty where it has none.
QString finishingChoicePicture(FinishingDialogKind kind, const PaperOutputSettings &settings,
                               const FinishingChoice &choice);

} // namespace kelvo
