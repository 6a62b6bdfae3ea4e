#pragma once

#include "bundle.h"
#include "needed_controls.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QWidget;

// What the set-up dialogs of the job types have in common.
namespace kelvo {

// Shows the picture of a job type, or of what belongs to it, in the window's view
// KPDE `number`; `nameKey` is what a screen reader says. Nothing happens without one.
void showJobTypePicture(CFBundleRef bundle, const QWidget *window, int number,
                        const QString &picture, const QString &nameKey);

// A passcode and its confirmation: digits, masked until the user asks to see them.
// The controls are those of the window that is running.
struct PasscodeFields
{
    QLineEdit *passcode = nullptr;
    QLineEdit *confirmation = nullptr;
    QLabel *digits = nullptr, *confirmationDigits = nullptr; // "4 to 12 digits"
    QCheckBox *show = nullptr;
    int shortest = 1; // from so many digits on there is something to confirm
};

PasscodeFields findPasscodeFields(NeededControls &needed);
// Gives fields that were all found their limits.
void limitPasscodeFields(CFBundleRef bundle, PasscodeFields &fields, int shortest);
// Into both fields; the confirmation stays empty where it is too short to confirm.
void setPasscode(const PasscodeFields &fields, const QString &passcode);
// Enables, masks and empties the fields as what they hold says. A confirmation
// that can no longer be edited goes: it would be an unseen second passcode.
void syncPasscodeFields(const PasscodeFields &fields, bool isEnabled);

// What OK asks. True when there is a passcode, which is in the fields then: where
// both were empty, one is made and announced with the limits 1 and `longestAnnounced`.
// False after a notice that the two differ.
bool takePasscode(CFBundleRef bundle, const PasscodeFields &fields, int longestAnnounced);

} // namespace kelvo
