#include "draw_overlay.h"

#include "picture_cache.h"
#include "watermark_drawing.h"
#include "watermark_store.h"

namespace kelvo {

OSStatus KelvoDrawOverlay(const OverlayToDraw *overlay, QByteArray *pdf)
{
    if (!overlay || overlay->name.isEmpty() || !pdf)
        return paramErr;
    pdf->clear();
    _WatermarkData watermark;
    if (!loadWatermarkData(kWatermarksFile, overlay->name, &watermark))
        return fnfErr;

    bool isComplete = true;
    const auto read = [&](const QString &path) {
        ImportedPicture picture = lastPicture(path, overlay->cancelled);
        isComplete = !picture.isNull();
        return picture;
    };
    _MemoryConsumer consumer;
    if (CreateMemoryConsumer(kPreviewCapacity, &consumer) != noErr)
        return fnfErr;
    const Result<void> drawn =
        drawWatermarkPage(&watermark, overlay->page, WatermarkGround::None, read, consumer);
    if (!drawn || !isComplete)
        return fnfErr;
    *pdf = writtenBytes(consumer);
    return noErr;
}

} // namespace kelvo
