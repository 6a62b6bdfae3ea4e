#pragma once

#include "cover.h"
#include "event.h"
#include "exception_page_list.h"
#include "insert_list.h"
#include "list_view.h"
#include "plugin_abi.h"
#include "special_pages_summary.h"

#include <QAbstractButton>
#include <QPointer>

#include <memory>
#include <optional>
#include <vector>

namespace kelvo {

// What the Special Pages panel has while its dialog is up.
struct _SpecialPagesContext // NOLINT(bugprone-reserved-identifier)
{
    CFBundleRef bundle = nullptr;
    QString title;
    bool opened = false;

    std::unique_ptr<ExceptionPageList> exceptions;
    std::unique_ptr<InsertList> inserts;
    std::optional<Cover> frontCover, backCover;

    // One level of undo.
    std::unique_ptr<ExceptionPageList> savedExceptions;
    std::unique_ptr<InsertList> savedInserts;
    std::optional<Cover> savedFrontCover, savedBackCover;

    std::unique_ptr<Stock> jobStock; // null when the ticket has none
    PMTicketRef ticket = 0;          // the print settings of the last Sync

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

    SpecialPages pages() const;
};

// The panel that is up, for the dialogs that it opens; null when there is none.
extern _SpecialPagesContext *_specialPagesContext;

// Copies of all special pages, in place of those saved before. Nothing happens for
// null.
void SaveUndoState(_SpecialPagesContext *context);
// Brings the copies back, and none are left.
void PerformUndo(_SpecialPagesContext *context);
void DropUndoState(_SpecialPagesContext *context);
bool hasUndoState(const _SpecialPagesContext &context);

} // namespace kelvo
