#pragma once

#include <QString>

class QWidget;

namespace kelvo {

// `text`, whoever wrote it, as a tool tip that shows it letter by letter: never
// taken for markup, on the lines that it has, long ones wrapped. Empty stays empty.
QString plainToolTip(const QString &text);

// Gives `widget` that tool tip, and its accessible description without the markup. An empty
// text gives it its own again.
void setPlainToolTip(QWidget *widget, const QString &text);

// What `widget` is for, where its label does not say it all: its tool tip and description for
// as long as nothing else is to be said of it.
void setOwnToolTip(QWidget *widget, const QString &text);

} // namespace kelvo
