#pragma once

#include "drawing.h"
#include "memory_consumer.h"
#include "picture_import.h"
#include "watermark_data.h"

#include <QRectF>
#include <QString>

#include <functional>

namespace kelvo {

// What pictures are read by: a null one where there is none (yet). One that waits reads
// with importPicture(); one for a window answers with what is read already.
using PictureReader = std::function<ImportedPicture(const QString &path)>;

// Draws a text rotated about its origin, its ink centred on the page and moved by the
// offsets, in the well's color; or a picture in the middle of the page, as large as its natural
// size and its scale make it. Where the text's origin came to lie is written back. A null
// record, or one without text and file name, draws nothing. Opacity is the caller's.
// Records come from files: any number in them ends in a drawing or in none. An offset that is
// no number counts as 0.
void DrawWatermark(const drawing::Library &library, drawing::Page &context, const QRectF &page,
                   _WatermarkData *watermark, const PictureReader &pictures);

// How densely it is drawn, 0 to 1: its density for a text, 1 for a picture.
double watermarkOpacity(const _WatermarkData &watermark);

// A page of `size` points with the watermark: on white as the previews show it, or with
// nothing below it. Written into the consumer from position 0 on. Errors of the drawing
// library; the consumer is empty after them.
enum class WatermarkGround { White, None };
Result<void> drawWatermarkPage(_WatermarkData *watermark, const QSizeF &size,
                               WatermarkGround ground, const PictureReader &pictures,
                               _MemoryConsumer &consumer);

// Whether an editor's preview must be drawn again for `now` after `last`: angle, scale,
// density or offsets differ, or of a text the text or the font. Colors, size and paper are
// not looked at: who changes them asks for it.
bool needsRedraw(const _WatermarkData &last, const _WatermarkData &now);

} // namespace kelvo
