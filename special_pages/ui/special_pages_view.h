#pragma once

#include "special_pages_context.h"

// What the Special Pages panel shows.
namespace kelvo {

// Finds the controls in the panel's pane, gives them texts and pictures, and fills
// the list.
void InitializeSpecialPages(_SpecialPagesContext &panel);

// Fills the list anew; the pages that were selected and are still there stay
// selected. Nothing happens for null, or before there is a list.
void UpdateSpecialPagesSummary(_SpecialPagesContext *panel);
// Enables the commands for what is selected.
void UpdateSpecialPagesCommandButtons(_SpecialPagesContext *panel);

// The pages selected in the list, in its order.
std::vector<const SpecialPage *> selectedPages(const _SpecialPagesContext &panel);

} // namespace kelvo
