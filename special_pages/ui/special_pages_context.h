#pragma once

#include "control.h"
#include "list_view.h"
#include "panel_context.h"
#include "special_pages_settings.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPointer>

#include <optional>
#include <vector>

namespace kelvo {

// What the Special Pages panel has while its dialog is up.
struct _SpecialPagesContext final // NOLINT(bugprone-reserved-identifier)
    : PanelContext
{
    // Its entries all answer alike without a context.
    static constexpr PanelTraits traits{.titleKey = "SpecialPagesTitle",
                                        .signature = kPanelSignature,
                                        .syncWithoutContext = kPMInvalidPDEContext,
                                        .isBuiltAtOnce = true};
    // Makes it the one that is up (_specialPagesContext), until it goes.
    _SpecialPagesContext();
    ~_SpecialPagesContext() override;

    OSStatus read(Ticket &printSettings, const Ticket &pageFormat) override;
    OSStatus write(Ticket &printSettings, const Ticket &pageFormat) override;
    OSStatus build() override; // `content` is KPDE 1

    SpecialPagesSettings settings;
    std::optional<SpecialPagesSettings> undo; // one level, the job's stock apart

    // Null until it is built.
    QPointer<ListView> list;                                     // KPDE 1000
    QPointer<QLabel> coverTrays;                                 // KPDE 1002
    QPointer<QAbstractButton> addCoversButton, addInsertsButton; // KPDE 100, 200
    QPointer<QAbstractButton> addExceptionsButton;               // KPDE 300
    QPointer<QAbstractButton> editButton, deleteButton;          // KPDE 1200, 1300
    QPointer<QAbstractButton> deleteAllButton, undoButton;       // KPDE 1400, 1500
    QPointer<QAbstractButton> moveUpButton, moveDownButton;      // KPDE 1600, 1700

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
