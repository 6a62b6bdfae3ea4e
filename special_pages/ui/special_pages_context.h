#pragma once

#include "event.h"
#include "list_view.h"
#include "plugin_abi.h"
#include "special_pages_settings.h"

#include <QAbstractButton>
#include <QPointer>

#include <optional>
#include <vector>

namespace kelvo {

// What the Special Pages panel has while its dialog is up.
struct _SpecialPagesContext // NOLINT(bugprone-reserved-identifier)
{
    CFBundleRef bundle = nullptr;
    QString title;
    bool opened = false;

    Device device; // from Initialize on
    SpecialPagesSettings settings;
    std::optional<SpecialPagesSettings> undo; // one level, the job's stock apart
    PMTicketRef ticket = 0;                   // the print settings of the last Sync

    QPointer<QWidget> parentPane;
    QPointer<QWidget> pane; // KPDE 1, the panel's own views, from Open on
    // Null until then.
    QPointer<ListView> list;                                     // KPDE 1000
    QPointer<QAbstractButton> addCoversButton, addInsertsButton; // KPDE 100, 200
    QPointer<QAbstractButton> addExceptionsButton;               // KPDE 300
    QPointer<QAbstractButton> editButton, deleteButton;          // KPDE 1200, 1300
    QPointer<QAbstractButton> deleteAllButton, undoButton;       // KPDE 1400, 1500
    QPointer<QAbstractButton> moveUpButton, moveDownButton;      // KPDE 1600, 1700
    EventHandlerRef handler;

    // What the list shows, row by row. Pages go and others come in their memory, so
    // what was selected is known by identity.
    struct Row
    {
        const SpecialPage *page;
        std::uint64_t identity;
    };
    std::vector<Row> rows;
};

// The panel that is up, for the dialogs that it opens; null when there is none.
extern _SpecialPagesContext *_specialPagesContext;

// A copy of all special pages, in place of that saved before. Nothing happens for null.
void SaveUndoState(_SpecialPagesContext *context);
// Brings the copy back, and none is left.
void PerformUndo(_SpecialPagesContext *context);

} // namespace kelvo
