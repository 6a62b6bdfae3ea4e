#pragma once

#include "printers.h"

#include <QString>

// How printers are told to the user, in the pop-up, its list and its tool tip.
namespace kelvo {

QString printerStateText(const PrinterCondition &condition); // "idle"
QString
printerConditionText(const PrinterCondition &condition); // and why: "stopped: paper is jammed"
QString printerAndState(const Printer &printer);         // "Hall-3 (idle)"
// "Ground floor · Kelvo Corvane C90 · Kim's printer": the place, the make and model, and what it
// is called besides. Runs of either direction stay whole.
QString placeAndModel(const Printer &printer);
// All that is known of it, a line each.
QString printerInFull(const Printer &printer);
// The same for screen readers, one thing after the other, with what else its row shows.
QString printerAsHeard(const Printer &printer, bool isChosen);

} // namespace kelvo
