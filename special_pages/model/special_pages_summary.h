#pragma once

#include "special_pages_settings.h"

#include <QString>

#include <vector>

// What the list of special pages shows.
namespace kelvo {

// In the order in which they come: front cover, inserts and exception pages by
// page (an exception page before an insert after its first page), back cover.
std::vector<const SpecialPage *> rowsOf(const SpecialPagesSettings &settings);

QString pagesText(const Device &device, const SpecialPagesSettings &settings,
                  const SpecialPage &page);
QString typeText(const Device &device, const SpecialPage &page);
// What is special about it, joined by "; ".
QString CopySpecialPageSummary(const SpecialPage &page, const Device &device);
// The same, and what else is worth knowing: that a cover will be left out, that an
// exception page covers no page and how its image differs, or that nothing does. All
// that the list says.
QString attributesText(const SpecialPage &page, const Device &device);
// Which trays the covers come from, "Front cover: Tray 1, Back cover: Tray 2", beside the list,
// whose attributes name none; empty without a cover that the device prints.
QString coverTraysText(const Device &device, const SpecialPagesSettings &settings);

// The same in a line for the dialogs.
QString CreateInsertAttributesDescription(const Device &device, const Insert &insert);
QString CreateExceptionAttributesDescription(const Device &device, const ExceptionPage &exception);

// Which commands are offered while `selected` are selected, in the list's order. Of
// several, the last one says whether they move.
struct SpecialPagesCommands
{
    bool edit = false, remove = false, removeAll = false, undo = false;
    bool moveUp = false, moveDown = false;
    friend bool operator==(const SpecialPagesCommands &, const SpecialPagesCommands &) = default;
};
SpecialPagesCommands commandsFor(const InsertList &inserts,
                                 const std::vector<const SpecialPage *> &selected, int rows,
                                 bool hasUndo);

} // namespace kelvo
