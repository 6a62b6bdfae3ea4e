#pragma once

#include "bundle.h"
#include "invert_image.h"
#include "plugin_abi.h"
#include "status.h"

#include <QAbstractButton>
#include <QPointer>
#include <QWidget>

// Controls for inverting the image that a window may have: a group with a check
// box for the negative and one for the mirror image (Kshl 910 to 912).
namespace kelvo {

// Controls of windows; null where the window has none.
struct InvertImageContext
{
    QPointer<QWidget> group;            // Kshl 910
    QPointer<QAbstractButton> negative; // Kshl 911
    QPointer<QAbstractButton> mirror;   // Kshl 912
};

// Valid options that invert nothing, and a context without controls. Either may be
// null.
void InvertImageInitialize(InvertImageContext *context, II_Options *options);

// Takes the controls of `window` and puts them into `pane`, showing the options.
// What the window does not have stays null. paramErr for a null argument.
OSStatus InvertImageOpen(CFBundleRef bundle, QWidget *window, QWidget *pane,
                         InvertImageContext *context, II_Options *options);

// Before writing: sets a flag whose control is there, whatever the control shows: a
// window with these controls prints inverted. After reading: shows the flags.
void takeInvertImage(const InvertImageContext &context, II_Options &options);
void showInvertImage(const InvertImageContext &context, const II_Options &options);

// The one and writing, or reading and the other (invert_image.h). Without controls the
// flags go out as they are. `context` may be null; kPMInvalidParameter for null options,
// kPMInvalidTicket for a handle that names none, else the ticket's status.
OSStatus InvertImageSync(const InvertImageContext *context, II_Options *options,
                         std::int32_t direction, PMTicketRef ticket);

// Lets go of the controls.
void InvertImageTerminate(InvertImageContext *context);

} // namespace kelvo
