#pragma once

#include "booklet_watermark_controls.h"
#include "booklet_watermark_settings.h"
#include "menu_button.h"
#include "panel_context.h"
#include "paper_view.h"
#include "popup_button.h"
#include "watermark_preview.h"

#include <QLabel>
#include <QPointer>

#include <memory>

// What the Booklet/Watermark panel shows: its controls, what fills them, and the way between
// them and the context.
namespace kelvo {

// Null until they are built.
struct BookletWatermarkControls
{
    QPointer<QLabel> bookletHint;   // KPDE 6001
    QPointer<PopupButton> booklet;  // KPDE 6002, label 6000
    QPointer<PopupButton> borders;  // KPDE 6003, label 6004
    QPointer<QWidget> options;      // KPDE 6005
    QPointer<MenuButton> watermark; // KPDE 6007, label 6006
    QPointer<QLabel> watermarkHint; // KPDE 6008
    QPointer<PaperView> preview;    // KPDE 6009
};

struct BookletWatermarkContext final : PanelContext
{
    static constexpr PanelTraits traits{.titleKey = "BookletWatermarkPanelTitle",
                                        .signature = kShellSignature};
    BookletWatermarkContext()
        : PanelContext(traits)
    {
    }

    OSStatus read(Ticket &printSettings, const Ticket &pageFormat) override;
    OSStatus write(Ticket &printSettings, const Ticket &pageFormat) override;
    std::optional<std::vector<SummaryLine>> words() const override;
    OSStatus build() override;

    BookletWatermarkSettings settings;
    QSizeF paper; // points, as it is looked at
    BookletWatermarkControls controls;
    QPointer<WatermarkPreview> preview; // the view's
};

BookletWatermarkControls findBookletWatermarkControls(NeededControls &needed);
void fillBookletWatermarkControls(BookletWatermarkContext &panel);

// From the context to the controls; nothing happens before they are built.
void showBookletWatermark(BookletWatermarkContext &panel);

// The user's list as it is stored now, and the menu with it.
void loadWatermarks(BookletWatermarkContext &panel);
void takeWatermarks(BookletWatermarkContext &panel, const QStringList &names);
// Draws the chosen watermark, once somebody sees it.
void renderWatermark(BookletWatermarkContext &panel);

} // namespace kelvo
