#include "invert_image_controls.h"

#include "control.h"
#include "print_session.h"

namespace kelvo {

namespace {

constexpr ControlID kGroup{kShellSignature, 910};
constexpr ControlID kNegative{kShellSignature, 911};
constexpr ControlID kMirror{kShellSignature, 912};

} // namespace

void InvertImageInitialize(InvertImageContext *context, II_Options *options)
{
    if (options)
        *options = {.valid = true, .negative = false, .mirror = false};
    InvertImageTerminate(context);
}

OSStatus InvertImageOpen(CFBundleRef bundle, QWidget *window, QWidget *pane,
                         InvertImageContext *context, II_Options *options)
{
    if (!bundle || !window || !pane || !context || !options)
        return paramErr;
    context->group = findControl(window, kGroup);
    context->negative = findControl<QAbstractButton>(window, kNegative);
    context->mirror = findControl<QAbstractButton>(window, kMirror);
    for (QWidget *control :
         {context->group.data(), static_cast<QWidget *>(context->negative.data()),
          static_cast<QWidget *>(context->mirror.data())}) {
        // What lies in the group goes with it.
        if (control
            && (control == context->group || !context->group
                || !context->group->isAncestorOf(control)))
            embedControl(control, pane);
    }
    showInvertImage(*context, *options);
    return noErr;
}

void takeInvertImage(const InvertImageContext &context, II_Options &options)
{
    options.negative = options.negative || context.negative;
    options.mirror = options.mirror || context.mirror;
}

void showInvertImage(const InvertImageContext &context, const II_Options &options)
{
    if (context.negative)
        context.negative->setChecked(options.negative);
    if (context.mirror)
        context.mirror->setChecked(options.mirror);
}

OSStatus InvertImageSync(const InvertImageContext *context, II_Options *options,
                         std::int32_t direction, PMTicketRef handle)
{
    if (!options)
        return kPMInvalidParameter;
    Ticket *ticket = findTicket(handle);
    if (!ticket)
        return kPMInvalidTicket;
    if (direction == kSyncWrite) {
        if (context)
            takeInvertImage(*context, *options);
        return writeInvertImage(*options, *ticket);
    }
    readInvertImage(*options, *ticket);
    if (context)
        showInvertImage(*context, *options);
    return noErr;
}

void InvertImageTerminate(InvertImageContext *context)
{
    if (context)
        *context = {};
}

} // namespace kelvo
