#include "stored_watermarks.h"

#include "notice.h"
#include "string_table.h"
#include "watermark_store.h"

#include <QLocale>

#include <functional>

namespace kelvo {

namespace {

// What the editor shows a new one in: that of the last one, and at first the user's own.
WatermarkUnits &editorUnits()
{
    static WatermarkUnits units = QLocale().measurementSystem() == QLocale::MetricSystem
        ? kWatermarkMillimetres
        : kWatermarkInches;
    return units;
}

void sayNotStored(const StoredWatermarks &stored, const Error &error)
{
    CFUserNotificationDisplayNotice(NoticeLevel::Stop, stored.notSavedHeader,
                                    formatted(stored.notSavedMessage, {error.text()}), {},
                                    stored.parent);
}

using Store = std::function<Result<QStringList>(const _WatermarkData &)>;
std::optional<ChosenWatermark> editAndStore(const StoredWatermarks &stored,
                                            _WatermarkData &watermark, const Store &store)
{
    watermark.paperWidth = stored.paper.width();
    watermark.paperHeight = stored.paper.height();
    while (RunModalWatermarkEditor(stored.device, &watermark, stored.editing, stored.parent)
           == DialogResult::OK) {
        editorUnits() = static_cast<WatermarkUnits>(watermark.units);
        const Result<QStringList> names = store(watermark);
        if (names)
            return ChosenWatermark{names.value(), watermarkName(watermark)};
        sayNotStored(stored, names.error());
    }
    return std::nullopt;
}

} // namespace

std::optional<ChosenWatermark> makeWatermark(const StoredWatermarks &stored)
{
    _WatermarkData watermark = newWatermark(editorUnits());
    watermark.isText = stored.editing.isCoverImage ? 0 : 1;
    return editAndStore(stored, watermark, [&stored](const _WatermarkData &made) {
        return addWatermark(stored.editing.fileName, made);
    });
}

std::optional<ChosenWatermark> editWatermark(const StoredWatermarks &stored, const QString &name)
{
    _WatermarkData watermark;
    if (name.isEmpty() || !loadWatermarkData(stored.editing.fileName, name, &watermark))
        return std::nullopt;
    watermark.isText = *watermark.textString != '\0';
    return editAndStore(stored, watermark, [&](const _WatermarkData &edited) {
        return replaceWatermark(stored.editing.fileName, name, edited);
    });
}

std::optional<ChosenWatermark> removeWatermark(const StoredWatermarks &stored, const QString &name)
{
    if (name.isEmpty())
        return std::nullopt;
    constexpr int yes = 1;
    const int answer = CFUserNotificationDisplayAlert(
        NoticeLevel::Caution, stored.deleteHeader, formatted(stored.deleteMessage, {name}),
        {stored.device.text("Yes Command"), stored.device.text("No Command")}, stored.parent);
    if (answer != yes)
        return std::nullopt;
    const Result<QStringList> names = deleteWatermark(stored.editing.fileName, name);
    if (names)
        return ChosenWatermark{names.value(), {}};
    sayNotStored(stored, names.error());
    return std::nullopt;
}

} // namespace kelvo
