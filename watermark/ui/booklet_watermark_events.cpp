#include "booklet_watermark_events.h"

#include "booklet_dialog.h"
#include "notice.h"
#include "pde_session.h"
#include "popups.h"
#include "string_table.h"
#include "watermark_editor.h"
#include "watermark_menu.h"
#include "watermark_store.h"

#include <QLocale>

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

void sayNotStored(const BookletWatermarkContext &panel, const Error &error)
{
    CFUserNotificationDisplayNotice(
        NoticeLevel::Stop, panel.device.text("Watermark Not Saved Header"),
        formatted(panel.device.text("Watermark Not Saved Message"), {error.text()}), {},
        panel.content);
}

// What the editor shows a new one in: that of the last one, and at first the user's own.
WatermarkUnits &editorUnits()
{
    static WatermarkUnits units = QLocale().measurementSystem() == QLocale::MetricSystem
        ? kWatermarkMillimetres
        : kWatermarkInches;
    return units;
}

// Runs the editor until what it made is stored, or nobody wants it any more. The list as it is
// stored then; none after Cancel.
std::optional<QStringList>
editAndStore(BookletWatermarkContext &panel, _WatermarkData &watermark,
             const std::function<Result<QStringList>(const _WatermarkData &)> &store)
{
    watermark.paperWidth = panel.paper.width();
    watermark.paperHeight = panel.paper.height();
    WatermarkEditing editing{.fileName = kWatermarksFile,
                             .titleKey = QStringLiteral("Watermark Editor")};
    PMSessionGetFirstPage(GetCurrentPrintSession(), &editing.firstPage);
    while (RunModalWatermarkEditor(panel.device, &watermark, editing, panel.content)
           == DialogResult::OK) {
        editorUnits() = static_cast<WatermarkUnits>(watermark.units);
        Result<QStringList> names = store(watermark);
        if (names)
            return names.value();
        sayNotStored(panel, names.error());
    }
    return std::nullopt;
}

void takeNames(BookletWatermarkContext &panel, const QStringList &names, const QString &chosen)
{
    takeWatermarks(panel, withoutEmptyFirst(names));
    selectWatermark(panel, chosen);
}

void makeWatermark(BookletWatermarkContext &panel)
{
    _WatermarkData watermark = newWatermark(editorUnits());
    watermark.isText = 1;
    const auto names = editAndStore(panel, watermark, [](const _WatermarkData &made) {
        return addWatermark(kWatermarksFile, made);
    });
    if (names)
        takeNames(panel, *names, watermarkName(watermark));
}

void editWatermark(BookletWatermarkContext &panel)
{
    const QString name = panel.settings.watermark;
    loadWatermarks(panel);
    _WatermarkData watermark;
    if (name.isEmpty() || !loadWatermarkData(kWatermarksFile, name, &watermark))
        return;
    watermark.isText = *watermark.textString != '\0';
    const auto names = editAndStore(panel, watermark, [&name](const _WatermarkData &edited) {
        return replaceWatermark(kWatermarksFile, name, edited);
    });
    if (names)
        takeNames(panel, *names, watermarkName(watermark));
}

void removeWatermark(BookletWatermarkContext &panel)
{
    const QString name = panel.settings.watermark;
    if (name.isEmpty())
        return;
    constexpr int yes = 1;
    const int answer = CFUserNotificationDisplayAlert(
        NoticeLevel::Caution, panel.device.text("Delete Watermark Header"),
        formatted(panel.device.text("Delete Watermark Message"), {name}),
        {panel.device.text("Yes Command"), panel.device.text("No Command")}, panel.content);
    if (answer != yes)
        return;
    const Result<QStringList> names = deleteWatermark(kWatermarksFile, name);
    if (names)
        takeNames(panel, names.value(), {});
    else
        sayNotStored(panel, names.error());
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
        makeWatermark(panel);
        return noErr;
    case kCommandEditWatermark:
        editWatermark(panel);
        return noErr;
    case kCommandDeleteWatermark:
        removeWatermark(panel);
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
