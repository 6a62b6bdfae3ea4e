#pragma once

#include "memory_consumer.h"
#include "result.h"

#include <QImage>
#include <QSize>

namespace kelvo {

// The page that was written into the consumer, on white, in that many pixels; a null image
// where there are none, and as drawing::showPdf(). Any thread.
Result<QImage> imageOfPage(const _MemoryConsumer &pdf, const QSize &pixels);

} // namespace kelvo
