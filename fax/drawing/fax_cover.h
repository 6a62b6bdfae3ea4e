#pragma once

#include "cover_sheet.h"
#include "memory_consumer.h"
#include "watermark_drawing.h"

#include <QRectF>
#include <QString>

// The cover sheet of a fax as a PDF of one page.
namespace kelvo {

// What a drawing leaves to say.
struct CoverSheetDrawn
{
    bool isCut = false;        // something did not fit on the page
    QString missingCharacters; // those that no installed font has, each once; they are left out
    friend bool operator==(const CoverSheetDrawn &, const CoverSheetDrawn &) = default;
};

// Writes one page into the consumer, from position 0 on; a null `watermark`, or one that is
// zero, is no image. A block whose text is empty is not drawn. Errors of the drawing library:
// the consumer is empty then.
Result<CoverSheetDrawn> DrawFaxCover(_MemoryConsumer &consumer, const QRectF &page,
                                     const QString &senderLabel, const QString &senderText,
                                     const QString &recipientsLabel, const QString &recipientsText,
                                     const QString &notesLabel, const QString &notesText,
                                     _WatermarkData *watermark, const PictureReader &pictures);

// The same with the image read out of its store; one that is not there is none.
Result<CoverSheetDrawn> drawCoverSheet(const CoverSheetContent &content,
                                       const PictureReader &pictures, _MemoryConsumer &consumer);

} // namespace kelvo
