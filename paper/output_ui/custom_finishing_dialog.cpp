#include "finishing_dialogs.h"

#include "control.h"
#include "dialog_window.h"
#include "hint_text.h"
#include "input_limits.h"
#include "paper_output_context.h"

#include <QLabel>
#include <QLineEdit>

namespace kelvo {

namespace {

constexpr ControlID kText{kPanelSignature, 8201};
constexpr ControlID kHint{kPanelSignature, 8202};

constexpr int kLongestText = 255; // characters

} // namespace

OSStatus RunModalCustomFinishingDialog(CFBundleRef bundle, _PaperOutputContext *context,
                                       DialogResult *result, QWidget *parent)
{
    if (!bundle || !context || !result)
        return paramErr;
    const auto dialog = createModalDialog(bundle, QStringLiteral("FinishingDialogs"),
                                          QStringLiteral("CustomFinishing"), parent);
    auto *text = dialog ? findControl<QLineEdit>(dialog.get(), kText) : nullptr;
    if (!text)
        return kWindowNotMade;
    makeHintText(findControl<QLabel>(dialog.get(), kHint));
    text->setText(context->finishing.custom);
    setInputLimits(text, {.maximumLength = kLongestText});

    const auto enableOK = [&dialog, text] {
        if (QWidget *okButton = windowDefaultButton(dialog.get()))
            okButton->setEnabled(!text->text().isEmpty());
    };
    const EventHandlerRef handler =
        installEventHandler(dialog.get(), [&enableOK](const Event &event) {
            if (event.kind == EventKind::TextChanged)
                enableOK();
            return eventNotHandledErr;
        });
    enableOK();

    *result = dialog->runModal();
    if (*result == DialogResult::OK)
        context->finishing.custom = text->text();
    return noErr;
}

} // namespace kelvo
