#pragma once

#include "bundle.h"
#include "event.h"
#include "late_content.h"
#include "plugin_abi.h"
#include "popup_button.h"
#include "ppd_choices.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <cstdint>

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

// Values are ticket values: of BookletLayoutOrderMap for the first, of the PPD
// options "JCLBanner", "Jog" and "KVFeedEdge" for the others.
struct AdvancedContext
{
    CFBundleRef bundle = nullptr;
    QPointer<QWidget> parentUserPane;
    QString title;
    QPointer<QWidget> content; // the panel's own views, once they are built
    AdvancedControls controls;
    std::int32_t bookletOrder = 2; // where the ticket says nothing
    std::int32_t banner = kNoPpdChoice;
    std::int32_t offset = kNoPpdChoice;
    std::int32_t feedEdge = kNoPpdChoice;
    PpdFile *ppd = nullptr;  // the current one, from Initialize on
    LateContent lateContent; // from Open on
    EventHandlerRef handler;
};

// The ticket's entries, read and written:
//   com.kelvo.print.AdvancedBookletLayoutOrderStr   integer, client
//                                                   "com.kelvo.printingmanager"
//   PPD choices JCLBanner, Jog, KVFeedEdge          a choice that the keyword map
//                                                   does not have stays in the ticket
void readAdvancedSettings(AdvancedContext &advanced, PMTicketRef ticket);
void writeAdvancedSettings(const AdvancedContext &advanced, PMTicketRef ticket);

} // namespace kelvo
