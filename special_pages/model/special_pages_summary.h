#pragma once

#include "bundle.h"
#include "cover.h"
#include "exception_page_list.h"
#include "insert_list.h"

#include <QString>

#include <vector>

// What the list of special pages shows. Texts are the bundle's and the current PPD's.
namespace kelvo {

// The job's special pages, borrowed; covers may be null.
struct SpecialPages
{
    const Cover *front = nullptr;
    const InsertList *inserts = nullptr;
    const ExceptionPageList *exceptions = nullptr;
    const Cover *back = nullptr;
};

// In the order in which they come: front cover, inserts and exception pages by
// page (an exception page before an insert after its first page), back cover.
std::vector<const SpecialPage *> rowsOf(const SpecialPages &pages);

QString pagesText(CFBundleRef bundle, const SpecialPages &pages, const SpecialPage &page);
QString typeText(CFBundleRef bundle, const SpecialPage &page);
// What is special about it, joined by "; ".
QString CopySpecialPageSummary(const SpecialPage &page, CFBundleRef bundle);
// The same, and what else is worth knowing: that a cover will be left out, that an
// exception page covers no page and how its image differs, or that nothing does. All
// that the list says.
QString attributesText(const SpecialPage &page, CFBundleRef bundle);

// The same in a line for the dialogs.
QString CreateInsertAttributesDescription(CFBundleRef bundle, const Insert &insert);
QString CreateExceptionAttributesDescription(CFBundleRef bundle, const ExceptionPage &exception);

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
