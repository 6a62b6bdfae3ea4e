#pragma once

#include "cover_sheet.h"
#include "fixed_point.h"
#include "memory_consumer.h"
#include "watermark_drawing.h"

#include <QRectF>
#include <QString>

// The cover sheet of a fax as a PDF of one page. Lengths are points, and y counts up.
namespace kelvo {

// What a drawing leaves to say.
struct CoverSheetDrawn
{
    bool isCut = false;        // something did not fit on the page
    QString missingCharacters; // those that no installed font has, each once; they are left out
    friend bool operator==(const CoverSheetDrawn &, const CoverSheetDrawn &) = default;
};

// Writes one page, as large as `page`, into the consumer, from position 0 on; a null
// `watermark`, or one that is zero, is no image. A block whose text is empty is not drawn. Errors
// of the drawing library: the consumer is empty then.
Result<CoverSheetDrawn> DrawFaxCover(_MemoryConsumer &consumer, const QRectF &page,
                                     const QString &senderLabel, const QString &senderText,
                                     const QString &recipientsLabel, const QString &recipientsText,
                                     const QString &notesLabel, const QString &notesText,
                                     _WatermarkData *watermark, const PictureReader &pictures);

// The same with the image read out of its store; one that is not there is none.
Result<CoverSheetDrawn> drawCoverSheet(const CoverSheetContent &content,
                                       const PictureReader &pictures, _MemoryConsumer &consumer);

// A block of the page, label and text, within `content` from the pen on, which is left below
// it. A line that does not fit is the end of the block, and the pen stays above it.
void DrawFaxCoverSender(drawing::Page &context, const QRectF &content, Fixed &x, Fixed &y,
                        const QString &label, const QString &text, CoverSheetDrawn &drawn);
void DrawFaxCoverRecipients(drawing::Page &context, const QRectF &content, Fixed &x, Fixed &y,
                            const QString &label, const QString &text, CoverSheetDrawn &drawn);
void DrawFaxCoverNotes(drawing::Page &context, const QRectF &content, Fixed &x, Fixed &y,
                       const QString &label, const QString &text, CoverSheetDrawn &drawn);

// Draws the lines of `layout` from the top down, at the left edge of `rectangle`, as long as
// they fit above its bottom edge; false when one does not, which ends it. What no font has is
// added to `drawn`.
bool RenderWrappingText(drawing::WrappedText &layout, const QRectF &rectangle, Fixed &x, Fixed &y,
                        CoverSheetDrawn &drawn);

} // namespace kelvo
