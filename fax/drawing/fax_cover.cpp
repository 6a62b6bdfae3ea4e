#include "fax_cover.h"

#include "watermark_store.h"

namespace kelvo {

Result<CoverSheetDrawn> drawCoverSheet(const CoverSheetContent &content,
                                       const PictureReader &pictures, _MemoryConsumer &consumer)
{
    _WatermarkData image;
    if (!content.image.isEmpty())
        loadWatermarkData(kFaxImagesFile, content.image, &image);
    consumer.position = 0;
    const Result<const drawing::Library *> library = drawing::library();
    if (!library)
        return library.error();
    const auto write = [&consumer](const char *bytes, std::size_t count) {
        return MemoryConsumerPutBytes(&consumer, bytes, count) == count;
    };
    Result<std::unique_ptr<drawing::Page>> begun = library.value()->beginPage(content.size, write);
    if (!begun)
        return begun.error();
    drawing::Page &page = *begun.value();
    page.fill({1, 1, 1, 1});
    double y = content.size.height() - 103;
    for (const QString &text : {content.senderText, content.recipientsText, content.notesText}) {
        page.drawText(text.left(2000), {}, {31, y});
        y -= 100;
    }
    page.setOpacity(image.density / 100.0);
    DrawWatermark(*library.value(), page, QRectF(QPointF(), content.size), &image, pictures);
    const Result<void> finished = page.finish();
    if (!finished)
        return finished.error();
    return CoverSheetDrawn();
}

} // namespace kelvo
