#include "special_pages_commands.h"

#include "covers_dialog.h"
#include "exceptions_dialog.h"
#include "inserts_dialog.h"
#include "special_pages_notices.h"
#include "special_pages_view.h"

#include <algorithm>

namespace kelvo {

namespace {

// KPDE numbers of the buttons.
enum Command : std::int32_t {
    kAddCovers = 100,
    kAddInserts = 200,
    kAddExceptions = 300,
    kEdit = 1200,
    kDelete = 1300,
    kDeleteAll = 1400,
    kUndo = 1500,
    kMoveUp = 1600,
    kMoveDown = 1700,
};

Stock *jobStockOf(_SpecialPagesContext &panel)
{
    return panel.settings.jobStock ? &*panel.settings.jobStock : nullptr;
}

// The dialogs. True when the list may have changed: not when the dialog was
// cancelled or could not be shown.
bool editCovers(_SpecialPagesContext &panel, DialogMode mode)
{
    DialogResult outcome = DialogResult::Cancel;
    RunModalCoversDialog(panel.device, mode, jobStockOf(panel), &panel.settings.frontCover,
                         &panel.settings.backCover, &outcome, panel.content);
    return outcome != DialogResult::Cancel;
}

bool editInserts(_SpecialPagesContext &panel, DialogMode mode, const Insert *edited)
{
    DialogResult outcome = DialogResult::Cancel;
    RunModalInsertsDialog(panel.device, mode, jobStockOf(panel), &panel.settings.inserts, edited,
                          &outcome, panel.content);
    return outcome != DialogResult::Cancel;
}

bool editExceptions(_SpecialPagesContext &panel, DialogMode mode, const ExceptionPage *edited)
{
    DialogResult outcome = DialogResult::Cancel;
    RunModalExceptionsDialog(panel.device, mode, jobStockOf(panel), panel.printSettingsRef,
                             &panel.settings.exceptions, edited, &outcome, panel.content);
    return outcome != DialogResult::Cancel;
}

bool editSelected(_SpecialPagesContext &panel)
{
    const std::vector<const SpecialPage *> selected = selectedPages(panel);
    if (selected.size() != 1)
        return false;
    if (dynamic_cast<const Cover *>(selected.front()))
        return editCovers(panel, kDialogModeEdit);
    if (const auto *insert = dynamic_cast<const Insert *>(selected.front()))
        return editInserts(panel, kDialogModeEdit, insert);
    if (const auto *exception = dynamic_cast<const ExceptionPage *>(selected.front()))
        return editExceptions(panel, kDialogModeEdit, exception);
    return false;
}

void moveSelected(_SpecialPagesContext &panel, bool isUp)
{
    SaveUndoState(&panel);
    if (isUp)
        panel.settings.inserts.promote(selectedPages(panel));
    else
        panel.settings.inserts.demote(selectedPages(panel));
}

// Does the command of that number; false when the list need not be filled anew.
bool perform(_SpecialPagesContext &panel, std::int32_t command)
{
    switch (command) {
    case kAddCovers:
        return editCovers(panel, kDialogModeAdd);
    case kAddInserts:
        return editInserts(panel, kDialogModeAdd, nullptr);
    case kAddExceptions:
        return editExceptions(panel, kDialogModeAdd, nullptr);
    case kEdit:
        return editSelected(panel);
    case kDelete:
        // Saved before the question: also a deletion that is declined takes the
        // place of the last undo.
        SaveUndoState(&panel);
        DeleteSelectedSpecialPages(panel);
        return true;
    case kDeleteAll:
        SaveUndoState(&panel);
        DeleteAllSpecialPages(panel);
        return true;
    case kUndo:
        PerformUndo(&panel);
        return true;
    case kMoveUp:
    case kMoveDown:
        moveSelected(panel, command == kMoveUp);
        return true;
    default:
        return false;
    }
}

bool isCommand(std::int32_t number)
{
    constexpr std::int32_t commands[] = {kAddCovers, kAddInserts, kAddExceptions, kEdit,    kDelete,
                                         kDeleteAll, kUndo,       kMoveUp,        kMoveDown};
    return std::ranges::find(commands, number) != std::end(commands);
}

} // namespace

OSStatus SpecialPagesEventHandler(_SpecialPagesContext &panel, const Event &event)
{
    std::int32_t command = 0;
    if (event.kind == EventKind::ListSelection && event.source == panel.list) {
        UpdateSpecialPagesCommandButtons(&panel);
        return noErr;
    }
    if (event.kind == EventKind::ListActivated && event.source == panel.list && event.row >= 0)
        command = kEdit;
    else if (event.kind == EventKind::ControlHit && isCommand(event.control.number))
        command = event.control.number;
    else
        return eventNotHandledErr;
    if (perform(panel, command))
        UpdateSpecialPagesSummary(&panel);
    return noErr;
}

void DeleteSelectedSpecialPages(_SpecialPagesContext &panel)
{
    if (!mayDeleteSpecialPages(panel.bundle, QStringLiteral("Delete Selected Special Pages"),
                               panel.content))
        return;
    const std::vector<const SpecialPage *> selected = selectedPages(panel);
    std::vector<const SpecialPage *> inserts, exceptions;
    for (const SpecialPage *page : selected) {
        if (panel.settings.frontCover && page == &*panel.settings.frontCover)
            panel.settings.frontCover.reset();
        else if (panel.settings.backCover && page == &*panel.settings.backCover)
            panel.settings.backCover.reset();
        else if (dynamic_cast<const Insert *>(page))
            inserts.push_back(page);
        else
            exceptions.push_back(page);
    }
    panel.settings.inserts.remove(inserts);
    panel.settings.exceptions.remove(exceptions);
}

void DeleteAllSpecialPages(_SpecialPagesContext &panel)
{
    if (!mayDeleteSpecialPages(panel.bundle, QStringLiteral("Delete All Special Pages"),
                               panel.content))
        return;
    panel.settings.frontCover.reset();
    panel.settings.inserts.clear();
    panel.settings.exceptions.clear();
    panel.settings.backCover.reset();
}

} // namespace kelvo
