#include "job_type_dialog.h"

#include "bundle_picture.h"
#include "control.h"
#include "hint_text.h"
#include "input_limits.h"
#include "job_types.h"
#include "localized_controls.h"
#include "notice.h"
#include "passcode.h"
#include "picture_view.h"
#include "string_table.h"
#include "ticket_values.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

namespace kelvo {

namespace {

constexpr ControlID kPasscodeField{kPanelSignature, 8501};
constexpr ControlID kConfirmationField{kPanelSignature, 8502};
constexpr ControlID kPasscodeDigits{kPanelSignature, 8503};
constexpr ControlID kConfirmationDigits{kPanelSignature, 8504};
constexpr ControlID kShowPasscode{kPanelSignature, 8505};

void limitToDigits(CFBundleRef bundle, QLineEdit *field, QLabel *hint, int shortest)
{
    setInputLimits(field, {shortest, kLongestPasscode, InputLimits::decimalDigits()});
    field->setInputMethodHints(Qt::ImhDigitsOnly | Qt::ImhSensitiveData | Qt::ImhHiddenText
                               | Qt::ImhNoPredictiveText);
    SetLocalizedStaticText(bundle, QStringLiteral("Min-Max Digits"), hint,
                           {QString::number(shortest), QString::number(kLongestPasscode)});
    makeHintText(hint);
    field->setAccessibleDescription(hint->text());
}

QString textWith(CFBundleRef bundle, const char *key, const QStringList &arguments)
{
    return formatted(localizedText(bundle, QString::fromLatin1(key)), arguments);
}

} // namespace

void showJobTypePicture(CFBundleRef bundle, const QWidget *window, int number,
                        const QString &picture, const QString &nameKey)
{
    showBundlePicture(findControl<PictureView>(window, {kPanelSignature, number}), bundle, picture,
                      localizedText(bundle, nameKey));
}

PasscodeFields findPasscodeFields(NeededControls &needed)
{
    PasscodeFields fields;
    fields.passcode = needed.find<QLineEdit>(kPasscodeField);
    fields.confirmation = needed.find<QLineEdit>(kConfirmationField);
    fields.digits = needed.find<QLabel>(kPasscodeDigits);
    fields.confirmationDigits = needed.find<QLabel>(kConfirmationDigits);
    fields.show = needed.find<QCheckBox>(kShowPasscode);
    return fields;
}

void limitPasscodeFields(CFBundleRef bundle, PasscodeFields &fields, int shortest)
{
    fields.shortest = shortest;
    limitToDigits(bundle, fields.passcode, fields.digits, shortest);
    limitToDigits(bundle, fields.confirmation, fields.confirmationDigits, shortest);
}

void setPasscode(const PasscodeFields &fields, const QString &passcode)
{
    fields.passcode->setText(passcode);
    fields.passcode->selectAll(); // what is typed next replaces it
    fields.confirmation->setText(passcode);
}

void syncPasscodeFields(const PasscodeFields &fields, bool isEnabled)
{
    const bool mayConfirm = isEnabled && fields.passcode->text().size() >= fields.shortest;
    if (isEnabled && !mayConfirm)
        fields.confirmation->clear();
    setEnabledWithLabel(fields.passcode, isEnabled);
    setEnabledWithLabel(fields.confirmation, mayConfirm);
    fields.digits->setEnabled(isEnabled);
    fields.confirmationDigits->setEnabled(mayConfirm);
    fields.show->setEnabled(isEnabled);
    const auto echo = fields.show->isChecked() ? QLineEdit::Normal : QLineEdit::Password;
    fields.passcode->setEchoMode(echo);
    fields.confirmation->setEchoMode(echo);
}

bool takePasscode(CFBundleRef bundle, const PasscodeFields &fields, int longestAnnounced)
{
    QWidget *window = fields.passcode->window();
    switch (findProblem(fields.passcode->text(), fields.confirmation->text())) {
    case PasscodeProblem::None:
        return true;
    case PasscodeProblem::Missing: {
        // The job never goes out without a passcode. The notice says it in clear:
        // nobody knows it otherwise.
        setPasscode(fields, madePasscode());
        const QStringList arguments = {QString::number(kShortestPasscode),
                                       QString::number(longestAnnounced), fields.passcode->text()};
        CFUserNotificationDisplayNotice(
            NoticeLevel::Note, textWith(bundle, "Passcode Required Header", arguments),
            textWith(bundle, "Passcode Required Message", arguments), {}, window);
        return true;
    }
    case PasscodeProblem::Unconfirmed:
        CFUserNotificationDisplayNotice(
            NoticeLevel::Stop,
            localizedText(bundle, QStringLiteral("Invalid Secure Print Passcode Header")),
            textWith(bundle, "Invalid Secure Print Passcode Message",
                     {QString::number(kShortestPasscode), QString::number(kLongestPasscode)}),
            {}, window);
        fields.confirmation->setFocus();
        fields.confirmation->selectAll();
        return false;
    }
    return false;
}

} // namespace kelvo
