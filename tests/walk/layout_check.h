#pragma once

#include <QStringList>

class QWidget;

// What its user would find wrong with a window that is shown: a text that is cut, controls that
// lie on one another or outside of what holds them, buttons at its foot that stand otherwise than
// in every window, a field without a label, a text that its background swallows, and two mnemonics
// of one letter. Each begins with the control's name.
QStringList layoutProblems(QWidget *window);
