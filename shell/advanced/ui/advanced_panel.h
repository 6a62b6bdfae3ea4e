#pragma once

#include "advanced_settings.h"
#include "control.h"
#include "panel_context.h"
#include "popup_button.h"

#include <QPointer>

// The Advanced panel: booklet image order, banner sheet, offset and the feed
// edge of the bypass tray.
namespace kelvo {

KELVO_PLUGIN_EXPORT OSStatus GetAdvancedPanelInterface(PanelInterface **interface);

// The panel's pop-ups, each with its label beside it; null before Open.
struct AdvancedControls
{
    QPointer<PopupButton> bookletOrder; // KPDE 602, label 601
    QPointer<PopupButton> banner;       // KPDE 614, label 613
    QPointer<PopupButton> offset;       // KPDE 616, label 615
    QPointer<PopupButton> feedEdge;     // KPDE 702, label 701
};

struct AdvancedContext final : PanelContext
{
    static constexpr PanelTraits traits{.titleKey = "Advanced", .signature = kPanelSignature};
    AdvancedContext()
        : PanelContext(traits)
    {
    }

    OSStatus read(Ticket &printSettings, const Ticket &pageFormat) override;
    OSStatus write(Ticket &printSettings, const Ticket &pageFormat) override;
    OSStatus build() override;

    AdvancedSettings settings;
    AdvancedControls controls;
};

} // namespace kelvo
