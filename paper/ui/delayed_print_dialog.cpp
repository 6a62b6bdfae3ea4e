#include "delayed_print_dialog.h"

#include "control.h"
#include "dialog_window.h"
#include "event.h"
#include "job_type_dialog.h"
#include "localized_controls.h"
#include "time_field.h"

#include <QLabel>
#include <QTimer>

#include <chrono>

namespace kelvo {

namespace {

constexpr int kPictureView = 8500; // KPDE
constexpr ControlID kTimeField{kPanelSignature, 8521};
constexpr ControlID kDayText{kPanelSignature, 8522};

struct _DelayedPrintContext // NOLINT(bugprone-reserved-identifier): the system's own name
{
    CFBundleRef bundle = nullptr;
    std::unique_ptr<ModalDialog> window;
    DialogResult result = DialogResult::Cancel;
    QPointer<TimeField> time;
    QPointer<QLabel> day;
    EventHandlerRef handler;
};

LongDateTime chosenTime(const _DelayedPrintContext &context, LongDateTime now)
{
    return nextMomentAt(context.time->value(), now);
}

// Says on which day the chosen time is.
void syncToUI(const _DelayedPrintContext &context)
{
    const LongDateTime now = currentLongDate();
    const bool isToday = dateOf(chosenTime(context, now)) == dateOf(now);
    const QString time =
        context.time->locale().toString(context.time->value(), QLocale::ShortFormat);
    SetLocalizedStaticText(context.bundle,
                           isToday ? QStringLiteral("Prints Today")
                                   : QStringLiteral("Prints Tomorrow"),
                           context.day, {time});
    context.time->setAccessibleDescription(context.day->text());
}

OSStatus initializeDelayedPrint(_DelayedPrintContext &context, LongDateTime time, QWidget *parent)
{
    context.window = createModalDialog(context.bundle, QStringLiteral("JobTypes"),
                                       QStringLiteral("DelayedPrint"), parent,
                                       [&context](NeededControls &needed) {
                                           context.time = needed.find<TimeField>(kTimeField);
                                           context.day = needed.find<QLabel>(kDayText);
                                       });
    if (!context.window)
        return kWindowNotMade;
    showJobTypePicture(context.bundle, context.window.get(), kPictureView,
                       QStringLiteral("JobType_DelayPrint.gif"), QStringLiteral("DelayedPrint"));
    // Half a typed time changes nothing here but the sentence beside it.
    context.time->setKeyboardTracking(true);
    context.time->setValue(timeOf(time));
    context.handler = installEventHandler(context.window.get(), [&context](const Event &event) {
        if (event.kind == EventKind::ControlHit)
            syncToUI(context);
        return eventNotHandledErr;
    });
    // A chosen time passes while the window is open.
    auto *clock = new QTimer(context.window.get());
    QObject::connect(clock, &QTimer::timeout, context.window.get(),
                     [&context] { syncToUI(context); });
    clock->start(std::chrono::seconds(1));
    syncToUI(context);
    return noErr;
}

} // namespace

OSStatus RunModalDelayedPrintSetup(CFBundleRef bundle, LongDateTime *time, QWidget *parent)
{
    if (!bundle || !time)
        return paramErr;
    _DelayedPrintContext context;
    context.bundle = bundle;
    const OSStatus status = initializeDelayedPrint(context, *time, parent);
    if (status != noErr)
        return status;
    context.result = context.window->runModal();
    if (context.result == DialogResult::OK)
        *time = chosenTime(context, currentLongDate());
    return noErr;
}

} // namespace kelvo
