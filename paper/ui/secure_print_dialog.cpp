#include "secure_print_dialog.h"

#include "control.h"
#include "dialog_window.h"
#include "event.h"
#include "hint_text.h"
#include "job_type_dialog.h"
#include "job_types.h"

#include <QLabel>
#include <QLineEdit>

namespace kelvo {

namespace {

constexpr int kPictureView = 8500; // KPDE
constexpr ControlID kHint{kPanelSignature, 8506};

struct _SecurePrintContext // NOLINT(bugprone-reserved-identifier): the system's own name
{
    CFBundleRef bundle = nullptr;
    std::unique_ptr<ModalDialog> window;
    DialogResult result = DialogResult::Cancel;
    PasscodeFields fields;
    EventHandlerRef handler;
};

void syncToUI(const _SecurePrintContext &context)
{
    syncPasscodeFields(context.fields, true);
}

OSStatus initializeSecurePrint(_SecurePrintContext &context, const QString &passcode,
                               QWidget *parent)
{
    context.window = createModalDialog(
        context.bundle, QStringLiteral("JobTypes"), QStringLiteral("SecurePrint"), parent,
        [&context](NeededControls &needed) { context.fields = findPasscodeFields(needed); });
    if (!context.window)
        return kWindowNotMade;
    limitPasscodeFields(context.bundle, context.fields, kShortestPasscode);
    showJobTypePicture(context.bundle, context.window.get(), kPictureView,
                       QStringLiteral("JobType_SecurePrint.gif"), QStringLiteral("SecurePrint"));
    makeHintText(findControl<QLabel>(context.window.get(), kHint));
    setPasscode(context.fields, passcode);
    context.handler = installEventHandler(context.window.get(), [&context](const Event &event) {
        if (event.kind == EventKind::TextChanged || event.kind == EventKind::ControlHit)
            syncToUI(context);
        return eventNotHandledErr;
    });
    context.window->setAcceptRule(
        [&context] { return takePasscode(context.bundle, context.fields, kLongestPasscode); });
    syncToUI(context);
    return noErr;
}

} // namespace

OSStatus RunModalSecurePrintSetup(CFBundleRef bundle, std::optional<QString> *passcode,
                                  QWidget *parent)
{
    if (!bundle || !passcode)
        return paramErr;
    _SecurePrintContext context;
    context.bundle = bundle;
    const OSStatus status = initializeSecurePrint(context, passcode->value_or(QString()), parent);
    if (status != noErr)
        return status;
    context.result = context.window->runModal();
    if (context.result == DialogResult::OK)
        *passcode = context.fields.passcode->text();
    return noErr;
}

} // namespace kelvo
