#include "invert_image_controls.h"

#include "control.h"
#include "ticket.h"
#include "ticket_values.h"

namespace kelvo {

namespace {

constexpr ControlID kGroup{kShellSignature, 910};
constexpr ControlID kNegative{kShellSignature, 911};
constexpr ControlID kMirror{kShellSignature, 912};

const QString kClient = QStringLiteral("K");

void showFlags(const InvertImageContext &context, const II_Options &options)
{
    if (context.negative)
        context.negative->setChecked(options.negative);
    if (context.mirror)
        context.mirror->setChecked(options.mirror);
}

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
    showFlags(*context, *options);
    return noErr;
}

OSStatus InvertImageSync(const InvertImageContext *context, II_Options *options,
                         std::int32_t direction, PMTicketRef ticket)
{
    if (!options)
        return kPMInvalidParameter;
    const QString key = ticketKey("InvertImageOptions");
    if (direction == kSyncWrite) {
        if (context && context->negative)
            options->negative = true;
        if (context && context->mirror)
            options->mirror = true;
        return PMTicketSetCFDictionary(ticket, kClient, key,
                                       InvertImageCreateTicketFromOptions(options));
    }
    InvertImageSetOptionsFromTicket(options,
                                    PMTicketGetCFDictionary(ticket, key).value_or(Dictionary()));
    if (context)
        showFlags(*context, *options);
    return noErr;
}

void InvertImageTerminate(InvertImageContext *context)
{
    if (context)
        *context = {};
}

} // namespace kelvo
