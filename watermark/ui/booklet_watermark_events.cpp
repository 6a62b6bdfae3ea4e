#include "booklet_watermark_events.h"

#include "booklet_dialog.h"
#include "pde_session.h"
#include "popups.h"
#include "stored_watermarks.h"
#include "watermark_menu.h"
#include "watermark_store.h"

namespace kelvo {

namespace {

// ---- booklet

void chooseBooklet(BookletWatermarkContext &panel)
{
    takeChoice(panel.controls.booklet, panel.settings.booklet.layout);
    showBookletWatermark(panel);
}

void editBookletOptions(BookletWatermarkContext &panel)
{
    BookletWatermarkSettings &settings = panel.settings;
    _BookletCreationParams params = paramsOf(settings.booklet, settings.fold.value_or(kFoldNone));
    if (RunModalBookletOptionsDialog(panel.device, &params, panel.content) != noErr)
        return;
    settings.booklet = bookletOf(params);
    // Only what the dialog asks for; what it cannot show stays.
    if (settings.fold || params.fold != kFoldNone)
        settings.fold = params.fold;
    showBookletWatermark(panel);
}

// ---- watermarks

void selectWatermark(BookletWatermarkContext &panel, const QString &name)
{
    panel.settings.watermark = name;
    showBookletWatermark(panel);
}

StoredWatermarks storedWatermarks(const BookletWatermarkContext &panel)
{
    StoredWatermarks stored{
        .device = panel.device,
        .editing = {.fileName = kWatermarksFile, .titleKey = QStringLiteral("Watermark Editor")},
        .paper = panel.paper,
        .parent = panel.content,
        .deleteHeader = panel.device.text("Delete Watermark Header"),
        .deleteMessage = panel.device.text("Delete Watermark Message"),
        .notSavedHeader = panel.device.text("Watermark Not Saved Header"),
        .notSavedMessage = panel.device.text("Watermark Not Saved Message")};
    PMSessionGetFirstPage(GetCurrentPrintSession(), &stored.editing.firstPage);
    return stored;
}

void take(BookletWatermarkContext &panel, const std::optional<ChosenWatermark> &chosen)
{
    if (!chosen)
        return;
    takeWatermarks(panel, withoutEmptyFirst(chosen->names));
    selectWatermark(panel, chosen->name);
}

void editChosenWatermark(BookletWatermarkContext &panel)
{
    loadWatermarks(panel);
    take(panel, editWatermark(storedWatermarks(panel), panel.settings.watermark));
}

OSStatus takeCommand(BookletWatermarkContext &panel, OSType command, std::int32_t reference)
{
    switch (command) {
    case kCommandNoWatermark:
        selectWatermark(panel, {});
        return noErr;
    case kCommandWatermark:
        selectWatermark(panel, listOfWatermarks.value(reference));
        return noErr;
    case kCommandNewWatermark:
        take(panel, makeWatermark(storedWatermarks(panel)));
        return noErr;
    case kCommandEditWatermark:
        editChosenWatermark(panel);
        return noErr;
    case kCommandDeleteWatermark:
        take(panel, removeWatermark(storedWatermarks(panel), panel.settings.watermark));
        return noErr;
    default:
        if (!applyWatermarkOption(panel.settings, command))
            return eventNotHandledErr;
        showBookletWatermark(panel);
        return noErr;
    }
}

OSStatus takeHit(BookletWatermarkContext &panel, std::int32_t control)
{
    switch (control) {
    case kBookletLayoutPopup:
        chooseBooklet(panel);
        return noErr;
    case kPageBordersPopup:
        takeChoice(panel.controls.borders, panel.settings.booklet.pageBorders);
        return noErr;
    case kBookletOptionsButton:
        editBookletOptions(panel);
        return noErr;
    default:
        return eventNotHandledErr;
    }
}

} // namespace

OSStatus BookletWatermarkEventHandler(BookletWatermarkContext &panel, const Event &event)
{
    if (event.kind == EventKind::Command)
        return takeCommand(panel, event.command, event.reference);
    if (event.kind == EventKind::ControlHit && event.control.signature == kPanelSignature)
        return takeHit(panel, event.control.number);
    return eventNotHandledErr;
}

} // namespace kelvo
