#pragma once

#include "needed_controls.h"
#include "special_pages_context.h"

// What the Special Pages panel shows.
namespace kelvo {

// The pane and the controls in it.
void findSpecialPagesControls(_SpecialPagesContext &panel, NeededControls &needed);

// Gives them texts and pictures, and fills the list.
void InitializeSpecialPages(_SpecialPagesContext &panel);

// The list's columns.
inline constexpr OSType kPropertyPages = fourCharCode("PAGE");
inline constexpr OSType kPropertyType = fourCharCode("TYPE");
inline constexpr OSType kPropertyAttributes = fourCharCode("ATTR");
inline constexpr OSStatus kUnknownListProperty = -4979;
// The text of a page in that column; kUnknownListProperty for any other.
OSStatus SpecialPagesListItemDataCallback(const _SpecialPagesContext &panel,
                                          const SpecialPage &page, OSType property, QString *text);

// Fills the list anew; the pages that were selected and are still there stay
// selected. Nothing happens for null, or before there is a list.
void UpdateSpecialPagesSummary(_SpecialPagesContext *panel);
// Enables the commands for what is selected.
void UpdateSpecialPagesCommandButtons(_SpecialPagesContext *panel);

// The pages selected in the list, in its order.
std::vector<const SpecialPage *> selectedPages(const _SpecialPagesContext &panel);

} // namespace kelvo
