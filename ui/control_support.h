#pragma once

#include "event.h"

#include <QString>

class QLineEdit;
class QPlainTextEdit;
class QWidget;

// What the controls and what readers are told of them share; not for panels and windows.
namespace kelvo {

struct InputLimits;

// Sends an event that begins at `source`.
OSStatus sendFrom(QWidget *source, EventKind kind, OSType command = kNoCommand,
                  std::int32_t reference = 0, int row = -1);

// ControlHit, then, unless that was taken, the control's command when it has one.
void sendHit(QWidget *control);

// Gives `control` the focus, if a click on it would. What is typed elsewhere counts first then,
// and whoever hears that may disable the control, not delete it: false, and nothing must follow.
[[nodiscard]] bool focusAsClicked(QWidget *control);

// The wheel scrolls the panel under it and changes `control` only while it has
// the focus; it does not give it the focus either.
void guardWheel(QWidget *control);

// `text` on one line, as menus show it.
QString oneLine(const QString &text);

// Keeps what is typed within `limits` for good: into `line`, which is `field` or inside it.
void keepTypedWithin(const InputLimits &limits, QLineEdit *line, QWidget *field);
void keepTypedWithin(const InputLimits &limits, QPlainTextEdit *edit);

// Takes what `edit`'s limits refuse out of what was just inserted; true when it
// changed the text.
bool keepWithinLimits(QPlainTextEdit *edit);

} // namespace kelvo
