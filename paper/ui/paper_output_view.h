#pragma once

#include "drawing_view.h"
#include "finished_set.h"
#include "menu_button.h"
#include "panel_context.h"
#include "paper_output_controls.h"
#include "paper_output_settings.h"
#include "picture_view.h"
#include "popup_button.h"
#include "stock_menu_button.h"
#include "summary_view.h"

#include <QPointer>
#include <QWidget>

class QLabel;
class QPushButton;

// What the Paper/Output panel shows: its controls, what fills them and what they
// say of the context. Nothing here decides anything.
namespace kelvo {

// Null until they are built, and while the panel is closed.
struct PaperOutputControls
{
    QPointer<PopupButton> jobType;           // KPDE 102
    QPointer<QPushButton> jobTypeSetup;      // KPDE 103
    QPointer<PictureView> jobTypeIcon;       // KPDE 104
    QPointer<QLabel> jobTypeHint;            // KPDE 1021
    QPointer<MenuButton> stockButton;        // KPDE 106
    QPointer<SummaryView> stockSummary;      // KPDE 107
    QPointer<PictureView> stockIcon;         // KPDE 108
    QPointer<QPushButton> coversButton;      // KPDE 129
    QPointer<QLabel> coversSummary;          // KPDE 1291
    QPointer<QPushButton> separatorsButton;  // KPDE 130
    QPointer<QLabel> separatorsSummary;      // KPDE 1301
    QPointer<PopupButton> twoSided;          // KPDE 110
    QPointer<PictureView> twoSidedIcon;      // KPDE 111
    QPointer<PopupButton> stapling;          // KPDE 113
    QPointer<PictureView> staplingIcon;      // KPDE 114
    QPointer<PopupButton> holePunch;         // KPDE 116
    QPointer<PictureView> holePunchIcon;     // KPDE 117
    QPointer<PopupButton> outputColor;       // KPDE 119
    QPointer<PictureView> outputColorIcon;   // KPDE 120
    QPointer<MenuButton> finishingButton;    // KPDE 123
    QPointer<PictureView> finishingIcon;     // KPDE 124
    QPointer<SummaryView> finishingSummary;  // KPDE 127
    QPointer<MenuButton> moreFinishing;      // KPDE 128
    QPointer<QLabel> moreFinishingSummary;   // KPDE 1281
    QPointer<PopupButton> outputDestination; // KPDE 126
    QPointer<DrawingView> finishedSet;       // KPDE 131
    QPointer<QLabel> finishedSetSummary;     // KPDE 132
};

struct _PaperOutputContext final // NOLINT(bugprone-reserved-identifier): the panel's own name
    : PanelContext
{
    static constexpr PanelTraits traits{.titleKey = "PaperOutput", .signature = kPanelSignature};
    // Tells those who ask for it (pde_session.h), until it goes.
    _PaperOutputContext();
    ~_PaperOutputContext() override;

    void begin(const Ticket &printSettings) override;
    OSStatus read(Ticket &printSettings, const Ticket &pageFormat) override;
    OSStatus write(Ticket &printSettings, const Ticket &pageFormat) override;
    std::optional<std::vector<SummaryLine>> words() const override;
    OSStatus build() override;
    void close() override;

    PaperOutputSettings settings;
    QString documentName; // what a saved job is called that takes the job's name
    PaperOutputControls controls;
    _StockMenuCommandEventHandlerData stockButtonData;
    FinishedSet shownSet; // as it is drawn
};

PaperOutputControls findPaperOutputControls(NeededControls &needed);

// Fills menus and pop-ups from their maps and the PPD. What the device does not
// have is disabled.
void fillPaperOutputControls(_PaperOutputContext &panel);

// From the context to the controls; nothing happens where there are none.
void showPaperOutput(_PaperOutputContext &panel);
// Parts of it.
void showJobType(const _PaperOutputContext &panel);
void showStockAndSeparators(const _PaperOutputContext &panel);
void showCovers(const _PaperOutputContext &panel);
void showTwoSided(const _PaperOutputContext &panel);
void showFinishing(const _PaperOutputContext &panel);
void showOutputColor(const _PaperOutputContext &panel);
void showOutputDestination(const _PaperOutputContext &panel);
// The set as it comes out; draws only what has changed.
void showFinishedSet(_PaperOutputContext &panel);

// The set-up button is enabled for the job types that have a set-up.
void EnableDisableJobTypeSetupButton(const _PaperOutputContext &panel);

} // namespace kelvo
