#pragma once

#include "advanced_settings.h"
#include "device.h"
#include "event.h"
#include "late_content.h"
#include "plugin_abi.h"
#include "popup_button.h"

#include <QPointer>
#include <QString>
#include <QWidget>

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

struct AdvancedContext
{
    CFBundleRef bundle = nullptr;
    QString title;
    Device device; // from Initialize on
    AdvancedSettings settings;

    QPointer<QWidget> parentUserPane;
    QPointer<QWidget> content; // the panel's own views, once they are built
    AdvancedControls controls;
    LateContent lateContent; // from Open on
    EventHandlerRef handler;
};

} // namespace kelvo
