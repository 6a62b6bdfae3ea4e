#pragma once

#include "paper_output_view.h"

// What the user does on the Paper/Output panel.
namespace kelvo {

// Takes the hits and commands of the panel's controls; eventNotHandledErr for any
// other event.
OSStatus PaperOutputEventHandler(_PaperOutputContext &panel, const Event &event);

// The LAN fax set-up, on fax settings that are made where there are none.
void runFaxSetup(_PaperOutputContext &panel);

} // namespace kelvo
