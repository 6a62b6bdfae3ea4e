#pragma once

#include "event.h"
#include "special_pages_context.h"

// What the commands of the Special Pages panel do.
namespace kelvo {

// A hit on a command's button does it; a double click on a page edits it, and help
// opens the panel's page. The list is filled anew, but after a dialog that was cancelled.
// eventNotHandledErr for what is not the panel's.
OSStatus SpecialPagesEventHandler(_SpecialPagesContext &panel, const Event &event);

// Each asks first, and deletes when the answer is yes.
void DeleteSelectedSpecialPages(_SpecialPagesContext &panel);
void DeleteAllSpecialPages(_SpecialPagesContext &panel);

} // namespace kelvo
