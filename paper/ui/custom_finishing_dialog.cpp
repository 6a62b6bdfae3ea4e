#include "finishing_dialogs.h"

#include "control.h"
#include "dialog_window.h"
#include "hint_text.h"
#include "input_limits.h"
#include "paper_output_settings.h"

#include <QLabel>
#include <QLineEdit>

namespace kelvo {

namespace {

constexpr ControlID kText{kPanelSignature, 8201};
constexpr ControlID kHint{kPanelSignature, 8202};
constexpr ControlID kRemove{kPanelSignature, 8203};

constexpr int kLongestText = 255; // characters

} // namespace

OSStatus RunModalCustomFinishingDialog(CFBundleRef bundle, PaperOutputSettings *settings,
                                       DialogResult *result, QWidget *parent)
{
    if (!bundle || !settings || !result)
        return paramErr;
    QLineEdit *text = nullptr;
    const auto dialog = createModalDialog(
        bundle, QStringLiteral("FinishingDialogs"), QStringLiteral("CustomFinishing"), parent,
        [&text](NeededControls &needed) { text = needed.find<QLineEdit>(kText); });
    if (!dialog)
        return kWindowNotMade;
    makeHintText(findControl<QLabel>(dialog.get(), kHint));
    text->setText(settings->finishing.custom);
    setInputLimits(text, {.maximumLength = kLongestText});

    const auto enableOK = [&dialog, text] {
        if (QWidget *okButton = windowDefaultButton(dialog.get()))
            okButton->setEnabled(!text->text().isEmpty());
    };
    // OK needs a text, so what is there is removed by a button of its own.
    bool isRemoved = false;
    const EventHandlerRef handler = installEventHandler(
        dialog.get(), [&dialog, &enableOK, &isRemoved](const Event &event) -> OSStatus {
            if (event.kind == EventKind::TextChanged)
                enableOK();
            if (event.kind != EventKind::ControlHit || event.control != kRemove)
                return eventNotHandledErr;
            isRemoved = true;
            dialog->done(QDialog::Accepted);
            return noErr;
        });
    enableOK();
    if (QWidget *remove = findControl(dialog.get(), kRemove))
        remove->setEnabled(!settings->finishing.custom.isEmpty());

    *result = dialog->runModal();
    if (*result == DialogResult::OK)
        settings->finishing.custom = isRemoved ? QStringLiteral("") : text->text();
    return noErr;
}

} // namespace kelvo
