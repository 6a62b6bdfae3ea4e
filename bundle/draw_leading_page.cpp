#include "draw_leading_page.h"

#include "fax_cover.h"
#include "picture_cache.h"

namespace kelvo {

OSStatus KelvoDrawLeadingPage(const LeadingPageToDraw *page, QByteArray *pdf)
{
    if (!page || !pdf)
        return paramErr;
    pdf->clear();
    CoverSheetContent content = CoverSheetContent::fromDictionary(page->content);
    content.size = page->size;
    const auto read = [page](const QString &path) { return lastPicture(path, page->cancelled); };
    _MemoryConsumer consumer;
    if (CreateMemoryConsumer(kPreviewCapacity, &consumer) != noErr)
        return fnfErr;
    // One that was cancelled may lack its image.
    if (!drawCoverSheet(content, read, consumer) || (page->cancelled && *page->cancelled))
        return fnfErr;
    *pdf = writtenBytes(consumer);
    return noErr;
}

} // namespace kelvo
